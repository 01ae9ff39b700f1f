// SPDX-License-Identifier: GPL-3.0-or-later

#include "online/UpdateSchedule.h"

#include <algorithm>

namespace brinemark
{

int updateFrequencyIndex(int seconds)
{
    const auto it = std::find(updateFrequencies.begin(), updateFrequencies.end(), seconds);
    return it == updateFrequencies.end() ? 0 : int(it - updateFrequencies.begin());
}

int updateFrequency(int index)
{
    return index >= 0 && index < int(updateFrequencies.size()) ? updateFrequencies[std::size_t(index)]
                                                               : updateFrequencies.back();
}

bool isUpdateCheckDue(const QDateTime &lastChecked, int frequency, const QDateTime &now)
{
    return frequency == updateFrequencies.front() || lastChecked.addSecs(frequency) <= now;
}

} // namespace brinemark
