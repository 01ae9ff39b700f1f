// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/FishSearchController.h"

#include "livestock/SearchFields.h"
#include "livestock/WebSearch.h"
#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/search/FishSearchSheet.h"
#include "model/ItemData.h"
#include "ui/Alerts.h"
#include "ui/Desktop.h"
#include "ui/HelpWindow.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"

#include <QActionGroup>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace brinemark
{

namespace
{

constexpr std::chrono::milliseconds typingPause{300};

} // namespace

FishSearchController::FishSearchController()
{
    m_searchSoon.setSingleShot(true);
    m_searchSoon.setInterval(typingPause);
    connect(&m_searchSoon, &QTimer::timeout, this, &FishSearchController::searchForFish);
    connect(&m_search, &ProfileSearch::foundFish, this, [this](const SpeciesProfile &found) { foundFish(&found); });
    connect(&m_search, &ProfileSearch::finished, this, [this] { foundFish(nullptr); });
}

FishSearchController::~FishSearchController() = default;

void FishSearchController::makeSheet()
{
    m_searchPanel = new FishSearchSheet(Shell::shared().mainWindow());
    const FishSearchSheet &sheet = *m_searchPanel;
    connect(sheet.searchByItems, &QActionGroup::triggered, this, &FishSearchController::searchPopupChanged);
    connect(sheet.nameField, &QLineEdit::textEdited, this, &FishSearchController::typed);
    connect(&sheet, &FishSearchSheet::searchRequested, this, &FishSearchController::searchForFish);
    connect(sheet.resultsList, &QTableView::doubleClicked, this, &FishSearchController::chooseFish);
    connect(&sheet, &FishSearchSheet::selectionChanged, this, &FishSearchController::selectionDidChange);
    connect(sheet.okButton, &QPushButton::clicked, this, &FishSearchController::chooseFish);
    connect(sheet.cancelButton, &QPushButton::clicked, this, &FishSearchController::cancelSearch);
    connect(sheet.helpButton, &QPushButton::clicked, this, &FishSearchController::helpButtonAction);
    connect(sheet.searchOnlineItem, &QAction::triggered, this, &FishSearchController::searchOnline);
    connect(sheet.searchImagesItem, &QAction::triggered, this, &FishSearchController::searchImagesOnline);
    connect(&sheet, &QDialog::finished, this, &FishSearchController::closeSearchSheet);
}

void FishSearchController::display(ItemData *item, ItemContext context)
{
    if (!m_searchPanel)
        makeSheet();
    m_itemData = item ? std::static_pointer_cast<ItemData>(item->shared_from_this()) : nullptr;
    m_itemContext = context;
    m_mainDict = nullptr;
    m_searchPanel->nameField->setText(FishDataEntryController::sharedInstance().nameField()->text());
    m_searchPanel->nameField->selectAll();
    m_searchPanel->nameField->setFocus();
    m_searchPanel->clear();
    selectionDidChange();
    openSheet(Shell::shared().mainWindow(), m_searchPanel);
    searchPopupChanged(nullptr);
}

// ---- searching

QString FishSearchController::searchedField() const
{
    const QAction *checked = m_searchPanel->searchByItems->checkedAction();
    return checked ? checked->data().toString() : QString();
}

void FishSearchController::searchPopupChanged(QAction *item)
{
    QAction *chosen = item ? item : m_searchPanel->searchByItems->actions().first();
    chosen->setChecked(true);
    const SpeciesProfile *selected = m_searchPanel->selectedProfile();
    const QString field = chosen->data().toString();
    if (item && field != onlineField && selected) {
        m_searchPanel->nameField->setText(profileValue(*selected, field));
        m_searchPanel->nameField->setFocus();
    }
    // Opening the browser takes a Return, so that choosing the field does not send what stands there by chance.
    if (field != onlineField)
        searchForFish();
    else
        clearSearch();
}

void FishSearchController::typed()
{
    if (m_searchPanel->nameField->text().isEmpty())
        clearSearch();
    else if (searchedField() != onlineField)
        m_searchSoon.start();
}

void FishSearchController::searchForFish()
{
    stopSearch();
    const QString field = searchedField();
    const QString words = m_searchPanel->nameField->text();
    if (field == onlineField) {
        desktop::openUrlFrom(m_searchPanel, webSearchUrl(words));
        return;
    }
    m_searchPanel->clear();
    m_found = 0;
    m_searchPanel->progressLabel->clear();
    if (words.isEmpty())
        return;
    if (!m_mainDict && !loadCollection())
        return;
    m_searchPanel->progressLabel->setText(text("Searching"));
    m_search.start(field, words, m_mainDict);
}

bool FishSearchController::loadCollection()
{
    m_searchPanel->progressLabel->setText(text("Loading"));
    m_searchPanel->progressLabel->repaint();
    m_mainDict = ProfileCollection::load(m_itemContext);
    if (m_mainDict)
        return true;
    beep();
    m_searchPanel->progressLabel->clear();
    beginAlertSheet(m_searchPanel,
                    {.style = AlertStyle::Critical, .title = text("NoFishData"), .message = text("NoFishDataMessage")},
                    [this](int) { cancelSearch(); });
    return false;
}

void FishSearchController::foundFish(const SpeciesProfile *profile)
{
    if (profile) {
        m_searchPanel->append(*profile);
        m_searchPanel->progressLabel->setText(formatText(text("Finding"), {++m_found}));
    } else if (m_searchPanel->nameField->text().isEmpty()) {
        clearSearch();
    } else {
        m_searchPanel->progressLabel->setText(formatText(text("Found"), {m_found}));
    }
}

void FishSearchController::clearSearch()
{
    stopSearch();
    m_found = 0;
    m_searchPanel->clear();
    m_searchPanel->progressLabel->clear();
}

void FishSearchController::stopSearch()
{
    m_searchSoon.stop();
    m_search.stop();
}

void FishSearchController::selectionDidChange()
{
    const bool selected = m_searchPanel->selectedProfile() != nullptr;
    m_searchPanel->okButton->setEnabled(selected);
    m_searchPanel->searchOnlineItem->setEnabled(selected);
    m_searchPanel->searchImagesItem->setEnabled(selected);
}

// ---- the selected profile on the web

void FishSearchController::searchOnline()
{
    if (const SpeciesProfile *selected = m_searchPanel->selectedProfile())
        desktop::openUrlFrom(m_searchPanel,
                             speciesSearchUrl(profileValue(*selected, u"Name"), profileValue(*selected, u"SciName")));
}

void FishSearchController::searchImagesOnline()
{
    if (const SpeciesProfile *selected = m_searchPanel->selectedProfile())
        desktop::openUrlFrom(m_searchPanel, speciesImageSearchUrl(profileValue(*selected, u"Name"),
                                                                  profileValue(*selected, u"SciName")));
}

void FishSearchController::helpButtonAction()
{
    showHelp(QStringLiteral("fishSearch"));
}

// ---- ending

void FishSearchController::chooseFish()
{
    if (m_searchPanel->selectedProfile())
        m_searchPanel->done(Chosen);
}

void FishSearchController::cancelSearch()
{
    m_searchPanel->done(Cancelled);
}

void FishSearchController::closeSearchSheet(int returnCode)
{
    stopSearch();
    const std::shared_ptr<ItemData> item = std::exchange(m_itemData, nullptr);
    m_mainDict = nullptr;
    auto &editor = FishDataEntryController::sharedInstance();
    if (returnCode == Chosen) {
        if (const SpeciesProfile *selected = m_searchPanel->selectedProfile())
            editor.displaySearchResults(*selected, item.get());
    } else {
        editor.displayItemData(item.get(), m_itemContext);
    }
}

} // namespace brinemark

#include "moc_FishSearchController.cpp"
