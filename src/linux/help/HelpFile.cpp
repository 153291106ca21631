#include "linux/help/HelpFile.h"

#include <QFile>
#include <algorithm>

#include "base/Error.h"
#include "linux/help/HelpFileReader.h"

namespace dayvane::help {

namespace {

constexpr qint64 kLargestFile = 32'000'000;  ///< ours has some 50 KB; a larger one is not read into memory

bool HoldsEveryWord(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

bool HoldsAnyWord(const QString& text, const QStringList& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

HelpFile HelpFile::Read(const QString& nativePath) {
  QFile file(nativePath);
  if (!file.exists()) throw Error(kFileNotFound, "The help file was not found.", nativePath.toStdString());
  if (!file.open(QIODevice::ReadOnly))
    throw Error(kPathFileAccess, "The help file cannot be opened.", nativePath.toStdString());
  const QByteArray bytes = file.read(kLargestFile + 1);
  if (bytes.size() > kLargestFile) throw Error(kInvalidFileFormat, "The help file is too large.");
  return Parse(bytes);
}

HelpFile HelpFile::Parse(const QByteArray& bytes) {
  return HelpFileReader(bytes).Read();
}

const Topic* HelpFile::Find(const QString& name) const {
  const auto found = m_names.constFind(name);
  return found == m_names.constEnd() ? nullptr : &m_topics[*found];
}

const Topic* HelpFile::FindContext(int contextId) const {
  const auto found = m_contexts.constFind(contextId);
  return found == m_contexts.constEnd() ? nullptr : &m_topics[*found];
}

QByteArray HelpFile::Picture(const QString& name) const {
  return m_pictures.value(name);
}

std::vector<const Topic*> HelpFile::Search(const QString& words) const {
  const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
  std::vector<const Topic*> found;
  if (wanted.isEmpty()) return found;
  for (const Topic& topic : m_topics) {
    if (HoldsEveryWord(topic.title + u' ' + topic.text, wanted)) found.push_back(&topic);
  }
  std::stable_partition(found.begin(), found.end(),
                        [&](const Topic* topic) { return HoldsAnyWord(topic->title, wanted); });
  return found;
}

}  // namespace dayvane::help
