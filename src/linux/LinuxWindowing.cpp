// SPDX-License-Identifier: MIT
#include "linux/LinuxWindowing.h"

#include <QApplication>
#include <QCursor>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWindow>
#include <algorithm>
#include <glib.h>

#include "controls/Deferred.h"
#include "linux/forms/FormPresenter.h"
#include "linux/forms/MessageBox.h"
#include "linux/widgets/Lengths.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"

namespace dayvane::widgets {

using platform::Message;
using platform::MessageAnswer;

namespace {

constexpr int kBetweenPaintsMilliseconds = 50;
constexpr int kLongestWaitMilliseconds = 300;

/// The arrow for as long as the user has something to answer, also in the middle of work under the hourglass.
class ArrowPointer {
 public:
  ArrowPointer() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
  ArrowPointer(const ArrowPointer&) = delete;
  ArrowPointer& operator=(const ArrowPointer&) = delete;
  ~ArrowPointer() { QGuiApplication::restoreOverrideCursor(); }

 private:
  controls::QuestionScope m_question;
};

/// A window that was just shown is on the screen only when the window manager has put it there.
void WaitUntilPainted(QWidget& shown) {
  const QDeadlineTimer late(kLongestWaitMilliseconds);
  const QPointer<QWidget> window(&shown);  // the user may send it away meanwhile
  do QCoreApplication::processEvents(QEventLoop::AllEvents, kBetweenPaintsMilliseconds);
  while (window && window->isVisible() && !window->windowHandle()->isExposed() && !late.hasExpired());
  QCoreApplication::processEvents();
}

}  // namespace

void LinuxWindowing::Register(FormPresenter& presenter) {
  m_presenters[&presenter.Form()] = &presenter;
}

void LinuxWindowing::Forget(FormPresenter& presenter) {
  m_presenters.erase(&presenter.Form());
}

void LinuxWindowing::EndSession() {
  m_sessionEnds = true;
  if (QWidget* asking = QApplication::activeModalWidget()) asking->close();
}

MessageAnswer LinuxWindowing::ShowMessage(const Message& message) {
  const bool question = message.buttons == platform::MessageButtons::YesNo;
  if (m_sessionEnds) return question ? MessageAnswer::No : MessageAnswer::Ok;
  MessageBox box(message, OwnerOfBox());
  if (const QWidget* splash = ShownSplash()) box.PlaceBelow(*splash);
  const ArrowPointer arrow;
  const int answer = box.exec();
  if (!question) return MessageAnswer::Ok;
  return answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

void LinuxWindowing::ShowAbout(const platform::About& about) {
  if (m_sessionEnds) return;
  const auto paragraph = [](const std::string& text) {
    return QStringLiteral("<p>%1</p>").arg(QString::fromStdString(text).toHtmlEscaped());
  };
  const QString libraries = QStringLiteral("Qt %1, GLib %2.%3.%4")
                                .arg(QLatin1String(qVersion()))
                                .arg(glib_major_version)
                                .arg(glib_minor_version)
                                .arg(glib_micro_version);
  const ArrowPointer arrow;
  QMessageBox box(OwnerOfBox());
  box.setWindowTitle(QStringLiteral("About %1").arg(QString::fromStdString(about.title)));
  box.setIconPixmap(PictureIcon(kNormalIcon).pixmap(64));
  box.setTextFormat(Qt::RichText);
  box.setText(QStringLiteral("<h2>%1</h2>").arg(QString::fromStdString(about.title).toHtmlEscaped()) +
              paragraph(about.version) + paragraph(about.copyright) + paragraph(about.warning) +
              paragraph("Built with " + libraries.toStdString()) +
              QStringLiteral("<p><a href=\"%1\">%1</a></p>").arg(QString::fromStdString(about.homePage)));
  box.setStandardButtons(QMessageBox::Ok);
  box.button(QMessageBox::Ok)->setIcon({});
  box.exec();
}

void LinuxWindowing::Beep() {
  QApplication::beep();
}

void LinuxWindowing::ProcessPendingMessages() {
  if (m_sinceEvents.isValid() && m_sinceEvents.elapsed() < kBetweenPaintsMilliseconds) return;
  const controls::WorkScope work;
  if (QWidget* splash = ShownSplash(); splash != nullptr && !m_sinceEvents.isValid())
    WaitUntilPainted(*splash);
  else
    QCoreApplication::processEvents(splash != nullptr ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  m_sinceEvents.start();
}

QWidget* LinuxWindowing::OwnerOfBox() const {
  QWidget* active = QApplication::activeWindow();
  // A splash that was sent away may still be the active one, and be gone before the box is answered.
  return active != nullptr && active->isVisible() ? active : ShownSplash();
}

QWidget* LinuxWindowing::ShownSplash() const {
  const auto found = std::find_if(m_presenters.begin(), m_presenters.end(), [](const auto& presenter) {
    const QWidget& window = presenter.second->Window();
    return window.windowType() == Qt::SplashScreen && window.isVisible();
  });
  return found == m_presenters.end() ? nullptr : &found->second->Window();
}

void LinuxWindowing::ShowModal(controls::Form& form) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr || m_sessionEnds) return;
  const ArrowPointer arrow;
  presenter->ShowModal();
}

void LinuxWindowing::PostMessage(controls::Form& form, int message) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr || message != platform::kWmClose) return;
  QMetaObject::invokeMethod(
      presenter, [presenter] { presenter->CloseWhenAnswered(); }, Qt::QueuedConnection);
}

void LinuxWindowing::SetForegroundWindow(controls::Form& form) {
  if (FormPresenter* presenter = Find(form)) presenter->BringToFront();
}

void LinuxWindowing::PopupMenu(controls::Form& form, controls::Menu& menu, double x, double y) {
  FormPresenter* presenter = Find(form);
  if (presenter == nullptr) return;
  const QWidget& inside = presenter->Inside();
  Popup(presenter, menu, -1, inside.mapToGlobal(QPoint(ToPixels(x, inside), ToPixels(y, inside))));
}

void LinuxWindowing::PopupMenuAtMouse(controls::Form& form, controls::Menu& menu, int defaultItem) {
  Popup(Find(form), menu, defaultItem, QCursor::pos());
}

FormPresenter* LinuxWindowing::Find(const controls::Form& form) const {
  const auto found = m_presenters.find(&form);
  return found == m_presenters.end() ? nullptr : found->second;
}

void LinuxWindowing::Popup(FormPresenter* presenter, controls::Menu& menu, int defaultItem, QPoint at) {
  m_popup = std::make_unique<MenuPresenter>(menu);
  // Some desktops give a menu a place only as part of a window.
  m_popup->winId();
  if (presenter != nullptr && presenter->Window().isVisible())
    m_popup->windowHandle()->setTransientParent(presenter->Window().windowHandle());
  m_popup->SetDefaultItem(defaultItem);
  m_popup->popup(at);
}

}  // namespace dayvane::widgets
