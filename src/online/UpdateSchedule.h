// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>

#include <array>
#include <optional>

namespace brinemark
{

/// Seconds between automatic checks by the index of the frequency pop-up; -1 stands for every start.
inline constexpr std::array updateFrequencies{-1, 7 * 24 * 3600, 28 * 24 * 3600};
inline constexpr int defaultUpdateFrequency = updateFrequencies[1];

/// The pop-up's index of a stored frequency; what is none of them counts as every start.
[[nodiscard]] int updateFrequencyIndex(int seconds);
/// The frequency of an index of the pop-up; what is no index counts as the longest.
[[nodiscard]] int updateFrequency(int index);

/// Whether a check is due that was last made then. Exactly at the due moment it is.
[[nodiscard]] bool isUpdateCheckDue(const QDateTime &lastChecked, int frequency, const QDateTime &now);

} // namespace brinemark
