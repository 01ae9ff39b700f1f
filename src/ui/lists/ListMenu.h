// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "base/text/Texts.h"

#include <span>

class QMenu;
class QWidget;

namespace brinemark
{

class RecordListController;

/// An item of a list's context menu, described once in a constexpr table of its list controller.
struct ListMenuItem {
    TextKey title = {}; ///< none for a separator
    int tag = 0;        ///< names the item to the list's `validateMenuItem`
    void (*perform)(RecordListController &) = nullptr;
};

/// A menu of these items that are enabled, each time it opens, as the list says of their tags. Each action has its
/// tag as data.
[[nodiscard]] QMenu *makeListMenu(std::span<const ListMenuItem> items, RecordListController &list, QWidget *parent);

} // namespace brinemark
