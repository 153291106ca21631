// SPDX-License-Identifier: MIT
#pragma once

#include "windows/forms/FormPresenter.h"
#include "windows/forms/TextColumn.h"

namespace dayvane {
class FSplash;
}

namespace dayvane::widgets {

/// The splash window, in the middle of the screen. FSplash must outlive it.
class SplashWindow : public TopWindow {
 public:
  explicit SplashWindow(FSplash& splash);
  ~SplashWindow() override { m_isReady = false; }

  FormPresenter& Presenter() { return m_form; }

 protected:
  void LookChanged() override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  SIZE LayOut();
  void Paint();

  bool m_isReady = false;
  FSplash& m_splash;
  TextPresenter m_product;
  TextPresenter m_version;
  TextPresenter m_company;
  TextPresenter m_copyright;
  TextPresenter m_warning;
  TextColumn m_texts;
  Icon m_logo;
  RECT m_logoPlace{};
  FormPresenter m_form;
};

}  // namespace dayvane::widgets
