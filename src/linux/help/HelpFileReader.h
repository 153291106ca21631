#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include "linux/help/HelpFile.h"

namespace dayvane::help {

/// Takes the bytes of a help file apart. It reads forward only and hands out nothing beyond its end.
class HelpFileReader {
 public:
  explicit HelpFileReader(const QByteArray& bytes) : m_bytes(bytes) {}

  /// The whole file, or an Error.
  HelpFile Read();

 private:
  QByteArray TakeLine();
  QByteArray TakePayload(const QByteArray& size);
  void TakeTopic(const QByteArrayList& header);
  void TakePicture(const QByteArrayList& header);
  void TakeContents(const QByteArrayList& header);
  void TakeContext(const QByteArray& number);
  void CheckContents() const;

  QByteArray m_bytes;
  qsizetype m_at = 0;
  HelpFile m_file;
};

}  // namespace dayvane::help
