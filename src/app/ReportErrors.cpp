// SPDX-License-Identifier: MIT
#include "app/ReportErrors.h"

#include "base/Error.h"

namespace dayvane {

namespace {

struct Details {
  int number;
  std::string description;
};

Details CurrentError() {
  try {
    throw;
  } catch (const Error& error) {
    return {error.Number(), error.what()};
  } catch (const std::exception& error) {
    return {kDeviceIoError, error.what()};
  }
}

}  // namespace

void ReportCurrentError(Application& application, StringId phrase, const std::string& object,
                        const std::string& procedure) {
  const Details details = CurrentError();
  ErrorReporter& reporter = application.errorReporter;
  reporter.SetError(details.number, details.description);
  reporter.SetText("");
  reporter.SetUserMessage(ResourceString(kErrorPrefix) + ResourceString(phrase));
  reporter.SetSource(object + "." + procedure);
  reporter.SetTitle(application.info.title);
  reporter.Report();
}

}  // namespace dayvane
