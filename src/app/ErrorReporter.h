// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Windowing.h"

namespace dayvane {

/// The last line of defence of every user-facing procedure: appends the error to "ErrorLog.txt" and tells the user.
///
/// The log is UTF-8, one line an error: local date and time, source, error number, description, user message,
/// separated by tabs. A failure to write it is ignored.
class ErrorReporter {
 public:
  ErrorReporter(platform::FileSystem& files, platform::Clock& clock, platform::Windowing& windowing, std::string path)
      : m_files(files), m_clock(clock), m_windowing(windowing), m_path(std::move(path)) {}

  void SetError(int number, std::string description) {
    m_number = number;
    m_description = std::move(description);
  }
  void SetText(std::string text) { m_text = std::move(text); }  ///< added to the user message; usually empty
  void SetUserMessage(std::string message) { m_userMessage = std::move(message); }
  void SetSource(std::string source) { m_source = std::move(source); }
  void SetTitle(std::string title) { m_title = std::move(title); }

  void Report();

 private:
  platform::FileSystem& m_files;
  platform::Clock& m_clock;
  platform::Windowing& m_windowing;
  std::string m_path;
  int m_number = 0;
  std::string m_description;
  std::string m_text;
  std::string m_userMessage;
  std::string m_source;
  std::string m_title;
};

}  // namespace dayvane
