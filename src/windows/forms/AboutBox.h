// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "controls/SimpleControls.h"
#include "platform/Windowing.h"
#include "windows/forms/DialogWindow.h"
#include "windows/forms/TextColumn.h"

namespace dayvane::widgets {

/// What an about box shows; made before its window.
struct AboutState {
  controls::Form form;
  controls::Label title, version, company, copyright, warning, link;
  controls::Button ok;
};

/// What the program is and whose, with a link to its home page.
class AboutBox : private AboutState, public DialogWindow {
 public:
  /// `owner` may be nullptr.
  AboutBox(const platform::About& about, HWND owner);
  ~AboutBox() override { End(); }

 protected:
  void RelayLook() override;
  SIZE LayOut() override;
  void Paint(HDC context) override;

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

  TextPresenter m_title, m_version, m_company, m_copyright, m_warning;
  Link m_link;
  ButtonPresenter m_ok;
  TextColumn m_texts;
  Icon m_picture;
  RECT m_picturePlace{};
};

}  // namespace dayvane::widgets
