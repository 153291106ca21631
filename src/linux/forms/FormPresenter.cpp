// SPDX-License-Identifier: MIT
#include "linux/forms/FormPresenter.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QWhatsThis>
#include <QWidget>
#include <utility>

#include "linux/forms/ScreenFit.h"
#include "linux/widgets/ControlLink.h"
#include "linux/widgets/Keys.h"
#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

using controls::UnloadMode;
using controls::WindowState;

namespace {

// A window that is maximised first moves and then says why: its place is reported once it has come to rest.
constexpr int kRestMilliseconds = 200;

constexpr int kLookAgainMilliseconds = 50;

constexpr QSize kUsualFrame{10, 36};  ///< logical pixels, before the real one is known

QRectF PlaceOf(const controls::Form& form) {
  return {form.Left(), form.Top(), form.Width(), form.Height()};
}

/// The help context of a widget or of what it is a part of; 0 for none.
int HelpIdAt(const QWidget* widget) {
  while (widget != nullptr && widget->property(kHelpIdProperty).toInt() == 0) widget = widget->parentWidget();
  return widget == nullptr ? 0 : widget->property(kHelpIdProperty).toInt();
}

/// On Wayland only the compositor does: the form keeps the place that it had on another desktop.
bool KnowsWhereWindowsAre() {
  return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QSize FrameOf(const QWidget& window) {
  const QSize frame = window.frameGeometry().size() - window.size();
  return frame.isNull() ? kUsualFrame : frame;
}

}  // namespace

FormPresenter::FormPresenter(controls::Form& form, QWidget& window, QWidget& inside)
    : m_form(form), m_window(window), m_inside(inside) {
  m_placeTimer.setSingleShot(true);
  m_placeTimer.setInterval(kRestMilliseconds);
  connect(&m_placeTimer, &QTimer::timeout, this, [this] { TellPlace(); });
  m_connections.push_back(form.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(form.WhatsThisWanted.ConnectScoped([] { QWhatsThis::enterWhatsThisMode(); }));
  m_connections.push_back(form.RefreshWanted.ConnectScoped([this] {
    if (!controls::IsInBackground()) m_window.repaint();
  }));
  m_window.installEventFilter(this);
  m_inside.installEventFilter(this);
  Show();
}

FormPresenter::~FormPresenter() {
  if (m_showsHourglass) QGuiApplication::restoreOverrideCursor();
}

bool FormPresenter::RequestUnload(UnloadMode mode) {
  TellPlace();
  return m_form.RequestUnload(mode);
}

void FormPresenter::CloseWhenAnswered() {
  m_deferred.AfterWorkAndQuestions([this] { RequestUnload(UnloadMode::Code); });
}

void FormPresenter::EndSession() {
  if (!controls::IsAsking() && !controls::IsAtWork()) {
    RequestUnload(UnloadMode::SystemSession);
    return;
  }
  if (QWidget* asking = QApplication::activeModalWidget()) asking->close();
  QTimer::singleShot(kLookAgainMilliseconds, this, [this] { EndSession(); });
}

void FormPresenter::ShowModal() {
  // Help can be read beside a dialog, so only its owner is closed to the user.
  m_window.setWindowModality(m_window.parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  m_form.SetVisible(true);
  QEventLoop loop;
  const auto hidden = m_form.Changed.ConnectScoped([&] {
    if (!m_form.Visible()) loop.quit();
  });
  if (m_form.Visible()) loop.exec(QEventLoop::DialogExec);
}

void FormPresenter::BringToFront() {
  m_window.raise();
  m_window.activateWindow();
}

bool FormPresenter::eventFilter(QObject* object, QEvent* event) {
  if (object == &m_inside && event->type() == QEvent::Resize) TellScale();
  return object == &m_window && WindowEvent(event);
}

bool FormPresenter::WindowEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      m_placeTimer.start();
      return false;
    case QEvent::WindowStateChange:
      // Told later: the program may hide the window on that, which the window system is still busy with.
      QMetaObject::invokeMethod(
          this, [this] { TellState(); }, Qt::QueuedConnection);
      return false;
    case QEvent::WindowActivate:
      m_form.Activate.Raise();
      return false;
    case QEvent::Close:
      return Close(event);
    case QEvent::KeyPress:
      return KeyDown(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      KeyUp(*static_cast<QKeyEvent*>(event));
      return false;
    case QEvent::QueryWhatsThis:
    case QEvent::WhatsThis:
      return WhatsThis(*static_cast<QHelpEvent*>(event), event->type() == QEvent::WhatsThis);
    default:
      return false;
  }
}

bool FormPresenter::Close(QEvent* event) {
  event->setAccepted(!controls::IsAtWork() && RequestUnload(UnloadMode::ControlMenu));
  return true;
}

bool FormPresenter::KeyDown(const QKeyEvent& event) {
  m_takenKey = 0;
  if (event.key() == Qt::Key_F1 && event.modifiers() == Qt::ShiftModifier) {
    m_takenKey = event.key();
    return ExplainFocus();
  }
  return EscapeCloses(event);
}

bool FormPresenter::EscapeCloses(const QKeyEvent& event) {
  // A dialog would hide its window and leave the form believing that it is still there.
  if (event.key() != Qt::Key_Escape || qobject_cast<QDialog*>(&m_window) == nullptr) return false;
  m_window.close();
  return true;
}

bool FormPresenter::WhatsThis(const QHelpEvent& event, bool show) {
  const int id = HelpIdAt(QApplication::widgetAt(event.globalPos()));
  if (id == 0) return false;
  if (!show) return true;
  QWhatsThis::leaveWhatsThisMode();
  if (m_showTopic) m_showTopic(id, event.globalPos());
  return true;
}

bool FormPresenter::ExplainFocus() {
  const QWidget* widget = m_window.focusWidget();
  if (const int id = HelpIdAt(widget); id != 0 && m_showTopic)
    m_showTopic(id, widget->mapToGlobal(widget->rect().bottomLeft()));
  else
    QWhatsThis::enterWhatsThisMode();
  return true;
}

void FormPresenter::KeyUp(const QKeyEvent& event) {
  if (event.key() == std::exchange(m_takenKey, 0)) return;
  const int key = ClassicKeyCode(event.key());
  if (!event.isAutoRepeat() && key != 0) m_form.KeyUp.Raise(key, ClassicModifiers(event.modifiers()));
}

void FormPresenter::TellScale() {
  m_form.SetScale(ToTwips(m_inside.width(), m_window), ToTwips(m_inside.height(), m_window));
}

void FormPresenter::TellState() {
  const Qt::WindowStates states = m_window.windowState();
  m_shownState = states.testFlag(Qt::WindowMinimized)   ? WindowState::Minimised
                 : states.testFlag(Qt::WindowMaximized) ? WindowState::Maximised
                                                        : WindowState::Normal;
  m_form.SetState(m_shownState);
}

void FormPresenter::TellPlace() {
  m_placeTimer.stop();
  if (!m_window.isVisible() || m_window.windowState() != Qt::WindowNoState) return;
  QRect place = PixelRect(m_form, m_window);
  place.setSize(m_window.size());
  if (KnowsWhereWindowsAre()) place.moveTo(m_window.pos());
  m_shownPlace = {ToTwips(place.x(), m_window), ToTwips(place.y(), m_window), ToTwips(place.width(), m_window),
                  ToTwips(place.height(), m_window)};
  MoveControl(m_form, place, m_window);
}

void FormPresenter::Show() {
  m_window.setWindowTitle(QString::fromStdString(m_form.Caption()));
  m_window.setEnabled(m_form.Enabled());
  m_latePointer.Changed(m_form.Pointer() == controls::MousePointer::Hourglass);
  ShowPlace();
  ShowState();
  ShowVisible();
}

void FormPresenter::ShowPlace() {
  if (PlaceOf(m_form) == m_shownPlace || PlaceOf(m_form).isEmpty()) return;
  const QRect wanted = PixelRect(m_form, m_window);
  const QRect place = FitToScreen(wanted, AvailableScreenFor(wanted), FrameOf(m_window));
  m_shownPlace = PlaceOf(m_form);
  m_window.resize(place.size());
  m_window.move(place.topLeft());
  if (place == wanted) return;
  MoveControl(m_form, place, m_window);
}

void FormPresenter::ShowState() {
  // X11 would bring a hidden window up to take its state: that waits until the window shows.
  const bool hidden = !m_window.isVisible() && !m_form.Visible();
  if (m_form.State() == m_shownState || hidden) return;
  m_shownState = m_form.State();
  const Qt::WindowStates others = m_window.windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  m_window.setWindowState(others | (m_shownState == WindowState::Minimised   ? Qt::WindowMinimized
                                    : m_shownState == WindowState::Maximised ? Qt::WindowMaximized
                                                                             : Qt::WindowNoState));
}

void FormPresenter::ShowPointer() {
  const bool hourglass = m_form.Pointer() == controls::MousePointer::Hourglass;
  if (hourglass == m_showsHourglass) return;
  m_showsHourglass = hourglass;
  if (hourglass)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void FormPresenter::ShowVisible() {
  if (m_form.Visible() == m_window.isVisible()) return;
  if (!m_form.Visible()) {
    TellPlace();
    m_window.hide();
    return;
  }
  m_window.show();
  BringToFront();
  TellScale();
  if (!std::exchange(m_wasShown, true)) m_form.Resize.Raise();  // every form gets one when it first opens
}

}  // namespace dayvane::widgets
