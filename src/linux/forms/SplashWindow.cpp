// SPDX-License-Identifier: MIT
#include "linux/forms/SplashWindow.h"

#include "linux/forms/ScreenFit.h"
#include "linux/widgets/Lengths.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "shell/FSplash.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr QSize kLogo{168, 128};
constexpr int kSplashMargin = 24;
constexpr int kTextWidth = 300;
constexpr int kLineGap = 4;
constexpr int kTextGap = 12;  ///< between groups of texts

constexpr double kTitleSize = 2.4;  ///< times the usual font
constexpr double kSmallSize = 0.9;

void ScaleFont(QWidget& widget, double factor) {
  QFont font = widget.font();
  font.setPointSizeF(font.pointSizeF() * factor);
  widget.setFont(font);
}

}  // namespace

SplashWindow::SplashWindow(FSplash& splash)
    : QFrame(nullptr, Qt::SplashScreen),
      m_splash(splash),
      m_product(splash.lblProductName),
      m_version(splash.lblVersion),
      m_company(splash.lblCompany),
      m_copyright(splash.lblCopyright),
      m_warning(splash.lblWarning),
      m_form(splash.form, *this, *this) {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setWindowIcon(PictureIcon(kNormalIcon));
  SetFonts();
  LayOut();
  QRect place({}, sizeHint());
  place.moveCenter(AvailableScreenFor({}).center());
  MoveControl(splash.form, place, *this);
}

void SplashWindow::SetFonts() {
  ScaleFont(m_product, kTitleSize);
  ScaleFont(m_warning, kSmallSize);
  m_warning.setWordWrap(true);
}

void SplashWindow::LayOut() {
  m_texts.setSpacing(kLineGap);
  m_logo.setPixmap(PictureIcon(m_splash.imgLogo.Picture()).pixmap(kLogo, devicePixelRatioF()));
  m_texts.addStretch(1);
  for (QWidget* text : {static_cast<QWidget*>(&m_product), static_cast<QWidget*>(&m_version)}) m_texts.addWidget(text);
  m_texts.addSpacing(kTextGap);
  m_texts.addWidget(&m_company);
  m_texts.addWidget(&m_copyright);
  m_texts.addSpacing(kTextGap);
  m_texts.addWidget(&m_warning);
  m_texts.addStretch(1);
  m_warning.setFixedWidth(kTextWidth);
  m_layout.setContentsMargins(kSplashMargin, kSplashMargin, kSplashMargin, kSplashMargin);
  m_layout.setSpacing(kSplashMargin);
  m_layout.addWidget(&m_logo);
  m_layout.addLayout(&m_texts);
  setLayout(&m_layout);
}

void SplashWindow::mouseReleaseEvent(QMouseEvent*) {
  m_splash.Click();
}

void SplashWindow::keyReleaseEvent(QKeyEvent*) {
  // At its release, or that would reach the window that comes next.
  m_splash.Click();
}

}  // namespace dayvane::widgets
