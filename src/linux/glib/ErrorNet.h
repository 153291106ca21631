// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>
#include <set>
#include <string>

#include "resources/StringTable.h"

namespace dayvane {

/// The last net below the program: what the handler of an event lets escape is reported, and the program goes on. It
/// would otherwise fly through the libraries that called the handler, and end the program with nothing saved.
///
/// One net for the process, for as long as it lives. Without one an error flies on.
class ErrorNet {
 public:
  /// Reports the error that is being handled: "An error occurred " and the phrase.
  using Report = std::function<void(StringId phrase)>;

  /// `giveUp` is called when even the report fails.
  ErrorNet(Report report, std::function<void()> giveUp);
  ErrorNet(const ErrorNet&) = delete;
  ErrorNet& operator=(const ErrorNet&) = delete;
  ~ErrorNet();

  /// The net of the process, or nullptr.
  static ErrorNet* Current();

  /// What led to the error. One that a person caused is reported every time. What the desktop causes, such as painting,
  /// may fail again and again: the same error is reported once.
  enum class Cause { Person, Desktop };

  /// Takes the error that is being handled.
  void Catch(StringId phrase, Cause cause) noexcept;

 private:
  void ReportOnce(StringId phrase, Cause cause);

  Report m_report;
  std::function<void()> m_giveUp;
  std::set<std::string> m_told;
  bool m_reporting = false;
  ErrorNet* m_before;
};

/// Runs the body of a callback from a library that knows no exceptions. No error leaves it.
template <class Body>
void CatchErrors(StringId phrase, Body&& body) noexcept {
  try {
    body();
  } catch (...) {
    if (ErrorNet* net = ErrorNet::Current()) net->Catch(phrase, ErrorNet::Cause::Desktop);
  }
}

/// Qt's application with the net below the handler of every event. Its loop is where deferred actions are done.
class NetApplication : public QApplication {
 public:
  NetApplication(int& argc, char** argv);
  NetApplication(const NetApplication&) = delete;
  NetApplication& operator=(const NetApplication&) = delete;
  ~NetApplication() override;

  bool notify(QObject* receiver, QEvent* event) override;
};

/// Runs the event loop and returns its exit code. `leave` is called however the loop ends, also by an error.
int RunEventLoop(const std::function<void()>& leave);

}  // namespace dayvane
