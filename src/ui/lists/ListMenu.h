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
    TextKey title = {}; ///< empty for a separator
    int tag = 0;        ///< passed to the list's `validateMenuItem`
    void (*perform)(RecordListController &) = nullptr;
};

/// Makes a menu of these items. Each time it opens, the list's `validateMenuItem` decides which items are enabled. The
/// data of an action is its tag.
[[nodiscard]] QMenu *makeListMenu(std::span<const ListMenuItem> items, RecordListController &list, QWidget *parent);

} // namespace brinemark
