// SPDX-License-Identifier: MIT
#include "linux/widgets/DayWords.h"

#include <QDate>
#include <QLocale>

#include "linux/files/NativePath.h"

namespace dayvane::widgets {

QString DayWords(std::chrono::local_days day) {
  return QLocale().toString(QDate(1970, 1, 1).addDays(day.time_since_epoch().count()), QLocale::LongFormat);
}

QString NodeWords(const controls::TreeNode* node) {
  if (node == nullptr || node->parent == nullptr) return {};
  if (node->day) return DayWords(*node->day);
  const QString own = QString::fromStdString(files::ForReading(node->text));
  const QString above = NodeWords(node->parent);
  return above.isEmpty() ? own : own + u' ' + above;
}

}  // namespace dayvane::widgets
