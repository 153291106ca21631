// SPDX-License-Identifier: MIT
#include "windows/forms/AboutBox.h"

#include <algorithm>
#include <utility>

#include "resources/MResourceConstants.h"
#include "windows/forms/ScreenFit.h"
#include "windows/widgets/Lengths.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kPicture = 64;
constexpr int kMargin = 16;
constexpr int kWidthOfText = 340;
constexpr int kGapBetweenLines = 4;
constexpr int kGapBetweenGroups = 12;

constexpr double kSizeOfTitle = 1.8;  ///< in the usual text's

constexpr const wchar_t* kLinkClass = L"SysLink";  // WC_LINK, for which the header asks for another one

const wchar_t* LinkClass() {
  static const bool isThere = [] {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LINK_CLASS};
    return InitCommonControlsEx(&classes) != FALSE;
  }();
  return isThere ? kLinkClass : WC_STATICW;
}

void PlaceChild(const ChildWindow& child, POINT corner, SIZE size) {
  SetWindowPos(child.Handle(), nullptr, corner.x, corner.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

AboutBox::Link::Link(controls::Label& control, std::string address, HWND parent, const SharedLook& look)
    : ChildWindow(control, {.className = LinkClass(), .style = WS_TABSTOP}, parent, look),
      m_control(control),
      m_address(std::move(address)) {
  Show();
}

SIZE AboutBox::Link::IdealSize() const {
  return TextSize(CurrentLook()->TextFont(), ShownText(m_control.Caption()).c_str());
}

void AboutBox::Link::ShowControl() {
  SetText(Handle(), "<a>" + m_control.Caption() + "</a>");
}

std::optional<LRESULT> AboutBox::Link::OnNotify(NMHDR& notice) {
  if (notice.code != static_cast<UINT>(NM_CLICK) && notice.code != static_cast<UINT>(NM_RETURN)) return std::nullopt;
  const HWND owner = GetAncestor(Handle(), GA_ROOT);
  const HINSTANCE result = ShellExecuteW(owner, L"open", ShownText(m_address).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  constexpr INT_PTR kGreatestError = 32;  // documentation of ShellExecute
  if (reinterpret_cast<INT_PTR>(result) <= kGreatestError) MessageBeep(MB_OK);
  return 0;
}

AboutBox::AboutBox(const platform::About& about, HWND owner)
    : TopWindow({.className = L"Dayvane.About",
                 .style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN,
                 .extendedStyle = WS_EX_DLGMODALFRAME,
                 .parent = owner}),
      m_title(m_titleText, Handle(), CurrentLook(), kSizeOfTitle),
      m_version(m_versionText, Handle(), CurrentLook()),
      m_company(m_companyText, Handle(), CurrentLook()),
      m_copyright(m_copyrightText, Handle(), CurrentLook()),
      m_warning(m_warningText, Handle(), CurrentLook()),
      m_link(m_linkText, about.homePage, Handle(), CurrentLook()),
      m_ok(m_okCommand, Handle(), CurrentLook()),
      m_presenter(m_form, *this, Handle()) {
  FillIn(about);
  SetWindowLongPtrW(m_ok.Handle(), GWLP_ID, IDOK);
  SendMessageW(m_ok.Handle(), BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
  m_presenter.SetFirstFocus(m_ok.Handle());
  m_okCommand.Click.Connect([this] { m_form.SetVisible(false); });
  m_form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode) {
    cancel = true;
    m_form.SetVisible(false);
  });
  m_isReady = true;
  FitAround(LayOut());
}

void AboutBox::FillIn(const platform::About& about) {
  m_form.SetCaption("About " + about.title);
  m_titleText.SetCaption(about.title);
  m_versionText.SetCaption(about.version);
  m_companyText.SetCaption(about.company);
  m_copyrightText.SetCaption(about.copyright);
  m_warningText.SetCaption(about.warning);
  m_linkText.SetCaption(about.homePage);
  m_okCommand.SetCaption("OK");
  m_texts.Add(m_title, 0);
  m_texts.Add(m_version, kGapBetweenLines);
  m_texts.Add(m_company, kGapBetweenGroups);
  m_texts.Add(m_copyright, kGapBetweenLines);
  m_texts.Add(m_warning, kGapBetweenGroups);
}

SIZE AboutBox::LayOut() {
  const Look& look = *CurrentLook();
  const int margin = look.Pixels(kMargin);
  const int picture = look.Pixels(kPicture);
  const int width = look.Pixels(kWidthOfText);
  m_picture = PictureIcon(kNormalIcon, picture);
  m_picturePlace = {margin, margin, margin + picture, margin + picture};
  const POINT corner{2 * margin + picture, margin};
  m_texts.Place(corner, width, look);
  LONG top = corner.y + m_texts.SizeWithin(width, look).cy + look.Pixels(kGapBetweenGroups);
  const SIZE link = m_link.IdealSize();
  PlaceChild(m_link, {corner.x, top}, {std::min<LONG>(link.cx + margin, width), link.cy});
  top += link.cy + margin;
  const SIZE button = m_ok.IdealSize();
  PlaceChild(m_ok, {corner.x + width - button.cx, top}, button);
  return {corner.x + width + margin, top + button.cy + margin};
}

void AboutBox::FitAround(SIZE inside) {
  const UINT dpi = CurrentLook()->Dpi();
  RECT frame{0, 0, inside.cx, inside.cy};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(Handle(), GWL_EXSTYLE)), dpi);
  const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
  RECT around = AvailableScreenAt({0, 0});
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  if (owner != nullptr && IsWindowVisible(owner) != 0 && IsIconic(owner) == 0) GetWindowRect(owner, &around);
  MoveControl(m_form, CentredIn(around, size), dpi);
}

void AboutBox::LookChanged() {
  const SharedLook& look = CurrentLook();
  m_texts.SetLook(look);
  m_link.SetLook(look);
  m_ok.SetLook(look);
  FitAround(LayOut());
  InvalidateRect(Handle(), nullptr, TRUE);
}

void AboutBox::Paint() {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(Handle(), &paint);
  if (context == nullptr) return;
  if (m_picture != nullptr)
    DrawIconEx(context, m_picturePlace.left, m_picturePlace.top, m_picture.get(),
               m_picturePlace.right - m_picturePlace.left, m_picturePlace.bottom - m_picturePlace.top, 0, nullptr,
               DI_NORMAL);
  EndPaint(Handle(), &paint);
}

LRESULT AboutBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return TopWindow::OnMessage(message, wParam, lParam);
  if (message == WM_PAINT) return Paint(), 0;
  if (message == DM_GETDEFID) return MAKELRESULT(IDOK, DC_HASDEFID);
  if (const auto answer = m_presenter.OnMessage(message, wParam, lParam)) return *answer;
  return TopWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
