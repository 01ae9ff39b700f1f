// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileSearch.h"
#include "model/ItemContext.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>
#include <QTimer>

class QAction;

namespace brinemark
{

class FishSearchSheet;
struct ItemData;

/// Looks a species up in the collection of profiles that comes with the program, and takes a found profile into the
/// item editor. Results come one by one while the search runs in a thread.
class FishSearchController : public QObject, public Shared<FishSearchController>
{
    Q_OBJECT

public:
    ~FishSearchController() override;

    /// Opens the sheet for the record that the editor was showing, null for a new one, and its kind. Searches for the
    /// name that stands in the editor.
    void display(ItemData *item, ItemContext context);

    void searchPopupChanged(QAction *item); ///< null goes back to the common name
    void searchForFish();
    void foundFish(const SpeciesProfile *profile); ///< null at the end of a search
    void clearSearch();

    void chooseFish();   ///< does nothing without a selected row
    void cancelSearch();

    void searchOnline();
    void searchImagesOnline();
    void helpButtonAction();

    enum ReturnCode { Chosen = 1, Cancelled = 2 };

private:
    friend class Shared<FishSearchController>;
    FishSearchController();

    void makeSheet();
    void typed();
    void selectionDidChange();
    void stopSearch();
    void closeSearchSheet(int returnCode);
    [[nodiscard]] QString searchedField() const;
    [[nodiscard]] bool loadCollection();

    std::shared_ptr<ItemData> m_itemData;
    ItemContext m_itemContext = ItemContext::Fish;
    std::shared_ptr<const ProfileCollection> m_mainDict; ///< loaded by the first search of each opening
    int m_found = 0;
    ProfileSearch m_search;
    QTimer m_searchSoon; ///< runs while the user is typing
    OwnedWidget<FishSearchSheet> m_searchPanel;
};

} // namespace brinemark
