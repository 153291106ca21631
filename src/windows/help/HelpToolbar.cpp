// SPDX-License-Identifier: MIT
#include "windows/help/HelpToolbar.h"

#include <array>
#include <utility>

#include "resources/MResourceConstants.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::help {

namespace {

constexpr int kIconSide = 20;  ///< pixels at 96 dots per inch

/// The icons are drawn in these sizes; any other would be blurred.
int DrawnSide(int wanted) {
  int side = 16;
  for (const int drawn : {20, 24, 32, 40, 48, 64})
    if (drawn <= wanted + 2) side = drawn;
  return side;
}

struct ToolbarButton {
  HelpCommand command{};
  int icon = 0;
  const wchar_t* text = nullptr;  ///< its name for screen readers, which appears when the pointer rests on it
  bool beginsGroup = false;
};

constexpr std::array<ToolbarButton, 8> kButtons{{
    {HelpCommand::Back, 300, L"Back (Alt+Left)"},
    {HelpCommand::Forward, 301, L"Forward (Alt+Right)"},
    {HelpCommand::FirstPage, 302, L"First Page (Alt+Home)"},
    {HelpCommand::LargerText, 304, L"Larger Text (Ctrl++)", true},
    {HelpCommand::SmallerText, 305, L"Smaller Text (Ctrl+-)"},
    {HelpCommand::NormalText, 306, L"Normal Text (Ctrl+0)"},
    {HelpCommand::Search, 303, L"Search All Topics (Ctrl+K)", true},
    {HelpCommand::Find, kFindDocumentPicture, L"Find in Page (Ctrl+F)"},
}};

}  // namespace

HelpToolbar::HelpToolbar(HWND parent, const widgets::SharedLook& look)
    : HelpPart({TOOLBARCLASSNAMEW, WS_VISIBLE | WS_TABSTOP | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS |
                                       CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN},
               parent, look) {
  SetSpokenName("Navigation");
  Send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
  // A text that has no room beside its picture is shown when the pointer rests on it.
  Send(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  DrawImages();
  AddButtons();
}

void HelpToolbar::AddButtons() const {
  int image = 0;
  for (const ToolbarButton& row : kButtons) {
    if (row.beginsGroup) {
      TBBUTTON separator{};
      separator.fsStyle = BTNS_SEP;
      Send(TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&separator));
    }
    TBBUTTON button{};
    button.iBitmap = image++;
    button.idCommand = static_cast<int>(row.command);
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
    button.iString = reinterpret_cast<INT_PTR>(row.text);
    Send(TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
  }
}

void HelpToolbar::DrawImages() {
  const int side = DrawnSide(CurrentLook()->Pixels(kIconSide));
  widgets::ImageListHandle images(
      ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, static_cast<int>(kButtons.size()), 0));
  for (const ToolbarButton& row : kButtons) {
    const widgets::Icon icon = widgets::PictureIcon(row.icon, side);
    ImageList_ReplaceIcon(images.get(), -1, icon.get());
  }
  Send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
  m_images = std::move(images);  // last: the window uses the old ones until it has these
}

void HelpToolbar::Enable(HelpCommand command, bool enabled) const {
  Send(TB_ENABLEBUTTON, static_cast<WPARAM>(command), MAKELPARAM(enabled ? TRUE : FALSE, 0));
}

int HelpToolbar::WantedHeight() const {
  return HIWORD(Send(TB_GETBUTTONSIZE)) + CurrentLook()->Pixels(4);
}

void HelpToolbar::SetLook(const widgets::SharedLook& look) {
  HelpPart::SetLook(look);
  DrawImages();
  Send(TB_AUTOSIZE);
}

}  // namespace dayvane::help
