// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// A document that somebody opened, as one source tells it.
struct Opening {
  std::string path;      ///< native
  Moment moment = 0;     ///< when it was opened, as exactly as the source knows
  std::string program;   ///< that opened it, as the source names it ("org.kde.okular", "Mousepad"); empty when unknown
  std::string mimeType;  ///< empty when the source does not tell
};

/// A place where a desktop's programs leave what documents they open.
class Source {
 public:
  struct Reading {
    std::vector<Opening> openings;  ///< that it tells of since the last reading, or all that it knows
    std::string memory;             ///< handed to the next reading, in this session or a later one; one line of text
  };

  virtual ~Source() = default;

  /// For the event log: "the list of org.gnome.TextEditor".
  virtual const std::string& Name() const = 0;

  /// Whether it may have something new. Costs one look at a file's status.
  virtual bool IsDue() = 0;

  /// What is new since the reading that left this memory; empty at the first. Fails with an Error, also when it is
  /// busy: the next poll tries again with the same memory.
  virtual Reading Read(const std::string& memory) = 0;

  /// When the use that reached up to this moment began; nothing when this source does not know.
  virtual std::optional<Moment> BeganAt(const Opening& use) = 0;
};

}  // namespace dayvane::recent
