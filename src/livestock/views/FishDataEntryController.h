// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/ProfileCollection.h"
#include "model/ItemContext.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

#include <memory>

class QLineEdit;

namespace brinemark
{

class ItemImage;
class ItemSheet;
enum class PictureProblem;
struct ItemData;

/// The item editor: a sheet in which a livestock record of any kind is entered or changed. Nothing that it does can be
/// undone; a cancelled sheet changes nothing.
class FishDataEntryController : public QObject, public Shared<FishDataEntryController>
{
    Q_OBJECT

public:
    ~FishDataEntryController() override;

    /// Opens the editor for a record or, with null, for a new one of the kind, which saving adds to the current tank.
    /// Does nothing while the editor is open, or for a new record when there is no current tank.
    void displayItemData(ItemData *item, ItemContext context);
    /// Opens the editor filled from a found profile, for the kind that it was opened for last. Saving changes the
    /// record, or adds one when it is null.
    void displaySearchResults(const SpeciesProfile &profile, ItemData *item);

    void saveButton(); ///< does nothing when a picture that is still being read turns out to be unusable
    void cancelButton();
    void searchButton();

    void submitButton();
    void searchForItemImageAction();
    void chooseImageAction();
    void deleteItemImageAction();
    void dropImageAction(const ItemImage &image); ///< none removes the picture; the record gets it when it is saved

    /// Makes the breeding menu and the default name those of a kind; any context without a kind gives fish.
    void setWithContext(ItemContext context);

    [[nodiscard]] ItemData *itemData() const { return m_itemData.get(); } ///< null while a new record is entered
    [[nodiscard]] QLineEdit *nameField();

private:
    friend class Shared<FishDataEntryController>;
    FishDataEntryController();

    ItemSheet &infoPanel();
    bool begin(ItemData *item);
    void closeEditSheet(int returnCode);
    void store();
    [[nodiscard]] std::shared_ptr<ItemData> addItem();
    void pictureRefused(PictureProblem problem, const QString &fileName);

    std::shared_ptr<ItemData> m_itemData;
    ItemContext m_itemContext = ItemContext::Fish;
    bool m_pictureRefused = false; ///< since Save was pressed
    OwnedWidget<ItemSheet> m_infoPanel;
};

} // namespace brinemark
