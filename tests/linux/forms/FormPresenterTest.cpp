// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QWhatsThis>
#include <gmock/gmock.h>
#include <optional>

#include "controls/Deferred.h"
#include "linux/forms/FormPresenter.h"
#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using controls::WindowState;
using ::testing::ElementsAre;
using ::testing::Pair;

class FormPresenterTest : public ::testing::Test {
 protected:
  FormPresenterTest() : m_inside(new QWidget(&m_window)), m_presenter(m_form, m_window, *m_inside) {
    m_window.setCentralWidget(m_inside);
  }

  void Open() {
    m_form.SetVisible(true);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
  }

  void RefuseToGo() {
    m_form.QueryUnload.Connect([](bool& cancel, UnloadMode) { cancel = true; });
  }

  controls::Form m_form;
  QMainWindow m_window;
  QWidget* m_inside;
  FormPresenter m_presenter;
};

TEST_F(FormPresenterTest, AFormIsHiddenUntilItIsMadeVisible) {
  EXPECT_FALSE(m_window.isVisible());

  m_form.SetVisible(true);
  EXPECT_TRUE(m_window.isVisible());

  m_form.SetVisible(false);
  EXPECT_FALSE(m_window.isVisible());
}

TEST_F(FormPresenterTest, TheCaptionIsTheWindowsTitle) {
  m_form.SetCaption("Dayvane - Daily");

  EXPECT_EQ(m_window.windowTitle(), "Dayvane - Daily");
}

TEST_F(FormPresenterTest, TheWindowOpensWhereTheFormSays) {
  MoveControl(m_form, {50, 60, 320, 240}, m_window);

  Open();

  EXPECT_EQ(QRect(m_window.pos(), m_window.size()), QRect(50, 60, 320, 240));
}

TEST_F(FormPresenterTest, AFormLargerThanTheScreenIsMadeToFit) {
  MoveControl(m_form, {0, 0, 5000, 5000}, m_window);

  const QRect fitted = PixelRect(m_form, m_window);

  EXPECT_EQ(fitted.size(), m_window.size());
  EXPECT_LT(fitted.width(), 5000);
}

TEST_F(FormPresenterTest, AWindowThatTheUserMovesIsMovedInTheForm) {
  Open();

  m_window.resize(333, 222);
  m_window.move(44, 55);

  EXPECT_TRUE(QTest::qWaitFor([&] { return PixelRect(m_form, m_window) == QRect(44, 55, 333, 222); }));
}

TEST_F(FormPresenterTest, TheScaleIsTheRoomInsideTheWindow) {
  m_window.menuBar()->addMenu("Menu");
  Open();

  m_window.resize(400, 300);
  QCoreApplication::processEvents();

  EXPECT_EQ(m_form.ScaleWidth(), ToTwips(400, m_window));
  EXPECT_EQ(m_form.ScaleHeight(), ToTwips(m_inside->height(), m_window));
  EXPECT_LT(m_inside->height(), 300);
}

TEST_F(FormPresenterTest, AMaximisedFormKeepsItsNormalPlace) {
  MoveControl(m_form, {50, 60, 320, 240}, m_window);
  Open();

  m_form.SetState(WindowState::Maximised);
  QTest::qWait(300);

  EXPECT_TRUE(m_window.isMaximized());
  EXPECT_EQ(PixelRect(m_form, m_window), QRect(50, 60, 320, 240));
}

TEST_F(FormPresenterTest, MaximisingByTheUserIsTheFormsState) {
  Open();

  m_window.showMaximized();

  EXPECT_TRUE(QTest::qWaitFor([&] { return m_form.State() == WindowState::Maximised; }));
}

TEST_F(FormPresenterTest, AFormMayHideWhenItIsMinimised) {
  Open();
  m_form.Resize.Connect([&] {
    if (m_form.State() != WindowState::Minimised) return;
    m_form.SetVisible(false);
    m_form.SetState(WindowState::Normal);
  });

  m_window.showMinimized();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !m_form.Visible(); }));
  m_form.SetVisible(true);

  EXPECT_TRUE(m_window.isVisible());
  EXPECT_FALSE(m_window.isMinimized());
}

TEST_F(FormPresenterTest, ACloseThatIsRefusedLeavesTheWindow) {
  Open();
  std::vector<UnloadMode> modes;
  m_form.QueryUnload.Connect([&](bool& cancel, UnloadMode mode) {
    modes.push_back(mode);
    cancel = true;
  });

  m_window.close();

  EXPECT_TRUE(m_window.isVisible());
  EXPECT_THAT(modes, ElementsAre(UnloadMode::ControlMenu));
}

TEST_F(FormPresenterTest, AClosedWindowIsAFormThatIsGone) {
  Open();

  m_window.close();

  EXPECT_FALSE(m_window.isVisible());
  EXPECT_TRUE(m_form.IsUnloaded());
}

TEST_F(FormPresenterTest, TheEndOfTheSessionIsToldAsSuch) {
  Open();
  std::vector<UnloadMode> modes;
  m_form.QueryUnload.Connect([&](bool&, UnloadMode mode) { modes.push_back(mode); });

  m_presenter.EndSession();

  EXPECT_THAT(modes, ElementsAre(UnloadMode::SystemSession));
}

TEST_F(FormPresenterTest, TheHourglassIsOverTheWholeProgram) {
  m_form.SetPointer(controls::MousePointer::Hourglass);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);

  m_form.SetPointer(controls::MousePointer::Default);

  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FormPresenterTest, TheFormIsToldWhenItIsActivated) {
  int activations = 0;
  m_form.Activate.Connect([&] { ++activations; });

  Open();

  EXPECT_EQ(activations, 1);
}

TEST_F(FormPresenterTest, AReleasedKeyIsHeard) {
  Open();
  std::vector<std::pair<int, int>> keys;
  m_form.KeyUp.Connect([&](int key, int modifiers) { keys.emplace_back(key, modifiers); });

  QTest::keyClick(&m_window, Qt::Key_F1);

  EXPECT_THAT(keys, ElementsAre(Pair(112, 0)));
}

TEST_F(FormPresenterTest, AModalFormReturnsWhenItHides) {
  QTimer::singleShot(0, [&] { m_form.SetVisible(false); });

  m_presenter.ShowModal();

  EXPECT_FALSE(m_window.isVisible());
}

TEST(FormPresenter, EscapeInADialogAsksItsFormToGo) {
  controls::Form form;
  QDialog dialog;
  const FormPresenter presenter(form, dialog, dialog);
  form.SetVisible(true);

  QTest::keyClick(&dialog, Qt::Key_Escape);

  EXPECT_TRUE(form.IsUnloaded());
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FormPresenterTest, ClosingInTheMiddleOfWorkDoesNothing) {
  Open();
  const controls::WorkScope work;

  EXPECT_FALSE(m_window.close());
  EXPECT_FALSE(m_form.IsUnloaded());
}

TEST_F(FormPresenterTest, TheSessionsEndWaitsForTheEndOfTheWork) {
  Open();
  std::optional<controls::WorkScope> work(std::in_place);
  m_presenter.EndSession();
  EXPECT_FALSE(m_form.IsUnloaded());

  work.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_form.IsUnloaded(); }));
}

TEST_F(FormPresenterTest, TheSessionsEndClosesWhatIsStillAsked) {
  Open();
  QMessageBox box(QMessageBox::Question, "Dayvane", "Remove?", QMessageBox::Yes | QMessageBox::No);
  bool wasAsking = true;
  m_form.Unload.Connect([&] { wasAsking = controls::IsAsking(); });
  {
    const controls::QuestionScope question;
    QTimer::singleShot(0, &m_presenter, [this] { m_presenter.EndSession(); });
    EXPECT_EQ(box.exec(), QMessageBox::No);
    EXPECT_FALSE(m_form.IsUnloaded());
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_form.IsUnloaded(); }));
  EXPECT_FALSE(wasAsking);
}

TEST_F(FormPresenterTest, ShiftF1ExplainsTheControlWithTheKeyboard) {
  QWidget control(m_inside);
  control.setProperty("helpContextId", 25);
  control.setFocusPolicy(Qt::StrongFocus);
  Open();
  control.setFocus();
  std::vector<int> topics;
  m_presenter.SetTopicHelp([&](int id, QPoint) { topics.push_back(id); });

  QTest::keyClick(&control, Qt::Key_F1, Qt::ShiftModifier);

  EXPECT_THAT(topics, ElementsAre(25));
}

TEST_F(FormPresenterTest, ShiftF1OnAControlWithoutHelpAsksForAnother) {
  Open();

  QTest::keyClick(&m_window, Qt::Key_F1, Qt::ShiftModifier);

  EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
  QWhatsThis::leaveWhatsThisMode();
}

TEST_F(FormPresenterTest, AClickInWhatsThisModeShowsTheControlsTopic) {
  QWidget control(m_inside);
  control.setProperty("helpContextId", 25);
  control.setGeometry(0, 0, 100, 100);
  Open();
  std::vector<int> topics;
  m_presenter.SetTopicHelp([&](int id, QPoint) { topics.push_back(id); });

  m_form.WhatsThisMode();
  QTest::mouseClick(&control, Qt::LeftButton, {}, {50, 50});

  EXPECT_THAT(topics, ElementsAre(25));
  EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
}

TEST_F(FormPresenterTest, TheHourglassOfAPollThatIsOverInAMomentIsNeverSeen) {
  {
    const controls::BackgroundScope poll;
    m_form.SetPointer(controls::MousePointer::Hourglass);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    m_form.SetPointer(controls::MousePointer::Default);
  }
  QTest::qWait(200);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FormPresenterTest, TheHourglassOfAPollThatLastsIsSeen) {
  const controls::BackgroundScope poll;
  m_form.SetPointer(controls::MousePointer::Hourglass);
  EXPECT_TRUE(QTest::qWaitFor([] { return QGuiApplication::overrideCursor() != nullptr; }));
  m_form.SetPointer(controls::MousePointer::Default);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace dayvane::widgets
