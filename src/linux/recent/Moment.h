// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <cstdint>
#include <optional>

namespace dayvane::recent {

/// A moment in nanoseconds since 1970-01-01 00:00 UTC.
using Moment = std::int64_t;

inline constexpr Moment kNanosecondsPerSecond = 1'000'000'000;

/// One opening is told of at moments that lie no further apart: some see the program start, some its file.
inline constexpr Moment kOneOpening = 60 * kNanosecondsPerSecond;

/// A date and time as the list has it: "2026-11-20T23:45:16.110424Z", with or without a fraction, with any offset.
/// Without an offset it is the user's local time. Nothing for other text, and nothing for a date before 1990: no
/// desktop kept such a list then, so the program that wrote the date did not know it.
std::optional<Moment> ParseIsoMoment(QStringView text);

/// The same moment as older programs wrote it: whole seconds since 1970 ("1795218406").
std::optional<Moment> ParseEpochMoment(QStringView text);

/// The same again, as a number.
std::optional<Moment> MomentFromSeconds(std::int64_t seconds);

/// Whether two moments lie on the same day of the user's calendar.
bool OnSameLocalDay(Moment a, Moment b);

}  // namespace dayvane::recent
