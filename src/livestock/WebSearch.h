// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QUrl>

/// Addresses of searches on the web. What is searched for is encoded, so that the browser gets exactly what was typed;
/// blanks become "+".
namespace brinemark
{

/// A search for the exact text.
[[nodiscard]] QUrl webSearchUrl(const QString &text);

/// Searches for a species by either of its names. A name that is not given makes an empty pair of quotes.
[[nodiscard]] QUrl speciesSearchUrl(const QString &name, const QString &sciName);
[[nodiscard]] QUrl speciesImageSearchUrl(const QString &name, const QString &sciName);

} // namespace brinemark
