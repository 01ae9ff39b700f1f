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
    int tag = 0;        ///< names its rule, see MenuTags.h
    void (*perform)(RecordListController &) = nullptr;
};

/// The items that the menu of every list has. `selectedTag` is the tag of the items for a selected row of the list.
void newEntryOf(RecordListController &list);
void deleteSelectionOf(RecordListController &list);
inline constexpr ListMenuItem newListItem{"NewTitle"_key, 0, &newEntryOf};
[[nodiscard]] constexpr ListMenuItem deleteListItem(int selectedTag)
{
    return {"DeleteTitle"_key, selectedTag, &deleteSelectionOf};
}

/// Makes a menu of these items. Each time that it opens, they are enabled by the rules of the menu bar. The data of an
/// action is its tag.
[[nodiscard]] QMenu *makeListMenu(std::span<const ListMenuItem> items, RecordListController &list, QWidget *parent);

} // namespace brinemark
