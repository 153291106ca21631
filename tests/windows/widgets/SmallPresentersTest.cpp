// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "resources/MResourceConstants.h"
#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/ButtonPresenter.h"
#include "windows/widgets/LabelPresenter.h"
#include "windows/widgets/StatusBarPresenter.h"

namespace dayvane::widgets {
namespace {

/// The small controls, each in a window.
class SmallPresentersTest : public ::testing::Test {
 protected:
  TestWindow m_window;
};

TEST_F(SmallPresentersTest, ALabelShowsItsCaption) {
  controls::Label label;
  const LabelPresenter presenter(label, m_window.Handle(), m_window.CurrentLook());

  label.SetCaption("&Purge Age:");

  EXPECT_EQ(TextOf(presenter.Handle()), "&Purge Age:");
  EXPECT_EQ(SpokenCaption(label.Caption()), "Purge Age");
}

TEST_F(SmallPresentersTest, AButtonThatIsClickedIsPressed) {
  controls::Button button;
  const ButtonPresenter presenter(button, m_window.Handle(), m_window.CurrentLook());
  MoveWindow(presenter.Handle(), 10, 10, 80, 24, FALSE);
  int clicks = 0;
  button.Click.Connect([&] { ++clicks; });

  SendMessageW(presenter.Handle(), BM_CLICK, 0, 0);
  button.SetEnabled(false);
  SendMessageW(presenter.Handle(), BM_CLICK, 0, 0);

  EXPECT_EQ(clicks, 1);
}

TEST_F(SmallPresentersTest, ATextThatIsNotWellFormedIsShownWithWhatIs) {
  controls::Label label;
  const LabelPresenter presenter(label, m_window.Handle(), m_window.CurrentLook());

  label.SetCaption("Re\xFFport");

  EXPECT_EQ(TextOf(presenter.Handle()), "Re\xEF\xBF\xBDport");
}

class StatusBarPresenterTest : public SmallPresentersTest {
 protected:
  std::string Text() const {
    wchar_t text[256]{};
    SendMessageW(m_presenter.Handle(), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text));
    return files::FromWide(text).value_or("");
  }

  int Parts() const { return static_cast<int>(SendMessageW(m_presenter.Handle(), SB_GETPARTS, 0, 0)); }

  controls::StatusBar m_control;
  StatusBarPresenter m_presenter{m_control, m_window.Handle(), m_window.CurrentLook()};
};

TEST_F(StatusBarPresenterTest, TheTextIsTheControls) {
  m_control.SetText("12 objects");

  EXPECT_EQ(Text(), "12 objects");
}

TEST_F(StatusBarPresenterTest, APictureStandsBesideTheTextWhileThereIsOne) {
  m_control.SetText("12 objects");
  m_presenter.ShowPicture(kSuspendedPicture, "Suspended");
  EXPECT_EQ(Parts(), 2);
  EXPECT_NE(SendMessageW(m_presenter.Handle(), SB_GETICON, 1, 0), 0);
  EXPECT_EQ(Text(), "12 objects");

  m_presenter.ShowPicture(0, "");

  EXPECT_EQ(Parts(), 1);
}

}  // namespace
}  // namespace dayvane::widgets
