// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileTabStops.h"

#include <algorithm>
#include <cmath>

namespace brinemark
{

namespace
{

// In points.
constexpr double captionToValue = 4;
constexpr double valueToCaption = 16;
constexpr double columnDistance = 230; ///< from the end of the first captions to that of the second

} // namespace

ProfileTabStops profileTabStops(const ProfileWidths &widths, int lineWidth, double pixelsPerPoint)
{
    const auto pixels = [pixelsPerPoint](double points) { return int(std::ceil(points * pixelsPerPoint)); };
    const int space = pixels(captionToValue);
    const int between = pixels(valueToCaption) + widths.secondCaption;

    ProfileTabStops stops;
    stops.firstCaption = widths.firstCaption;
    stops.firstValue = stops.firstCaption + space;
    const int usualRoom = pixels(columnDistance) - space - between;
    const int forValues = std::max(0, lineWidth - stops.firstValue - between - space);
    const int leftBySecond = std::max(forValues - widths.secondValue, forValues / 2);
    stops.firstRoom = std::min(std::max(usualRoom, widths.firstValue), leftBySecond);
    stops.secondCaption = stops.firstValue + stops.firstRoom + between;
    stops.secondValue = stops.secondCaption + space;
    return stops;
}

} // namespace brinemark
