// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

/// What is measured, each beside a yardstick in the same run, and told in a line. No benchmark library is to be had for
/// Windows on the machine that builds.
namespace dayvane::bench {

/// What one doing takes, in seconds.
double Seconds(const std::function<void()>& act);

/// Measures something, in seconds; what it does beside that is not counted.
using Measurement = std::function<double()>;

/// The least of several rounds of both, which take turns: whatever else the machine does only adds.
struct Pair {
  double subject = 0;
  double yardstick = 0;
};
Pair Measure(int rounds, const Measurement& yardstick, const Measurement& subject);

/// The lines told so far, and whether all were within their limits.
class Figures {
 public:
  /// "name: 1.5 times the yardstick (limit 2); 150 ms, a read loop 100 ms"
  void Compare(const std::string& name, const Pair& pair, double limit, const std::string& yardstick);

  /// "name: 12 ms (limit 100 ms); a bare list 11 ms"
  void AtMost(const std::string& name, const Pair& pair, double limitSeconds, const std::string& yardstick);

  /// Of a number of bytes.
  void AtMost(const std::string& name, std::int64_t bytes, std::int64_t limit);

  bool AllWithin() const { return m_allWithin; }

 private:
  void Tell(const std::string& line, bool isWithin);

  bool m_allWithin = true;
};

void MeasureCapture(Figures& figures);

/// Takes minutes under Wine, which looks through the whole folder for every name that is not there: filing is not
/// measured.
void MeasureManyShortcuts(Figures& figures);

void MeasureLists(Figures& figures);
void MeasureStart(Figures& figures);

}  // namespace dayvane::bench
