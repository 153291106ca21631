// SPDX-License-Identifier: MIT
#include "windows/widgets/ToolbarPresenter.h"

#include "windows/forms/WhatsThis.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kButtonPicture = 24;
constexpr int kRoomAroundPicture = 4;
constexpr int kGroupGap = 10;
constexpr int kBarMargin = 3;
constexpr int kRuleHeight = 2;

bool BeginsGroup(std::size_t index) {
  return index != 0 && kToolbarRows[index].group != kToolbarRows[index - 1].group;
}

bool IsShown(std::size_t index) {
  return *kToolbarRows[index].tip != '\0';
}

}  // namespace

ToolbarPresenter::ToolbarPresenter(controls::PictureBox& strip, Buttons buttons, std::span<controls::Line> rules,
                                   HWND parent, const SharedLook& look)
    : Window({.className = L"Dayvane.Strip",
              .style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
              .extendedStyle = WS_EX_CONTROLPARENT,
              .parent = parent}),
      m_strip(strip),
      m_rules(rules),
      m_bar(strip, buttons, Handle(), look) {
  for (controls::Line& rule : rules)
    m_connections.push_back(rule.Changed.ConnectScoped([this] { InvalidateRect(Handle(), nullptr, TRUE); }));
  m_isReady = true;
}

int ToolbarPresenter::IdealHeight() const {
  return m_bar.CurrentLook()->Pixels(kButtonPicture + 2 * (kRoomAroundPicture + kBarMargin + kRuleHeight));
}

void ToolbarPresenter::SetLook(const SharedLook& look) {
  m_bar.SetLook(look);
}

LRESULT ToolbarPresenter::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return Window::OnMessage(message, wParam, lParam);
  if (message == WM_SIZE) {
    const int margin = m_bar.CurrentLook()->Pixels(kBarMargin + kRuleHeight);
    SetWindowPos(m_bar.Handle(), nullptr, margin, margin, std::max(0, LOWORD(lParam) - 2 * margin),
                 std::max(0, HIWORD(lParam) - 2 * margin), SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(Handle(), nullptr, TRUE);
  }
  if (message == WM_PAINT) {
    DrawRules();
    return 0;
  }
  return Window::OnMessage(message, wParam, lParam);
}

void ToolbarPresenter::DrawRules() {
  PAINTSTRUCT paint{};
  const HDC device = BeginPaint(Handle(), &paint);
  RECT room{};
  GetClientRect(Handle(), &room);
  for (std::size_t index = 0; index < m_rules.size(); ++index) {
    const LONG top = index == 0 ? 0 : room.bottom - kRuleHeight;
    RECT rule{0, top, ToPixels(m_rules[index].X2(), m_bar.CurrentLook()->Dpi()), top + kRuleHeight};
    DrawEdge(device, &rule, EDGE_ETCHED, BF_TOP);
  }
  EndPaint(Handle(), &paint);
}

ToolbarPresenter::Bar::Bar(controls::PictureBox& strip, Buttons buttons, HWND parent, const SharedLook& look)
    : ChildWindow(strip,
                  {.className = TOOLBARCLASSNAMEW,
                   .style = TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS | TBSTYLE_TRANSPARENT | CCS_NODIVIDER |
                            CCS_NORESIZE | CCS_NOPARENTALIGN | WS_TABSTOP},
                  parent, look),
      m_buttons(buttons) {
  SendMessageW(Handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  // With the text of a button as its tip, which screen readers read too.
  SendMessageW(Handle(), TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  ShowPictures();
  AddButtons();
  for (std::size_t index = 0; index < buttons.size(); ++index) {
    m_connections.push_back(buttons[index].Changed.ConnectScoped([this, index] { ShowButton(index); }));
    ShowButton(index);
  }
  SetSpokenName("Toolbar");
  m_isReady = true;
  Show();
}

void ToolbarPresenter::Bar::SetLook(const SharedLook& look) {
  ChildWindow::SetLook(look);
  ShowPictures();
}

void ToolbarPresenter::Bar::ShowPictures() {
  const Look& look = *CurrentLook();
  const int pixels = look.Pixels(kButtonPicture);
  const int room = pixels + 2 * look.Pixels(kRoomAroundPicture);
  ImageListHandle pictures(
      ImageList_Create(pixels, pixels, ILC_COLOR32 | ILC_MASK, static_cast<int>(kToolbarButtons), 0));
  for (const ToolbarRow& row : kToolbarRows) {
    const Icon icon = PictureIcon(row.picture != kNoPicture ? row.picture : kDefaultDocumentPicture, pixels);
    ImageList_ReplaceIcon(pictures.get(), -1, icon.get());
  }
  SendMessageW(Handle(), TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.get()));
  SendMessageW(Handle(), TB_SETBUTTONSIZE, 0, MAKELPARAM(room, room));
  m_pictures = std::move(pictures);  // the bar has had the old ones until now
}

void ToolbarPresenter::Bar::AddButtons() {
  for (std::size_t index = 0; index < kToolbarButtons; ++index) {
    if (!IsShown(index)) continue;
    const ToolbarRow& row = kToolbarRows[index];
    const std::wstring tip = ShownText(m_buttons[row.button].ToolTipText());
    TBBUTTON button{};
    if (BeginsGroup(index)) {
      button.fsStyle = BTNS_SEP;
      button.iBitmap = CurrentLook()->Pixels(kGroupGap);
      SendMessageW(Handle(), TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }
    button.fsStyle = BTNS_BUTTON;
    button.iBitmap = static_cast<int>(index);
    button.idCommand = CommandOf(row.button);
    button.iString = reinterpret_cast<INT_PTR>(tip.c_str());
    SendMessageW(Handle(), TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
  }
}

void ToolbarPresenter::Bar::ShowButton(std::size_t index) {
  const auto command = static_cast<WPARAM>(CommandOf(index));
  SendMessageW(Handle(), TB_ENABLEBUTTON, command, MAKELPARAM(m_buttons[index].Enabled() ? TRUE : FALSE, 0));
  SendMessageW(Handle(), TB_HIDEBUTTON, command, MAKELPARAM(m_buttons[index].Visible() ? FALSE : TRUE, 0));
}

std::optional<LRESULT> ToolbarPresenter::Bar::OnCommandOf(UINT id, UINT /*code*/) {
  if (id == 0 || id > kToolbarButtons) return std::nullopt;
  Press(id - 1);
  return 0;
}

void ToolbarPresenter::Bar::Press(std::size_t index) {
  m_deferred.AfterWorkAndQuestions([this, index] { m_buttons[index].Press(); });
}

LRESULT ToolbarPresenter::Bar::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return ChildWindow::OnMessage(message, wParam, lParam);
  if (message == HelpIdAtMessage()) return HelpIdAt(*reinterpret_cast<const POINT*>(lParam));
  if (message == WM_KEYDOWN && KeyDown(wParam)) return 0;
  const LRESULT answer = ChildWindow::OnMessage(message, wParam, lParam);
  if (message == WM_SETFOCUS) MoveHot(0, 1);
  if (message == WM_KILLFOCUS) SendMessageW(Handle(), TB_SETHOTITEM, static_cast<WPARAM>(-1), 0);
  return answer;
}

bool ToolbarPresenter::Bar::KeyDown(WPARAM key) {
  const auto hot = static_cast<int>(SendMessageW(Handle(), TB_GETHOTITEM, 0, 0));
  const auto count = static_cast<int>(SendMessageW(Handle(), TB_BUTTONCOUNT, 0, 0));
  switch (key) {
    case VK_LEFT:
      MoveHot(hot - 1, -1);
      return true;
    case VK_RIGHT:
      MoveHot(hot + 1, 1);
      return true;
    case VK_HOME:
      MoveHot(0, 1);
      return true;
    case VK_END:
      MoveHot(count - 1, -1);
      return true;
    case VK_RETURN:
    case VK_SPACE: {
      TBBUTTON button{};
      if (SendMessageW(Handle(), TB_GETBUTTON, static_cast<WPARAM>(hot), reinterpret_cast<LPARAM>(&button)) != 0 &&
          button.idCommand > 0)
        Press(static_cast<std::size_t>(button.idCommand) - 1);
      return true;
    }
    default:
      return false;
  }
}

void ToolbarPresenter::Bar::MoveHot(int first, int step) {
  const auto count = static_cast<int>(SendMessageW(Handle(), TB_BUTTONCOUNT, 0, 0));
  for (int place = first; place >= 0 && place < count; place += step) {
    TBBUTTON button{};
    SendMessageW(Handle(), TB_GETBUTTON, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&button));
    if ((button.fsStyle & BTNS_SEP) != 0 || (button.fsState & TBSTATE_ENABLED) == 0) continue;
    SendMessageW(Handle(), TB_SETHOTITEM, static_cast<WPARAM>(place), 0);
    return;
  }
}

int ToolbarPresenter::Bar::HelpIdAt(POINT screen) const {
  ScreenToClient(Handle(), &screen);
  const auto place = static_cast<int>(SendMessageW(Handle(), TB_HITTEST, 0, reinterpret_cast<LPARAM>(&screen)));
  TBBUTTON button{};
  if (place < 0 ||
      SendMessageW(Handle(), TB_GETBUTTON, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&button)) == 0)
    return 0;
  return button.idCommand > 0 ? m_buttons[static_cast<std::size_t>(button.idCommand) - 1].WhatsThisHelpID() : 0;
}

}  // namespace dayvane::widgets
