// SPDX-License-Identifier: MIT
#include "windows/forms/AboutBox.h"

#include <algorithm>
#include <utility>

#include "resources/MResourceConstants.h"
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
    : DialogWindow(AboutState::form, L"Dayvane.About", owner),
      m_title(title, Handle(), CurrentLook(), kSizeOfTitle),
      m_version(version, Handle(), CurrentLook()),
      m_company(company, Handle(), CurrentLook()),
      m_copyright(copyright, Handle(), CurrentLook()),
      m_warning(warning, Handle(), CurrentLook()),
      m_link(link, about.homePage, Handle(), CurrentLook()),
      m_ok(ok, Handle(), CurrentLook()) {
  FillIn(about);
  Number(m_ok, IDOK);
  Presenter().SetFirstFocus(m_ok.Handle());
  ok.Click.Connect([this] { form.SetVisible(false); });
  form.QueryUnload.Connect([this](bool& cancel, controls::UnloadMode) {
    cancel = true;
    form.SetVisible(false);
  });
  Begin();
}

void AboutBox::FillIn(const platform::About& about) {
  form.SetCaption("About " + about.title);
  title.SetCaption(about.title);
  version.SetCaption(about.version);
  company.SetCaption(about.company);
  copyright.SetCaption(about.copyright);
  warning.SetCaption(about.warning);
  link.SetCaption(about.homePage);
  ok.SetCaption("OK");
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
  const SIZE line = m_link.IdealSize();
  PlaceChild(m_link, {corner.x, top}, {std::min<LONG>(line.cx + margin, width), line.cy});
  top += line.cy + margin;
  const SIZE button = m_ok.IdealSize();
  PlaceChild(m_ok, {corner.x + width - button.cx, top}, button);
  return {corner.x + width + margin, top + button.cy + margin};
}

void AboutBox::RelayLook() {
  m_texts.SetLook(CurrentLook());
  m_link.SetLook(CurrentLook());
  m_ok.SetLook(CurrentLook());
}

void AboutBox::Paint(HDC context) {
  if (m_picture == nullptr) return;
  DrawIconEx(context, m_picturePlace.left, m_picturePlace.top, m_picture.get(),
             m_picturePlace.right - m_picturePlace.left, m_picturePlace.bottom - m_picturePlace.top, 0, nullptr,
             DI_NORMAL);
}

}  // namespace dayvane::widgets
