// SPDX-License-Identifier: MIT
#include "linux/recent/Moment.h"

#include <QDateTime>
#include <chrono>
#include <limits>

#include "linux/files/NativeFile.h"

namespace dayvane::recent {

namespace {

constexpr std::int64_t kYear1990 = 631152000;  // seconds since 1970

std::optional<Moment> FromSeconds(std::int64_t seconds, Moment fraction) {
  if (seconds < kYear1990) return std::nullopt;
  constexpr Moment kLast = std::numeric_limits<Moment>::max();
  if (seconds >= kLast / kNanosecondsPerSecond) return kLast;
  return seconds * kNanosecondsPerSecond + fraction;
}

/// Takes ".110424" out of the text and returns it in nanoseconds. Qt's own reading stops at milliseconds.
Moment TakeFraction(QString& text) {
  const auto isMark = [](QChar c) { return c == u'.' || c == u','; };
  const auto mark = std::find_if(text.cbegin(), text.cend(), isMark) - text.cbegin();
  if (mark == text.size()) return 0;
  Moment fraction = 0;
  Moment place = kNanosecondsPerSecond;
  auto end = mark + 1;
  for (; end < text.size() && text[end] >= u'0' && text[end] <= u'9'; ++end) {
    place /= 10;
    fraction += place * (text[end].unicode() - u'0');
  }
  text.remove(mark, end - mark);
  return fraction;
}

std::chrono::local_days LocalDay(Moment moment) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds(moment));
  return std::chrono::floor<std::chrono::days>(files::LocalTime(seconds.count()));
}

}  // namespace

std::optional<Moment> ParseIsoMoment(QStringView text) {
  QString whole = text.trimmed().toString();
  const Moment fraction = TakeFraction(whole);
  const QDateTime date = QDateTime::fromString(whole, Qt::ISODate);
  if (!date.isValid()) return std::nullopt;
  return FromSeconds(date.toSecsSinceEpoch(), fraction);
}

std::optional<Moment> ParseEpochMoment(QStringView text) {
  bool isNumber = false;
  const qlonglong seconds = text.trimmed().toLongLong(&isNumber);
  if (!isNumber) return std::nullopt;
  return FromSeconds(seconds, 0);
}

std::optional<Moment> MomentFromSeconds(std::int64_t seconds) {
  return FromSeconds(seconds, 0);
}

bool OnSameLocalDay(Moment a, Moment b) {
  return LocalDay(a) == LocalDay(b);
}

}  // namespace dayvane::recent
