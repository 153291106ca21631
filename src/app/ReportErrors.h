// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

#include "app/Application.h"
#include "resources/StringTable.h"

namespace dayvane {

/// Reports the error in flight: "An error occurred " and the phrase, from `object` + "." + `procedure`.
void ReportCurrentError(Application& application, StringId phrase, const std::string& object,
                        const std::string& procedure);

/// The report block of a user-facing procedure: what the body throws skips the rest of it, goes to the error log and
/// is told to the user; the procedure then ends. The skipped rest is not made up for. Returns whether the body
/// came to its end.
template <class Body>
bool ReportErrors(Application& application, StringId phrase, const std::string& object, const std::string& procedure,
                  Body&& body) {
  try {
    body();
    return true;
  } catch (const std::exception&) {
    ReportCurrentError(application, phrase, object, procedure);
    return false;
  }
}

}  // namespace dayvane
