#include "linux/help/HelpFileReader.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

#include "base/Error.h"

namespace dayvane::help {

namespace {

constexpr qsizetype kLongestLine = 1000;  ///< a header is a few words; anything longer is no header
constexpr int kLargestContext = 65535;

[[noreturn]] void FailDamaged(const char* what) {
  throw Error(kInvalidFileFormat, std::string("The help file is damaged: ") + what + ".");
}

[[noreturn]] void FailCutShort() {
  throw Error(kInputPastEnd, "The help file is incomplete.");
}

QString Decoded(const QByteArray& utf8) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decoder(utf8);
  if (decoder.hasError()) FailDamaged("a text is not UTF-8");
  return text;
}

/// Tags become blanks, so that words of neighbouring cells stay apart. Markup that breaks off leaves what came before.
QString WithoutMarkup(const QString& body) {
  QXmlStreamReader xml(QStringLiteral("<topic>") + body + QStringLiteral("</topic>"));
  QString text;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::Characters) text += xml.text();
    if (token == QXmlStreamReader::EndElement && xml.name() != QLatin1String("b") && xml.name() != QLatin1String("i"))
      text += u' ';
  }
  return text.simplified();
}

}  // namespace

HelpFile HelpFileReader::Read() {
  if (TakeLine() != "Dayvane help 1") FailDamaged("it does not begin as a help file");
  for (QByteArray line = TakeLine(); line != "end"; line = TakeLine()) {
    const QByteArrayList header = line.split(' ');
    if (header.size() < 2) FailDamaged("a record has no size");
    if (header[0] == "topic") {
      TakeTopic(header);
    } else if (header[0] == "picture") {
      TakePicture(header);
    } else if (header[0] == "contents") {
      TakeContents(header);
    } else {
      TakePayload(header[1]);
    }
  }
  if (m_at != m_bytes.size()) FailDamaged("something follows its end");
  CheckContents();
  return std::move(m_file);
}

QByteArray HelpFileReader::TakeLine() {
  const qsizetype end = m_bytes.indexOf('\n', m_at);
  if (end < 0 && m_bytes.size() - m_at <= kLongestLine) FailCutShort();
  if (end < 0 || end - m_at > kLongestLine) FailDamaged("a line is too long");
  QByteArray line = m_bytes.mid(m_at, end - m_at);
  m_at = end + 1;
  return line;
}

QByteArray HelpFileReader::TakePayload(const QByteArray& size) {
  bool isNumber = false;
  const int bytes = size.toInt(&isNumber);
  if (!isNumber || bytes < 0) FailDamaged("a size is no number");
  // One more for the line feed after the record; the subtraction cannot overflow where an addition could.
  if (bytes > m_bytes.size() - m_at - 1) FailCutShort();
  QByteArray payload = m_bytes.mid(m_at, bytes);
  m_at += bytes;
  if (m_bytes[m_at] != '\n') FailDamaged("a size is wrong");
  ++m_at;
  return payload;
}

void HelpFileReader::TakeTopic(const QByteArrayList& header) {
  const QByteArray payload = TakePayload(header[1]);
  if (header.size() < 3) FailDamaged("a topic has no name");
  const qsizetype titleEnd = payload.indexOf('\n');
  if (titleEnd < 1) FailDamaged("a topic has no title");

  Topic topic;
  topic.name = Decoded(header[2]);
  topic.title = Decoded(payload.left(titleEnd));
  topic.body = Decoded(payload.mid(titleEnd + 1));
  topic.text = WithoutMarkup(topic.body);
  if (m_file.m_names.contains(topic.name)) FailDamaged("a topic is there twice");
  m_file.m_names.insert(topic.name, m_file.m_topics.size());
  for (const QByteArray& number : header.mid(3)) TakeContext(number);
  m_file.m_topics.push_back(std::move(topic));
}

void HelpFileReader::TakeContext(const QByteArray& number) {
  bool isNumber = false;
  const int context = number.toInt(&isNumber);
  if (!isNumber || context < 1 || context > kLargestContext) FailDamaged("a context is no number");
  if (m_file.m_contexts.contains(context)) FailDamaged("a context is there twice");
  m_file.m_contexts.insert(context, m_file.m_topics.size());
}

void HelpFileReader::TakePicture(const QByteArrayList& header) {
  const QByteArray payload = TakePayload(header[1]);
  if (header.size() != 3) FailDamaged("a picture has no name");
  const QString name = Decoded(header[2]);
  if (m_file.m_pictures.contains(name)) FailDamaged("a picture is there twice");
  m_file.m_pictures.insert(name, payload);
}

void HelpFileReader::TakeContents(const QByteArrayList& header) {
  const QByteArray payload = TakePayload(header[1]);
  if (!m_file.m_contents.empty()) FailDamaged("it has two tables of contents");
  int deepest = 0;
  for (const QByteArray& line : payload.split('\n')) {
    int depth = 0;
    while (depth < line.size() && line[depth] == '\t') ++depth;
    if (depth > deepest) FailDamaged("the contents skip a level");
    deepest = depth + 1;
    m_file.m_contents.push_back({depth, Decoded(line.mid(depth))});
  }
}

void HelpFileReader::CheckContents() const {
  if (m_file.m_contents.empty()) FailDamaged("it has no contents");
  for (const ContentsEntry& entry : m_file.m_contents) {
    if (!m_file.Find(entry.topic)) FailDamaged("the contents name a topic that is not there");
  }
}

}  // namespace dayvane::help
