// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <string>

#include "linux/launch/StartApplication.h"

namespace dayvane::launch {

/// The desktop's file manager.
class FileManager {
 public:
  /// `pending` stands for the life of what `reportEvent` belongs to: cancelled, nothing is reported any more.
  FileManager(GCancellable* pending, ReportEvent reportEvent)
      : m_pending(pending), m_reportEvent(std::move(reportEvent)) {}

  /// Shows a folder in a window without waiting for it. The folder is asked of the file manager that answers to
  /// "org.freedesktop.FileManager1" on the message bus, else of an application for folders. Returns false when there
  /// is neither; a failure that comes to light later is reported.
  bool Show(const std::string& nativeFolder) const;

 private:
  GCancellable* m_pending;
  ReportEvent m_reportEvent;
};

}  // namespace dayvane::launch
