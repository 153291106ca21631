// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ReportEvent.h"
#include "linux/recent/Source.h"

namespace dayvane::recent {

/// The further sources of openings, beside the desktop's own list.
///
/// Each fails alone: its first failure is reported, the others are read all the same, and the next poll asks it again.
class Sources {
 public:
  /// What the session before kept of a source, by its name.
  using MemoryOf = std::function<std::string(const std::string& name)>;

  /// What one source tells anew.
  struct News {
    std::string source;
    std::vector<Opening> openings;
    std::optional<std::string> memory;  ///< to be kept together with the openings; nothing: what is kept stays
  };

  Sources(std::vector<std::unique_ptr<Source>> sources, ReportEvent reportEvent);

  /// What all sources that are due tell. The first call reports which were found.
  std::vector<News> Read(const MemoryOf& memoryOf);

  /// When a use of a document began, if any source knows that it was before the moment at which the use was told.
  std::optional<Moment> BeganAt(const Opening& use);

 private:
  struct Member {
    std::unique_ptr<Source> source;
    std::optional<std::string> memory;  ///< of the last reading in this session
    bool isFailing = false;
  };

  static bool IsDue(Member& member);
  void ReportFound(const std::vector<Member*>& due);
  std::optional<News> ReadOne(Member& member, const MemoryOf& memoryOf);

  std::vector<Member> m_members;
  ReportEvent m_reportEvent;
  bool m_isFirst = true;
};

}  // namespace dayvane::recent
