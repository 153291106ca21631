// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "linux/forms/FormPresenter.h"
#include "linux/widgets/LabelPresenter.h"

namespace dayvane {
class FSplash;
}

namespace dayvane::widgets {

/// The splash window, in the middle of the screen. FSplash must outlive it.
class SplashWindow : public QFrame {
 public:
  explicit SplashWindow(FSplash& splash);

  FormPresenter& Presenter() { return m_form; }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void LayOut();
  void SetFonts();

  FSplash& m_splash;
  QLabel m_logo;
  LabelPresenter m_product;
  LabelPresenter m_version;
  LabelPresenter m_company;
  LabelPresenter m_copyright;
  LabelPresenter m_warning;
  QHBoxLayout m_layout;  // before the layout in it, which it would delete
  QVBoxLayout m_texts;
  FormPresenter m_form;
};

}  // namespace dayvane::widgets
