// SPDX-License-Identifier: MIT
#include "bench/windows/Figures.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "windows/files/Win32.h"

namespace dayvane::bench {

namespace {

std::int64_t Ticks() {
  LARGE_INTEGER ticks{};
  QueryPerformanceCounter(&ticks);
  return ticks.QuadPart;
}

double TicksPerSecond() {
  LARGE_INTEGER frequency{};
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(frequency.QuadPart);
}

std::string Text(double number, const char* unit) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.3g%s", number, unit);
  return buffer;
}

std::string Milliseconds(double seconds) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, seconds < 0.01 ? "%.2f ms" : "%.0f ms", seconds * 1000);
  return buffer;
}

}  // namespace

double Seconds(const std::function<void()>& act) {
  const std::int64_t begin = Ticks();
  act();
  return static_cast<double>(Ticks() - begin) / TicksPerSecond();
}

Pair Measure(int rounds, const Measurement& yardstick, const Measurement& subject) {
  constexpr double kLong = std::numeric_limits<double>::max();
  Pair least{kLong, kLong};
  for (int round = 0; round < rounds; ++round) {
    least.yardstick = std::min(least.yardstick, yardstick());
    least.subject = std::min(least.subject, subject());
  }
  return least;
}

void Figures::Compare(const std::string& name, const Pair& pair, double limit, const std::string& yardstick) {
  const double times = pair.subject / pair.yardstick;
  Tell(name + ": " + Text(times, " times the yardstick") + " (limit " + Text(limit, "); ") +
           Milliseconds(pair.subject) + ", " + yardstick + " " + Milliseconds(pair.yardstick),
       times <= limit);
}

void Figures::AtMost(const std::string& name, const Pair& pair, double limitSeconds, const std::string& yardstick) {
  Tell(name + ": " + Milliseconds(pair.subject) + " (limit " + Milliseconds(limitSeconds) + "); " + yardstick + " " +
           Milliseconds(pair.yardstick),
       pair.subject <= limitSeconds);
}

void Figures::AtMost(const std::string& name, std::int64_t bytes, std::int64_t limit) {
  constexpr double kMegabyte = 1 << 20;
  Tell(name + ": " + Text(static_cast<double>(bytes) / kMegabyte, " MB") + " (limit " +
           Text(static_cast<double>(limit) / kMegabyte, " MB)"),
       bytes <= limit);
}

void Figures::Tell(const std::string& line, bool isWithin) {
  m_allWithin = m_allWithin && isWithin;
  std::printf("%s%s\n", line.c_str(), isWithin ? "" : "  TOO MUCH");
  std::fflush(stdout);
}

}  // namespace dayvane::bench
