// SPDX-License-Identifier: MIT
#pragma once

namespace dayvane::faults {

/// While it lives, calls of the system that read and write files fail at random: files are not opened, reads and
/// writes are cut short or fail, folders cannot be listed, files not be renamed or removed. The same seed gives the
/// same faults to a program that makes the same calls.
class Faults {
 public:
  /// The probability that a call fails.
  Faults(unsigned seed, float probability);
  Faults(const Faults&) = delete;
  Faults& operator=(const Faults&) = delete;
  ~Faults();

 private:
  int m_firstFree;  ///< no file of the test has a number this high
};

}  // namespace dayvane::faults
