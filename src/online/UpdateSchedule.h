// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <array>
#include <optional>

namespace brinemark
{

/// Seconds between automatic checks, by index of the frequency pop-up; -1 means at every start.
inline constexpr std::array updateFrequencies{-1, 7 * 24 * 3600, 28 * 24 * 3600};
inline constexpr int defaultUpdateFrequency = updateFrequencies[1];

/// The pop-up's index of a stored frequency; an unknown frequency counts as every start.
[[nodiscard]] int updateFrequencyIndex(int seconds);
/// The frequency at an index of the pop-up; an index out of range gives the longest.
[[nodiscard]] int updateFrequency(int index);

/// Whether the next check is due at `now`, with the last one at `lastChecked` and `frequency` seconds between checks.
[[nodiscard]] bool isUpdateCheckDue(const QDateTime &lastChecked, int frequency, const QDateTime &now);

} // namespace brinemark
