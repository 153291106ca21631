// SPDX-License-Identifier: MIT
#include "app/MDayvane.h"

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane {

namespace {

/// Cuts the text after the last "\" off the path and returns it.
std::string TakeLastPart(std::string& path) {
  const auto separator = path.rfind('\\');
  if (separator == std::string::npos) throw Error(kInvalidProcedureCall, "No day folder", path);
  std::string part = path.substr(separator + 1);
  path.resize(separator);
  return part;
}

}  // namespace

Date PathToDate(const Application& application, const std::string& path) {
  // The message names another procedure. Logs have always said it so, and it stays.
  application.asserts.Assert(!text::Trim(path).empty(), "MDayvane.DailyImageListIndex: Path is missing");
  std::string rest = path;
  const std::string day = TakeLastPart(rest);
  const std::string month = TakeLastPart(rest);
  const std::string year = TakeLastPart(rest);
  return ParseMonthFirst(month + "/" + day + "/" + year, application.desktop.dates, application.monthLanguages);
}

}  // namespace dayvane
