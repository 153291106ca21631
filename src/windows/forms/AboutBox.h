// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/SimpleControls.h"
#include "platform/Windowing.h"
#include "windows/forms/FormPresenter.h"
#include "windows/forms/TextColumn.h"
#include "windows/widgets/ButtonPresenter.h"

namespace dayvane::widgets {

/// What the program is and whose, with a link to its home page.
class AboutBox : public TopWindow {
 public:
  /// `owner` may be nullptr.
  AboutBox(const platform::About& about, HWND owner);
  ~AboutBox() override { m_isReady = false; }

  FormPresenter& Presenter() { return m_presenter; }

 protected:
  void LookChanged() override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  /// A line of which a part can be followed by the mouse and the keyboard.
  class Link : public ChildWindow {
   public:
    Link(controls::Label& control, std::string address, HWND parent, const SharedLook& look);
    SIZE IdealSize() const;

   protected:
    void ShowControl() override;
    std::optional<LRESULT> OnNotify(NMHDR& notice) override;

   private:
    const controls::Label& m_control;
    std::string m_address;
  };

  void FillIn(const platform::About& about);
  SIZE LayOut();
  void FitAround(SIZE inside);
  void Paint();

  bool m_isReady = false;
  controls::Form m_form;
  controls::Label m_titleText, m_versionText, m_companyText, m_copyrightText, m_warningText, m_linkText;
  controls::Button m_okCommand;
  TextPresenter m_title, m_version, m_company, m_copyright, m_warning;
  Link m_link;
  ButtonPresenter m_ok;
  TextColumn m_texts;
  Icon m_picture;
  RECT m_picturePlace{};
  FormPresenter m_presenter;
};

}  // namespace dayvane::widgets
