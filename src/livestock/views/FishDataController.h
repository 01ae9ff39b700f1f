// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "livestock/views/ProfileText.h"
#include "model/ItemImage.h"
#include "ui/MainViewController.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <memory>

namespace brinemark
{

class Container;
class ProfileView;
struct ItemData;

/// The profile of the livestock record that is selected in the tank tree. A picture that is dropped, chosen or removed
/// here is stored in the record at once, which counts as a change and cannot be undone. The view's object name is
/// "fishDataView".
class FishDataController : public MainViewController, public Shared<FishDataController>
{
    Q_OBJECT

public:
    ~FishDataController() override;

    void displayItemData(ItemData *item); ///< null shows no record
    [[nodiscard]] ItemData *currentItem() const { return m_currentItem.lock().get(); }

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    void updateDisplay() override;

    // Add to the profile's text. A label makes it an aligned column. A second column ends its line.
    void addFirstColumnString(const QString &value, const QString &label, ProfileStyle style, bool newLine);
    void addSecondColumnString(const QString &value, const QString &label, ProfileStyle style);
    [[nodiscard]] QTextCharFormat headerAttributes();
    [[nodiscard]] QTextCharFormat subHeaderAttributes();
    [[nodiscard]] QTextCharFormat labelAttributes();
    [[nodiscard]] QTextCharFormat normalAttributes();
    [[nodiscard]] QTextBlockFormat tabStopAttributes(); ///< they fit the text on screen

    void editInfo();          ///< opens the item editor for the shown record
    void chooseImageAction(); ///< asks for a picture file
    /// Stores the picture, shrunk to fit, in the shown record, or none.
    void dropImageAction(const ItemImage &image);
    void deleteItemImage();
    void searchForFishAction(); ///< searches the web for pictures of the shown record's species
    /// The very picture when it fits; none when it cannot be decoded.
    [[nodiscard]] static ItemImage scaleImageToFit(const ItemImage &image);

    void qzRadioButtonAction(int tag);          ///< a ProfileView::Tag; any other tag opens the editor as well
    void qzRadioButtonNavigateAction(int step); ///< -1 selects the previous record of the group, 1 the next
    void selectButtonAtIndex(int index);        ///< shows the page with this index

private:
    friend class Shared<FishDataController>;
    FishDataController();

    void connectView();
    void fillText(const ItemData &item);
    void enableSteps();
    /// The record that many places after the shown one in its group; null when there is none.
    [[nodiscard]] std::shared_ptr<ItemData> neighbour(int step) const;

    std::weak_ptr<ItemData> m_currentItem;
    OwnedWidget<ProfileView> m_view;
};

} // namespace brinemark
