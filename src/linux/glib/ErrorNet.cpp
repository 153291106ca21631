// SPDX-License-Identifier: MIT
#include "linux/glib/ErrorNet.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <exception>
#include <utility>

#include "controls/Deferred.h"

namespace dayvane {

namespace {

ErrorNet*& TheNet() {
  static ErrorNet* net = nullptr;
  return net;
}

/// What tells the error that is being handled from another one.
std::string NameOfError() {
  try {
    throw;
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return {};
  }
}

/// What the program was most likely doing.
StringId PhraseFor(QEvent::Type type) {
  switch (type) {
    case QEvent::Resize:
    case QEvent::WindowStateChange:
      return kResizing;
    case QEvent::Close:
      return kExitingOrHiding;
    case QEvent::ContextMenu:
      return kDisplayingContextMenu;
    case QEvent::Timer:
      return kCheckingForDocuments;
    default:
      return kProcessingSelection;
  }
}

}  // namespace

ErrorNet::ErrorNet(Report report, std::function<void()> giveUp)
    : m_report(std::move(report)), m_giveUp(std::move(giveUp)), m_before(std::exchange(TheNet(), this)) {}

ErrorNet::~ErrorNet() {
  TheNet() = m_before;
}

ErrorNet* ErrorNet::Current() {
  return TheNet();
}

void ErrorNet::Catch(StringId phrase, Cause cause) noexcept {
  try {
    ReportOnce(phrase, cause);
  } catch (...) {
    m_giveUp();
  }
}

void ErrorNet::ReportOnce(StringId phrase, Cause cause) {
  // While the box is open events go on: what fails then would pile up boxes.
  if (m_reporting) return;
  const bool isNews = m_told.insert(NameOfError()).second;
  if (cause == Cause::Desktop && !isNews) return;
  const QScopedValueRollback reporting(m_reporting, true);
  m_report(phrase);
}

int RunEventLoop(const std::function<void()>& leave) {
  struct Leaving {
    const std::function<void()>& leave;
    ~Leaving() { CatchErrors(kExitingOrHiding, leave); }
  };
  const Leaving leaving{leave};
  return QCoreApplication::exec();
}

NetApplication::NetApplication(int& argc, char** argv) : QApplication(argc, argv) {
  controls::SetDeferredWaker(
      [this] { QMetaObject::invokeMethod(this, &controls::ActOnDeferred, Qt::QueuedConnection); });
}

NetApplication::~NetApplication() {
  controls::SetDeferredWaker({});
}

bool NetApplication::notify(QObject* receiver, QEvent* event) {
  // Read before the event is handled: the handler may delete the event or its receiver.
  const StringId phrase = PhraseFor(event->type());
  const auto cause = event->isInputEvent() ? ErrorNet::Cause::Person : ErrorNet::Cause::Desktop;
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    ErrorNet* net = ErrorNet::Current();
    if (net == nullptr) throw;
    net->Catch(phrase, cause);
    return false;
  }
}

}  // namespace dayvane
