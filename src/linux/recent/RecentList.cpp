#include "linux/recent/RecentList.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <optional>
#include <utility>

#include "linux/recent/XmlMending.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kPiece = 65536;                ///< bytes handed to the reader at a time
constexpr std::size_t kLongestBookmark = 1U << 20U;  ///< bytes
constexpr int kDeepest = 64;                         ///< elements within elements
constexpr int kMostAttributes = 64;                  ///< of one tag: Qt compares each with each

/// An entry of which the end has not been read yet.
struct OpenBookmark {
  RecentEntry entry;
  std::optional<Moment> added;
  std::optional<Moment> modified;
  std::optional<Moment> visited;
};

std::optional<Moment> MomentOf(const QXmlStreamAttributes& attributes, QLatin1String name) {
  return ParseIsoMoment(attributes.value(name));
}

OpenBookmark Open(const QXmlStreamAttributes& attributes) {
  OpenBookmark bookmark;
  bookmark.entry.href = attributes.value(QLatin1String("href")).toUtf8().toStdString();
  bookmark.added = MomentOf(attributes, QLatin1String("added"));
  bookmark.modified = MomentOf(attributes, QLatin1String("modified"));
  bookmark.visited = MomentOf(attributes, QLatin1String("visited"));
  return bookmark;
}

RecentEntry Close(OpenBookmark bookmark) {
  auto& openings = bookmark.entry.openings;
  const auto take = [&](const std::optional<Moment>& moment) {
    if (moment) openings.push_back(*moment);
  };
  if (openings.empty()) {
    take(bookmark.modified);
    take(bookmark.added);
    if (openings.empty()) take(bookmark.visited);
  } else {
    take(bookmark.visited);
  }
  return std::move(bookmark.entry);
}

/// Gathers the bookmarks from a reader's tokens. Elements are known by their local name: the prefix of a namespace is
/// the writer's choice, and not every writer declares the ones it uses.
class BookmarkCollector {
 public:
  /// False when this cannot be part of a sound list.
  bool Start(const QXmlStreamReader& xml) {
    ++m_depth;
    if (m_depth == 1) m_rootIsList = xml.name() == QLatin1String("xbel");
    if (xml.name() == QLatin1String("bookmark")) return StartBookmark(xml);
    if (m_open) StartPart(xml);
    return m_depth <= kDeepest;
  }

  void End() {
    if (m_open && m_depth == m_openDepth) {
      m_entries.push_back(Close(std::move(*m_open)));
      m_open.reset();
    }
    --m_depth;
  }

  bool RootIsList() const { return m_rootIsList; }
  bool IsInBookmark() const { return m_open.has_value(); }
  std::vector<RecentEntry> TakeEntries() { return std::move(m_entries); }

 private:
  bool StartBookmark(const QXmlStreamReader& xml) {
    // Entries do not nest: the end of the one before is missing.
    const bool isNested = m_open.has_value();
    m_open = Open(xml.attributes());
    m_openDepth = m_depth;
    return !isNested;
  }

  void StartPart(const QXmlStreamReader& xml) {
    const auto name = xml.name();
    if (name == QLatin1String("private")) m_open->entry.isPrivate = true;
    if (name == QLatin1String("mime-type"))
      m_open->entry.mimeType = xml.attributes().value(QLatin1String("type")).toUtf8().toStdString();
    if (name != QLatin1String("application")) return;
    auto moment = MomentOf(xml.attributes(), QLatin1String("modified"));
    if (!moment) moment = ParseEpochMoment(xml.attributes().value(QLatin1String("timestamp")));
    if (moment) m_open->entry.openings.push_back(*moment);
  }

  std::vector<RecentEntry> m_entries;
  std::optional<OpenBookmark> m_open;
  int m_openDepth = 0;
  int m_depth = 0;
  bool m_rootIsList = false;
};

QByteArray Unowned(std::string_view text) {
  return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size()));
}

/// Whether the reader would take unreasonably long over some tag.
bool HasAbsurdTag(std::string_view text) {
  int quotes = 0;
  for (const char c : text) {
    if (c == '<') quotes = 0;
    if ((c == '"' || c == '\'') && ++quotes > 2 * kMostAttributes) return true;
  }
  return false;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Reads the list as XML from end to end, a piece at a time; false when there is a fault in it.
bool ReadWhole(std::string_view text, BookmarkCollector& bookmarks) {
  QXmlStreamReader xml;
  xml.setNamespaceProcessing(false);
  std::size_t fed = 0;
  std::size_t fedAtLastToken = 0;
  for (;;) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::EndDocument) return bookmarks.RootIsList() && IsBlank(text.substr(fed));
    if (token == QXmlStreamReader::StartElement && !bookmarks.Start(xml)) return false;
    if (token == QXmlStreamReader::EndElement) bookmarks.End();
    if (token != QXmlStreamReader::Invalid) {
      fedAtLastToken = fed;
      continue;
    }
    const bool needsMore = xml.error() == QXmlStreamReader::PrematureEndOfDocumentError && fed < text.size();
    if (!needsMore || fed - fedAtLastToken > kLongestBookmark) return false;
    const std::string_view piece = text.substr(fed, kPiece);
    xml.addData(Unowned(piece));
    fed += piece.size();
  }
}

/// Start of the next "<bookmark ...", not of a "<bookmark:groups>".
std::size_t FindBookmark(std::string_view text, std::size_t from) {
  constexpr std::string_view kStart = "<bookmark";
  for (auto at = text.find(kStart, from); at != std::string_view::npos; at = text.find(kStart, at + 1)) {
    const auto end = at + kStart.size();
    if (end < text.size() && std::string_view(" \t\r\n/>").find(text[end]) != std::string_view::npos) return at;
  }
  return std::string_view::npos;
}

/// The length of the tag that the text starts with; npos without its end.
std::size_t TagLength(std::string_view text) {
  char quote = '\0';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quote == '\0' && c == '>') return i + 1;
    if (quote == '\0' && (c == '"' || c == '\''))
      quote = c;
    else if (c == quote)
      quote = '\0';
  }
  return std::string_view::npos;
}

/// The text up to the end of its first bookmark, where it has one.
std::string_view UpToEnd(std::string_view text) {
  const std::string_view tag = text.substr(0, TagLength(text));
  if (tag.ends_with("/>")) return tag;
  const auto endTag = text.find("</bookmark>");
  return endTag == std::string_view::npos ? text : text.substr(0, endTag + std::string_view("</bookmark>").size());
}

/// Reads the one bookmark that the piece starts with, if it is sound up to its end.
void ReadPiece(std::string_view piece, std::vector<RecentEntry>& entries) {
  const bool isTag = piece.find('>') != std::string_view::npos;
  if (!isTag || piece.size() > kLongestBookmark || HasAbsurdTag(piece)) return;
  QXmlStreamReader xml(Unowned(piece));
  xml.setNamespaceProcessing(false);
  BookmarkCollector bookmarks;
  for (;;) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::Invalid || token == QXmlStreamReader::EndDocument) return;
    if (token == QXmlStreamReader::StartElement && !bookmarks.Start(xml)) return;
    if (token != QXmlStreamReader::EndElement) continue;
    bookmarks.End();
    if (bookmarks.IsInBookmark()) continue;
    auto found = bookmarks.TakeEntries();
    entries.insert(entries.end(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    return;
  }
}

/// Reads each bookmark by itself: a damaged one costs only itself.
std::vector<RecentEntry> ReadPieces(std::string_view text) {
  std::vector<RecentEntry> entries;
  for (auto start = FindBookmark(text, 0); start != std::string_view::npos;) {
    const auto next = FindBookmark(text, start + 1);
    ReadPiece(UpToEnd(text.substr(start, std::min(next, text.size()) - start)), entries);
    start = next;
  }
  return entries;
}

bool ReachesEnd(std::string_view text) {
  const auto last = text.find_last_not_of(" \t\r\n");
  return last != std::string_view::npos && text.substr(0, last + 1).ends_with("</xbel>");
}

}  // namespace

RecentList ParseRecentList(std::string_view bytes) {
  const MendedXml mended = MendXml(bytes);
  BookmarkCollector bookmarks;
  const bool isSound = !HasAbsurdTag(mended.text) && ReadWhole(mended.text, bookmarks);
  RecentList list;
  list.entries = isSound ? bookmarks.TakeEntries() : ReadPieces(mended.text);
  list.isWellFormed = isSound && !mended.wasBroken;
  list.isComplete = isSound || ReachesEnd(mended.text);
  return list;
}

}  // namespace dayvane::recent
