// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/ReportEvent.h"
#include "linux/recent/ExclusionRules.h"
#include "linux/recent/FileVersion.h"

namespace dayvane::recent {

/// "dayvane/exclude" in the user's configuration folder.
std::string DefaultExclusionsFile();

/// The user's file of what must not be recorded (see ExclusionRules). Where there is none, one is made that explains
/// itself and leaves out nothing; the user's own is never written.
///
/// What is there and cannot be read, be it a link to a disk that is not there yet, may exclude anything: until it can
/// be read nobody knows what may be recorded.
class Exclusions {
 public:
  /// Native paths. Makes the file if it is missing; where that fails, it is reported and there are no exclusions.
  Exclusions(std::string file, const std::string& home, ReportEvent reportEvent);

  /// Reads the file if it has changed; to be called once a poll, before openings are taken in. While it is unchanged
  /// this costs one look at its status. What cannot be read is reported once.
  void Refresh();

  /// Whether these are the user's exclusions as they are now. As long as they are not, nothing may be recorded.
  bool AreKnown() const { return m_areKnown; }

  bool Covers(const Opening& opening) const { return m_rules.Cover(opening); }

 private:
  void MakeExample();
  void TakeAsMissing();
  void Read(const FileVersion& version);
  void ReportBadLines() const;
  void ReportFailure(const std::string& failure);

  std::string m_file;
  std::vector<std::string> m_homes;
  ReportEvent m_reportEvent;
  ExclusionRules m_rules;
  std::optional<FileVersion> m_read;  ///< the version that the rules are from
  bool m_areKnown = false;
  bool m_isMissing = false;  ///< it was at the last look
  bool m_isFailing = false;  ///< as last reported
};

}  // namespace dayvane::recent
