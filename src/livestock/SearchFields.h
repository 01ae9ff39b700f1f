// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <QStringView>

#include <array>

namespace brinemark
{

/// A field of a profile that can be searched by, and the column of the results that shows it.
struct SearchField {
    QStringView key;
    TextKey titleKey;
    int width; ///< of the column at first, in average characters
};

// clang-format off
inline constexpr auto searchFields = std::to_array<SearchField>({
    {u"Name",    "CommonName"_key,  26},
    {u"SciName", "SciName"_key,     26},
    {u"Family",  "Family"_key,      18},
    {u"Size",    "Size"_key,        9},
    {u"Temp",    "Temperature"_key, 13},
    {u"pH",      "Ph"_key,          11},
});
// clang-format on

/// The field of the search-by menu that stands for a search on the web.
inline constexpr QStringView onlineField = u"Online";

} // namespace brinemark
