// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/FishDataEntryController.h"

#include "base/Product.h"
#include "livestock/LivestockGroup.h"
#include "livestock/WebSearch.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/FishSearchController.h"
#include "livestock/views/PictureRefusal.h"
#include "livestock/views/PictureWell.h"
#include "livestock/views/editor/ItemSheet.h"
#include "model/Tank.h"
#include "model/pictures/PictureReader.h"
#include "ui/Alerts.h"
#include "ui/Desktop.h"
#include "ui/FinishTyping.h"
#include "ui/HelpWindow.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"
#include "ui/pictures/PictureConverter.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QLineEdit>
#include <QPushButton>

namespace brinemark
{

FishDataEntryController::FishDataEntryController() = default;

FishDataEntryController::~FishDataEntryController() = default;

ItemSheet &FishDataEntryController::infoPanel()
{
    if (m_infoPanel)
        return *m_infoPanel;
    m_infoPanel = new ItemSheet(Shell::shared().mainWindow());
    const ItemSheet &sheet = *m_infoPanel;
    using Self = FishDataEntryController;
    connect(sheet.saveButton, &QPushButton::clicked, this, &Self::saveButton);
    connect(sheet.cancelButton, &QPushButton::clicked, this, &Self::cancelButton);
    connect(sheet.searchButton, &QPushButton::clicked, this, &Self::searchButton);
    connect(sheet.submitButton, &QPushButton::clicked, this, &Self::submitButton);
    connect(sheet.helpButton, &QPushButton::clicked, this, [] { showHelp(QStringLiteral("livestock-new")); });
    connect(sheet.chooseImageButton, &QPushButton::clicked, this, &Self::chooseImageAction);
    connect(sheet.deleteImageButton, &QPushButton::clicked, this, &Self::deleteItemImageAction);
    connect(sheet.fishImageView, &PictureWell::chooseRequested, this, &Self::chooseImageAction);
    connect(sheet.fishImageView, &PictureWell::imageSearchRequested, this, &Self::searchForItemImageAction);
    connect(sheet.fishImageView, &PictureWell::pictureDropped, this, &Self::dropImageAction);
    connect(sheet.fishImageView, &PictureWell::refused, this, &Self::pictureRefused);
    connect(&sheet, &QDialog::finished, this, &Self::closeEditSheet);
    return *m_infoPanel;
}

QLineEdit *FishDataEntryController::nameField()
{
    return &infoPanel().form.nameField();
}

// ---- opening

/// Remembers the record and makes the sheet ready to be filled; false while it is open already.
bool FishDataEntryController::begin(ItemData *item)
{
    ItemSheet &sheet = infoPanel();
    if (sheet.isVisible())
        return false;
    finishTyping(Shell::shared().mainWindow());
    sheet.fishImageView->finishReading(); // what was chosen for another record must not come to this one
    m_itemData = item ? std::static_pointer_cast<ItemData>(item->shared_from_this()) : nullptr;
    const LivestockGroupTraits &kind = livestockGroupForContext(m_itemContext);
    sheet.setWindowTitle(item ? fillPlaceholders(text("EditItemTitle"), {item->name}) : text(kind.addKey));
    return true;
}

void FishDataEntryController::setWithContext(ItemContext context)
{
    infoPanel().form.setWithContext(livestockGroupForContext(context));
}

void FishDataEntryController::displayItemData(ItemData *item, ItemContext context)
{
    if (!item && !Shell::shared().currentTank())
        return;
    if (infoPanel().isVisible())
        return;
    m_itemContext = context;
    if (!begin(item))
        return;
    setWithContext(context);
    ItemSheet &sheet = infoPanel();
    if (item)
        sheet.form.showItem(*item);
    else
        sheet.form.showNewItem();
    dropImageAction(item ? item->itemImage : ItemImage());
    sheet.showFirstPage();
    openSheet(Shell::shared().mainWindow(), &sheet);
}

void FishDataEntryController::displaySearchResults(const SpeciesProfile &profile, ItemData *item)
{
    if (!begin(item))
        return;
    ItemSheet &sheet = infoPanel();
    const bool usable = sheet.form.showProfile(profile);
    dropImageAction({});
    sheet.showFirstPage();
    openSheet(Shell::shared().mainWindow(), &sheet);
    if (usable)
        return;
    beep();
    beginAlertSheet(&sheet,
                    {.style = AlertStyle::Critical, .title = text("Error"), .message = text("ReadErrorMessage")});
}

// ---- ending

void FishDataEntryController::saveButton()
{
    QGuiApplication::inputMethod()->commit(); // what an input method is still composing
    m_pictureRefused = false;
    m_infoPanel->fishImageView->finishReading();
    if (!m_pictureRefused)
        m_infoPanel->done(ItemSheet::Saved);
}

void FishDataEntryController::cancelButton()
{
    m_infoPanel->done(ItemSheet::Cancelled);
}

void FishDataEntryController::searchButton()
{
    m_infoPanel->done(ItemSheet::Searching);
}

void FishDataEntryController::closeEditSheet(int returnCode)
{
    if (returnCode == ItemSheet::Saved)
        store();
    const std::shared_ptr<ItemData> item = std::exchange(m_itemData, nullptr);
    if (returnCode == ItemSheet::Searching)
        FishSearchController::sharedInstance().display(item.get(), m_itemContext);
    else
        Shell::shared().orderFrontAndCheckModified();
}

void FishDataEntryController::store()
{
    const bool isNew = !m_itemData;
    if (isNew)
        m_itemData = addItem();
    if (!m_itemData)
        return;
    ItemData &item = *m_itemData;
    m_infoPanel->form.storeInto(item);
    item.itemImage = m_infoPanel->fishImageView->picture();
    PictureConverter::sharedInstance().convertLater(item.itemImage);
    Shell &shell = Shell::shared();
    shell.updateTree();
    if (isNew)
        shell.selectInTree(item);
    FishDataController::sharedInstance().displayItemData(&item);
    shell.documentModifiedWithChange(true);
}

/// A new record at the end of its group in the current tank; null without a tank, or for a context without a kind.
std::shared_ptr<ItemData> FishDataEntryController::addItem()
{
    Tank *tank = Shell::shared().currentTank();
    const std::optional<ContainerKind> kind = containerKindOf(m_itemContext);
    if (!tank || !kind)
        return nullptr;
    const std::shared_ptr<ItemData> item = makeItemData(m_itemContext, tank);
    item->name = compareUnspecified(nameField()->text());
    tank->container(*kind)->appendRecord(item);
    return item;
}

// ---- picture

void FishDataEntryController::dropImageAction(const ItemImage &image)
{
    m_infoPanel->showPicture(image);
}

void FishDataEntryController::chooseImageAction()
{
    choosePicture(m_infoPanel, [this](const QString &path) {
        if (path.isEmpty())
            beep();
        else
            m_infoPanel->fishImageView->takeFile(path);
    });
}

void FishDataEntryController::deleteItemImageAction()
{
    dropImageAction({});
}

void FishDataEntryController::pictureRefused(PictureProblem problem, const QString &fileName)
{
    m_pictureRefused = true;
    beginPictureRefusal(m_infoPanel, problem, fileName);
}

void FishDataEntryController::searchForItemImageAction()
{
    const ItemForm &form = infoPanel().form;
    desktop::openUrlFrom(m_infoPanel, speciesImageSearchUrl(form.shownText(u"name"), form.shownText(u"sciName")));
}

// ---- sending a profile in

void FishDataEntryController::submitButton()
{
    beep();
    const Alert question{.title = text("SubmitTitle"),
                         .message = text("SubmitMessage"),
                         .defaultButton = text("CancelLabel"),
                         .alternateButton = text("SendLabel"),
                         .cancels = AlertDefault};
    beginAlertSheet(m_infoPanel, question, [this](int answer) {
        if (answer != AlertAlternate)
            return;
        const ItemForm &form = m_infoPanel->form;
        const QString body = submissionBody([&](QStringView key) { return form.shownText(key); });
        desktop::openUrlFrom(m_infoPanel, desktop::mailUrl(QLatin1String(product::profilesAddress),
                                                           QStringLiteral("Fish Profile Submission"), body));
    });
}

} // namespace brinemark

#include "moc_FishDataEntryController.cpp"
