// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>

#include "controls/Deferred.h"
#include "linux/LinuxWindowing.h"
#include "linux/forms/FormPresenter.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using platform::Message;
using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;
using ::testing::ElementsAre;

class LinuxWindowingTest : public ::testing::Test {
 protected:
  LinuxWindowingTest() { m_windowing.Register(m_presenter); }
  ~LinuxWindowingTest() override { m_windowing.Forget(m_presenter); }

  /// Calls back with the message box that is open then.
  static void WhenAsked(const std::function<void(QMessageBox&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      act(*box);
    });
  }

  LinuxWindowing m_windowing;
  controls::Form m_form;
  QWidget m_window;
  FormPresenter m_presenter{m_form, m_window, m_window};
};

TEST_F(LinuxWindowingTest, AMessageShowsItsLinesIconAndTitle) {
  QString text;
  QString title;
  QImage picture;
  WhenAsked([&](QMessageBox& box) {
    text = box.text();
    title = box.windowTitle();
    picture = box.iconPixmap().toImage();
    box.accept();
  });

  const auto answer = m_windowing.ShowMessage({"One\r\nTwo", "Dayvane", MessageButtons::Ok, MessageIcon::Information});

  EXPECT_EQ(answer, MessageAnswer::Ok);
  EXPECT_EQ(text, "One\nTwo");
  EXPECT_EQ(title, "Dayvane");
  EXPECT_EQ(picture, PictureIcon(kInformationPicture).pixmap(48).toImage());
}

TEST_F(LinuxWindowingTest, AQuestionHasAPictureOfItsOwnAndPlainButtons) {
  QImage picture;
  bool hasPictures = false;
  WhenAsked([&](QMessageBox& box) {
    picture = box.iconPixmap().toImage();
    for (const QAbstractButton* button : box.buttons()) hasPictures = hasPictures || !button->icon().isNull();
    box.accept();
  });

  m_windowing.ShowMessage({"Really?", "Dayvane", MessageButtons::YesNo, MessageIcon::Question});

  EXPECT_EQ(picture, PictureIcon(kQuestionPicture).pixmap(48).toImage());
  EXPECT_FALSE(hasPictures);
}

TEST_F(LinuxWindowingTest, AMessageWithoutAPathHasRoomForItsWords) {
  int room = 0;
  int wanted = 0;
  WhenAsked([&](QMessageBox& box) {
    const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    room = label->width();
    wanted = label->fontMetrics().horizontalAdvance("Welcome to Dayvane.");
    box.accept();
  });

  m_windowing.ShowMessage({"Welcome to Dayvane.", "Dayvane", MessageButtons::Ok, MessageIcon::Information});

  EXPECT_GE(room, wanted);
}

TEST_F(LinuxWindowingTest, TheNameOfADocumentIsNotBrokenOverTwoLines) {
  const QString path = QStringLiteral("/home/ana/Documents/Harbour/Soil survey of the old quay with maps.pdf");
  int room = 0;
  int wanted = 0;
  WhenAsked([&](QMessageBox& box) {
    const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
    room = label->width();
    wanted = label->fontMetrics().horizontalAdvance(QStringLiteral("The document ") + path);
    box.accept();
  });

  const std::string document = "The document " + path.toStdString();
  m_windowing.ShowMessage({document + "\r\nwas not found.", "Dayvane", MessageButtons::YesNo, MessageIcon::Question});

  EXPECT_GE(room, wanted);
}

TEST_F(LinuxWindowingTest, AQuestionNamesADocumentAsItsUserDoes) {
  QString text;
  WhenAsked([&](QMessageBox& box) {
    text = box.text();
    box.accept();
  });

  m_windowing.ShowMessage(
      {"The document \\\\server\\share\\\xEF\x80\xA2Plan\xEF\x80\xA2 1\xEF\x81\x9C"
       "2.odt\r\nwas not found. Remove this link?",
       "Dayvane"});

  EXPECT_EQ(text, "The document \\\\server\\share\\\"Plan\" 1\\2.odt\nwas not found. Remove this link?");
}

TEST_F(LinuxWindowingTest, ADocumentsNameIsNoMarkup) {
  Qt::TextFormat format{};
  WhenAsked([&](QMessageBox& box) {
    format = box.textFormat();
    box.accept();
  });

  m_windowing.ShowMessage({"The document <b>.odt", "Dayvane"});

  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(LinuxWindowingTest, AQuestionIsAnsweredByItsButtons) {
  const Message question{"Remove?", "Dayvane", MessageButtons::YesNo, MessageIcon::Question};

  WhenAsked([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
  EXPECT_EQ(m_windowing.ShowMessage(question), MessageAnswer::Yes);
  WhenAsked([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
  EXPECT_EQ(m_windowing.ShowMessage(question), MessageAnswer::No);
}

TEST_F(LinuxWindowingTest, EscapeAnswersNo) {
  WhenAsked([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });

  const auto answer = m_windowing.ShowMessage({"Remove?", "Dayvane", MessageButtons::YesNo, MessageIcon::Question});

  EXPECT_EQ(answer, MessageAnswer::No);
}

TEST_F(LinuxWindowingTest, NobodyIsAskedOrToldOnceTheSessionEnds) {
  int shown = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    ++shown;
    box->close();
  });
  watch.start(0);

  m_windowing.EndSession();

  EXPECT_EQ(m_windowing.ShowMessage({"Remove?", "Dayvane", MessageButtons::YesNo}), MessageAnswer::No);
  EXPECT_EQ(m_windowing.ShowMessage({"One", "Dayvane"}), MessageAnswer::Ok);
  m_windowing.ShowAbout({});
  m_windowing.ShowModal(m_form);
  QCoreApplication::processEvents();
  EXPECT_EQ(shown, 0);
}

TEST_F(LinuxWindowingTest, ThePointerIsAnArrowWhileAMessageWaits) {
  m_form.SetPointer(controls::MousePointer::Hourglass);
  Qt::CursorShape shape{};
  WhenAsked([&](QMessageBox& box) {
    shape = QGuiApplication::overrideCursor()->shape();
    box.accept();
  });

  m_windowing.ShowMessage({"One", "Dayvane"});

  EXPECT_EQ(shape, Qt::ArrowCursor);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(LinuxWindowingTest, PendingMessagesRunTimers) {
  bool ran = false;
  QTimer::singleShot(0, qApp, [&] { ran = true; });

  m_windowing.ProcessPendingMessages();

  EXPECT_TRUE(ran);
}

TEST_F(LinuxWindowingTest, PendingMessagesRunInTheMiddleOfWork) {
  bool wasAtWork = false;
  QTimer::singleShot(0, qApp, [&] { wasAtWork = controls::IsAtWork(); });

  m_windowing.ProcessPendingMessages();

  EXPECT_TRUE(wasAtWork);
  EXPECT_FALSE(controls::IsAtWork());
}

TEST_F(LinuxWindowingTest, PendingMessagesAreNotRunForEveryItemOfLongWork) {
  m_windowing.ProcessPendingMessages();
  bool ran = false;
  QTimer::singleShot(0, qApp, [&] { ran = true; });

  m_windowing.ProcessPendingMessages();
  EXPECT_FALSE(ran);

  EXPECT_TRUE(QTest::qWaitFor([&] { return ran; }));
}

TEST_F(LinuxWindowingTest, ASplashIsPaintedAtOnce) {
  class Splash : public QWidget {
   public:
    Splash() : QWidget(nullptr, Qt::SplashScreen) {}
    bool isPainted = false;

   protected:
    void paintEvent(QPaintEvent*) override { isPainted = true; }
  };
  Splash splash;
  controls::Form form;
  FormPresenter presenter(form, splash, splash);
  m_windowing.Register(presenter);
  form.SetVisible(true);

  m_windowing.ProcessPendingMessages();

  EXPECT_TRUE(splash.isPainted);
  m_windowing.Forget(presenter);
}

TEST_F(LinuxWindowingTest, APostedCloseArrivesLaterAsTheProgramsOwn) {
  std::vector<UnloadMode> modes;
  m_form.QueryUnload.Connect([&](bool&, UnloadMode mode) { modes.push_back(mode); });

  m_windowing.PostMessage(m_form, platform::kWmClose);
  m_windowing.PostMessage(m_form, platform::kWmUser);
  EXPECT_FALSE(m_form.IsUnloaded());
  QCoreApplication::processEvents();

  EXPECT_THAT(modes, ElementsAre(UnloadMode::Code));
  EXPECT_TRUE(m_form.IsUnloaded());
}

TEST_F(LinuxWindowingTest, AModalFormIsShownUntilItHides) {
  bool wasVisible = false;
  QTimer::singleShot(0, qApp, [&] {
    wasVisible = m_window.isVisible();
    m_form.SetVisible(false);
  });

  m_windowing.ShowModal(m_form);

  EXPECT_TRUE(wasVisible);
}

TEST_F(LinuxWindowingTest, AMenuOpensAtAPointOfTheFormAndReturnsAtOnce) {
  controls::Menu menu("", {{"&Open"}});
  m_window.setGeometry(100, 100, 300, 300);
  m_form.SetVisible(true);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));

  m_windowing.PopupMenu(m_form, menu, 750, 300);

  const QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->pos(), m_window.mapToGlobal(QPoint(50, 20)));
}

TEST_F(LinuxWindowingTest, AMenuAtTheMouseMarksItsDefaultItem) {
  controls::Menu menu("", {{"&Show"}, {"&Hide"}});

  m_windowing.PopupMenuAtMouse(m_form, menu, 1);

  auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->defaultAction(), popup->actions().at(1));
}

TEST_F(LinuxWindowingTest, AnItemOfAPopupMenuIsChosen) {
  controls::Menu menu("", {{"&Show"}, {"&Hide"}});
  std::vector<int> chosen;
  menu.Click.Connect([&](int index) { chosen.push_back(index); });

  m_windowing.PopupMenuAtMouse(m_form, menu, -1);
  qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions().at(1)->trigger();
  QCoreApplication::processEvents();

  EXPECT_THAT(chosen, ElementsAre(1));
}

TEST_F(LinuxWindowingTest, ASplashMayGoWhileItIsWaitedFor) {
  auto splash = std::make_unique<QWidget>(nullptr, Qt::SplashScreen);
  controls::Form form;
  auto presenter = std::make_unique<FormPresenter>(form, *splash, *splash);
  m_windowing.Register(*presenter);
  form.SetVisible(true);
  QTimer::singleShot(0, qApp, [&] {
    m_windowing.Forget(*presenter);
    presenter.reset();
    splash.reset();
  });

  m_windowing.ProcessPendingMessages();

  EXPECT_EQ(splash, nullptr);
}

}  // namespace
}  // namespace dayvane::widgets
