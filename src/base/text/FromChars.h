// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <type_traits>
#include <version>

#ifndef __cpp_lib_to_chars
#include <QByteArrayView>
#endif

#include <charconv>

namespace brinemark
{

/// std::from_chars for a real number in general notation, with a replacement for standard libraries that have it for
/// whole numbers only. The text from `first` to `last` must be the number and nothing else.
template <class Number>
std::from_chars_result fromChars(const char *first, const char *last, Number &number)
{
#ifdef __cpp_lib_to_chars
    return std::from_chars(first, last, number);
#else
    bool ok = false;
    const QByteArrayView text(first, last);
    if constexpr (std::is_same_v<Number, float>)
        number = text.toFloat(&ok);
    else
        number = text.toDouble(&ok);
    return {last, ok ? std::errc() : std::errc::result_out_of_range};
#endif
}

} // namespace brinemark
