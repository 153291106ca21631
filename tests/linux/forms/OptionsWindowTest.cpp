// SPDX-License-Identifier: MIT
#include <QDialogButtonBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QWhatsThis>
#include <gmock/gmock.h>

#include "linux/forms/OptionsWindow.h"
#include "settings/FOptions.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::widgets {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The options dialog with 3 days, 30 days and 60 seconds in it, on the screen.
class OptionsWindowTest : public ::testing::Test {
 protected:
  OptionsWindowTest() {
    m_options.SetFavoritesThreshold(3);
    m_options.SetPurgeAge(30);
    m_options.SetTimerInterval(60);
    m_options.form.SetVisible(true);
    (void)QTest::qWaitForWindowActive(&m_window);
  }

  template <class Widget>
  Widget& Find(const QString& name) {
    for (Widget* widget : m_window.findChildren<Widget*>())
      if (widget->accessibleName() == name || widget->property("text").toString() == name) return *widget;
    throw std::runtime_error(name.toStdString());
  }

  NumberFieldPresenter& Threshold() {
    return Find<NumberFieldPresenter>(QStringLiteral("Favorites Threshold (1 or more days accessed)"));
  }
  NumberFieldPresenter& PurgeAge() { return Find<NumberFieldPresenter>(QStringLiteral("Purge Age (1 or more days)")); }
  NumberFieldPresenter& Interval() {
    return Find<NumberFieldPresenter>(QStringLiteral("Timer Interval (1 to 60 seconds)"));
  }

  void Press(const QString& button) {
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
    QCoreApplication::processEvents();
  }

  testing::TestDesktop m_desktop;
  Application m_application{m_desktop.desktop, m_desktop.Folder()};
  FOptions m_options{m_application};
  QWidget m_owner;
  OptionsWindow m_window{m_options, &m_owner};
};

TEST_F(OptionsWindowTest, TheFieldsShowTheValues) {
  EXPECT_EQ(Threshold().text(), "3");
  EXPECT_EQ(PurgeAge().text(), "30");
  EXPECT_EQ(Interval().text(), "60");
}

TEST_F(OptionsWindowTest, TheTitleNamesTheProgram) {
  EXPECT_EQ(m_window.windowTitle(), "Dayvane Options");
}

TEST_F(OptionsWindowTest, TheFirstFieldHasTheKeyboardWithItsTextSelected) {
  EXPECT_TRUE(Threshold().hasFocus());
  EXPECT_EQ(Threshold().findChild<QLineEdit*>()->selectedText(), "3");
}

TEST_F(OptionsWindowTest, TypingReplacesTheValue) {
  QTest::keyClicks(&Threshold(), "12");

  EXPECT_EQ(m_options.FavoritesThreshold(), 12);
}

TEST_F(OptionsWindowTest, AccessKeysGoToTheFields) {
  QTest::keyClick(&m_window, Qt::Key_T, Qt::AltModifier);
  EXPECT_TRUE(Interval().hasFocus());
  EXPECT_EQ(Interval().findChild<QLineEdit*>()->selectedText(), "60");

  QTest::keyClick(&m_window, Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(PurgeAge().hasFocus());
}

TEST_F(OptionsWindowTest, ALetterIsRefusedWithTheFieldsMessage) {
  QTest::keyClick(&Threshold(), Qt::Key_X);

  EXPECT_EQ(Threshold().text(), "3");
  EXPECT_THAT(m_desktop.windowing.Texts(), ElementsAre("The Favorites Threshhold must be 1 or more."));
}

TEST_F(OptionsWindowTest, ALetterOfAnInputMethodIsRefusedToo) {
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("x"));

  QCoreApplication::sendEvent(&Threshold(), &event);

  EXPECT_EQ(Threshold().text(), "3");
  EXPECT_EQ(m_desktop.windowing.beeps, 1);
}

TEST_F(OptionsWindowTest, BackspaceAndPastingAreLetThrough) {
  QTest::keyClick(&Threshold(), Qt::Key_Backspace);
  EXPECT_EQ(Threshold().text(), "");

  Threshold().findChild<QLineEdit*>()->insert(QStringLiteral("7"));
  EXPECT_EQ(m_options.FavoritesThreshold(), 7);
  EXPECT_THAT(m_desktop.windowing.Texts(), IsEmpty());
}

TEST_F(OptionsWindowTest, TheArrowsCountByOne) {
  QTest::keyClick(&Threshold(), Qt::Key_Up);
  EXPECT_EQ(Threshold().text(), "4");

  QTest::keyClick(&Threshold(), Qt::Key_Down);
  QTest::keyClick(&Threshold(), Qt::Key_Down);
  EXPECT_EQ(Threshold().text(), "2");
}

TEST_F(OptionsWindowTest, TheArrowsBeepAtTheEnd) {
  QTest::keyClick(&Interval(), Qt::Key_Up);

  EXPECT_EQ(Interval().text(), "60");
  EXPECT_EQ(m_desktop.windowing.beeps, 1);
}

TEST_F(OptionsWindowTest, APageOfStepsBeepsOnceAtTheEnd) {
  QTest::keyClick(&Threshold(), Qt::Key_PageDown);

  EXPECT_EQ(Threshold().text(), "1");
  EXPECT_EQ(m_desktop.windowing.beeps, 1);
}

TEST_F(OptionsWindowTest, AScreenReaderReadsAndSetsTheNumber) {
  EXPECT_EQ(Interval().property("value").toInt(), 60);

  Interval().setProperty("value", 15);

  EXPECT_EQ(m_options.TimerInterval(), 15);
  EXPECT_EQ(Interval().text(), "15");
}

TEST_F(OptionsWindowTest, OkHidesItWhenAllIsInRange) {
  Press(QStringLiteral("OK"));

  EXPECT_FALSE(m_window.isVisible());
}

TEST_F(OptionsWindowTest, AValueOutOfRangeGetsTheKeyboard) {
  m_options.SetTimerInterval(61);

  QTest::keyClick(&m_window, Qt::Key_Return);
  QCoreApplication::processEvents();

  EXPECT_TRUE(m_window.isVisible());
  EXPECT_TRUE(Interval().hasFocus());
  EXPECT_THAT(m_desktop.windowing.Texts(), ElementsAre("The Timer Interval must be between 1 and 60."));
}

TEST_F(OptionsWindowTest, EscapeAndTheCloseBoxHideIt) {
  QTest::keyClick(&m_window, Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(m_options.form.Visible());

  m_options.form.SetVisible(true);
  m_window.close();
  EXPECT_FALSE(m_options.form.Visible());
  EXPECT_FALSE(m_options.form.IsUnloaded());
}

TEST_F(OptionsWindowTest, HelpAndF1OpenItsTopic) {
  Press(QStringLiteral("&Help"));
  QTest::keyClick(&PurgeAge(), Qt::Key_F1);

  EXPECT_THAT(m_desktop.help.shown,
              ElementsAre(m_desktop.Folder() + "\\Dayvane.hlp|1|11", m_desktop.Folder() + "\\Dayvane.hlp|1|11"));
}

TEST_F(OptionsWindowTest, ItsOwnButtonAsksWhatAFieldIs) {
  std::vector<int> topics;
  m_window.Presenter().SetTopicHelp([&](int id, QPoint) { topics.push_back(id); });

  QTest::mouseClick(&Find<QToolButton>(QStringLiteral("What's This Help")), Qt::LeftButton);
  EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
  QTest::mouseClick(&PurgeAge(), Qt::LeftButton);
  QTest::keyClick(&Interval(), Qt::Key_F1, Qt::ShiftModifier);

  EXPECT_THAT(topics, Contains(22));
}

TEST_F(OptionsWindowTest, ShiftF1ExplainsTheFieldWithTheKeyboard) {
  std::vector<int> topics;
  m_window.Presenter().SetTopicHelp([&](int id, QPoint) { topics.push_back(id); });

  Interval().setFocus();
  QTest::keyClick(&Interval(), Qt::Key_F1, Qt::ShiftModifier);

  EXPECT_THAT(topics, ElementsAre(6));
  EXPECT_THAT(m_desktop.help.shown, IsEmpty());
}

TEST_F(OptionsWindowTest, ShiftF1OnAButtonAsksForAClickAndOpensNoHelpWindow) {
  Find<QPushButton>(QStringLiteral("OK")).setFocus();
  QTest::keyClick(&Find<QPushButton>(QStringLiteral("OK")), Qt::Key_F1, Qt::ShiftModifier);

  EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
  EXPECT_THAT(m_desktop.help.shown, IsEmpty());
  QWhatsThis::leaveWhatsThisMode();
}

TEST_F(OptionsWindowTest, ALabelIsExplainedLikeItsField) {
  for (const QLabel* label : m_window.findChildren<QLabel*>())
    EXPECT_EQ(label->property("helpContextId"), label->buddy()->property("helpContextId"));
}

TEST_F(OptionsWindowTest, TheFieldsHaveRoomForLargeNumbers) {
  m_options.SetPurgeAge(36500);
  const QLineEdit& edit = *PurgeAge().findChild<QLineEdit*>();

  EXPECT_GT(edit.width(), edit.fontMetrics().horizontalAdvance(QStringLiteral("36500")));
}

}  // namespace
}  // namespace dayvane::widgets
