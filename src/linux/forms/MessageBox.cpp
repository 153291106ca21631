// SPDX-License-Identifier: MIT
#include "linux/forms/MessageBox.h"

#include <QAbstractButton>
#include <QLabel>
#include <algorithm>

#include "linux/files/NativePath.h"
#include "linux/forms/ScreenFit.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kMessagePicture = 48;
constexpr int kGapBelow = 36;         // with room for the frame, which is not known yet
constexpr int kRoomAroundText = 160;  ///< picture, margins and frame

int PictureOf(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::Information:
      return kInformationPicture;
    case platform::MessageIcon::Question:
      return kQuestionPicture;
    case platform::MessageIcon::None:
      break;
  }
  return kNoPicture;
}

QString TextOf(const platform::Message& message) {
  return QString::fromStdString(files::ForReading(message.text)).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace

MessageBox::MessageBox(const platform::Message& message, QWidget* owner) : QMessageBox(owner) {
  const bool question = message.buttons == platform::MessageButtons::YesNo;
  setWindowTitle(QString::fromStdString(message.title));
  setWindowIcon(PictureIcon(kNormalIcon));
  setTextFormat(Qt::PlainText);  // a document's name may look like markup
  setText(TextOf(message));
  if (const int picture = PictureOf(message.icon); picture != kNoPicture)
    setIconPixmap(PictureIcon(picture).pixmap(QSize(kMessagePicture, kMessagePicture), devicePixelRatioF()));
  setStandardButtons(question ? Yes | No : Ok);
  if (question) setDefaultButton(Yes);
  if (question) setEscapeButton(No);
  for (QAbstractButton* button : buttons()) button->setIcon({});
  KeepPathsWhole();
}

void MessageBox::KeepPathsWhole() {
  auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));  // Qt's own name (qmessagebox.cpp)
  if (label == nullptr) return;
  const int most = AvailableScreenFor({}).width() - kRoomAroundText;
  int widest = 0;
  for (const QString& line : text().split(u'\n'))
    if (line.contains(u'/')) widest = std::max(widest, label->fontMetrics().horizontalAdvance(line));
  if (widest > 0 && widest <= most) label->setMinimumWidth(widest + 2 * label->margin() + 2);
}

void MessageBox::PlaceBelow(const QWidget& window) {
  ensurePolished();
  const QRect over = window.frameGeometry();
  QRect place({}, sizeHint());
  place.moveCenter(over.center());
  place.moveTop(over.bottom() + kGapBelow);
  if (AvailableScreenFor(over).contains(place)) move(place.topLeft());
}

}  // namespace dayvane::widgets
