// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QUrl>

/// The help: plain HTML pages in the user's language, or in English when that language has none. A language that only
/// spells or names some things in another way has a list of words in place of pages: resources/help/en_US/words.txt.
namespace brinemark::helpbook
{

/// A page's HTML with the words of the user's language; empty when there is no such page.
[[nodiscard]] QString page(const QString &fileName);

/// The address of an anchor: that of the page of this name, or of the heading with this id. The start page when there
/// is neither.
[[nodiscard]] QUrl urlOfAnchor(const QString &anchor);

} // namespace brinemark::helpbook
