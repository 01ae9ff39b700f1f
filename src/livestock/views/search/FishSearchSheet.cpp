// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/search/FishSearchSheet.h"

#include "livestock/SearchFields.h"
#include "livestock/views/search/FoundProfilesModel.h"
#include "ui/HelpWindow.h"
#include "ui/Icons.h"
#include "ui/ReturnKey.h"
#include "ui/Spacing.h"
#include "ui/TruncatingDelegate.h"

#include <QActionGroup>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace brinemark
{

namespace
{

constexpr int preferredRows = 14;

} // namespace

FishSearchSheet::FishSearchSheet(QWidget *parent)
    : QDialog(parent)
    , nameField(new QLineEdit)
    , searchButton(new QPushButton(text("FishSearchButton")))
    , resultsList(new QTableView)
    , progressLabel(new QLabel)
    , actionPopup(new QToolButton)
    , helpButton(new QPushButton(text("HelpButton")))
    , cancelButton(new QPushButton(text("CancelLabel")))
    , okButton(new QPushButton(text("FishSearchChoose")))
    , searchByItems(new QActionGroup(this))
    , searchOnlineItem(new QAction(icon("Web"), text("SearchProfileOnline"), this))
    , searchImagesItem(new QAction(icon("Web"), text("SearchProfileImages"), this))
    , m_model(new FoundProfilesModel(this))
{
    setObjectName(QStringLiteral("fishSearchPanel"));
    setWindowTitle(text("FishSearchTitle"));
    const std::pair<QWidget *, const char *> names[]{
        {nameField, "nameField"},         {searchButton, "searchButton"}, {resultsList, "resultsList"},
        {progressLabel, "progressLabel"}, {actionPopup, "actionPopup"},   {helpButton, "helpButton"},
        {cancelButton, "cancelButton"},   {okButton, "okButton"}};
    for (const auto &[control, name] : names)
        control->setObjectName(QLatin1String(name));
    nameField->setClearButtonEnabled(true);
    nameField->setAccessibleName(text("FishSearchFieldName"));
    makeSearchByMenu();
    makeResults();
    makeActionMenu();
    progressLabel->setTextFormat(Qt::PlainText);
    progressLabel->setAccessibleName(text("FishSearchProgressName"));
    okButton->setDefault(true);
    showHelpOnKey(this, QStringLiteral("fishSearch"));
    for (QPushButton *button : {searchButton, helpButton, cancelButton})
        button->setAutoDefault(false);
    connect(searchButton, &QPushButton::clicked, this, &FishSearchSheet::searchRequested);

    auto *above = new QHBoxLayout;
    above->setSpacing(spacing::group);
    above->addWidget(nameField, 1);
    above->addWidget(searchButton);
    auto *below = new QHBoxLayout;
    below->setSpacing(spacing::group);
    below->addWidget(actionPopup);
    below->addWidget(progressLabel, 1);
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(helpButton, QDialogButtonBox::HelpRole);
    buttons->addButton(cancelButton, QDialogButtonBox::RejectRole);
    buttons->addButton(okButton, QDialogButtonBox::AcceptRole);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::section);
    column->addLayout(above);
    column->addWidget(resultsList, 1);
    column->addLayout(below);
    column->addWidget(buttons);
}

void FishSearchSheet::makeSearchByMenu()
{
    auto *menu = new QMenu(nameField);
    menu->setObjectName(QStringLiteral("searchByMenu"));
    menu->addAction(text("SearchBy"))->setEnabled(false);
    const auto add = [&](TextKey title, QStringView field) {
        QAction *item = menu->addAction(QStringLiteral("  ") + text(title));
        item->setCheckable(true);
        item->setData(field.toString());
        searchByItems->addAction(item);
    };
    for (const SearchField &field : searchFields)
        add(field.titleKey, field.key);
    menu->addSeparator();
    add("Online"_key, onlineField);

    QAction *opens = nameField->addAction(icon("Search"), QLineEdit::LeadingPosition);
    opens->setObjectName(QStringLiteral("searchByAction"));
    opens->setText(text("SearchBy"));
    opens->setToolTip(text("SearchByToolTip"));
    connect(opens, &QAction::triggered, menu, [this, menu] {
        menu->popup(nameField->mapToGlobal(QPoint(0, nameField->height())));
    });
}

void FishSearchSheet::makeResults()
{
    auto *order = new FoundProfilesOrder(this);
    order->setSourceModel(m_model);
    resultsList->setModel(order);
    resultsList->setItemDelegate(new TruncatingDelegate(resultsList));
    resultsList->setAccessibleName(text("FishSearchResultsName"));
    resultsList->setSelectionBehavior(QAbstractItemView::SelectRows);
    resultsList->setSelectionMode(QAbstractItemView::SingleSelection);
    resultsList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    resultsList->setAlternatingRowColors(true);
    resultsList->setShowGrid(false);
    resultsList->setTabKeyNavigation(false);
    resultsList->setWordWrap(false);
    resultsList->verticalHeader()->hide();
    resultsList->verticalHeader()->setDefaultSectionSize(resultsList->fontMetrics().height() + spacing::group);
    QHeaderView &header = *resultsList->horizontalHeader();
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setHighlightSections(false);
    header.setStretchLastSection(true);
    header.setSortIndicator(-1, Qt::AscendingOrder); // in the order found
    header.setSortIndicatorClearable(true);
    resultsList->setSortingEnabled(true);
    for (int i = 0; i < int(searchFields.size()); ++i)
        resultsList->setColumnWidth(i, searchFields[std::size_t(i)].width * fontMetrics().averageCharWidth() +
                                           spacing::content);
    nameField->installEventFilter(this);
    resultsList->installEventFilter(this);
    const QItemSelectionModel *selection = resultsList->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &FishSearchSheet::selectionChanged);
    connect(m_model, &QAbstractItemModel::modelReset, this, &FishSearchSheet::selectionChanged);
}

void FishSearchSheet::makeActionMenu()
{
    auto *menu = new QMenu(actionPopup);
    menu->setObjectName(QStringLiteral("actionMenu"));
    for (QAction *item : {searchOnlineItem, searchImagesItem}) {
        menu->addAction(item);
        resultsList->addAction(item);
    }
    resultsList->setContextMenuPolicy(Qt::ActionsContextMenu);
    actionPopup->setMenu(menu);
    actionPopup->setIcon(icon("Action"));
    actionPopup->setPopupMode(QToolButton::InstantPopup);
    actionPopup->setToolTip(text("Action"));
    actionPopup->setAccessibleName(text("Action"));
}

QSize FishSearchSheet::sizeHint() const
{
    const QSize usual = QDialog::sizeHint();
    const int columns = resultsList->horizontalHeader()->length() + 2 * resultsList->frameWidth() +
                        resultsList->verticalScrollBar()->sizeHint().width();
    const int rows = preferredRows * resultsList->verticalHeader()->defaultSectionSize();
    return {columns + 2 * spacing::content, usual.height() - resultsList->sizeHint().height() + rows};
}

void FishSearchSheet::append(const SpeciesProfile &profile)
{
    m_model->append(profile);
}

void FishSearchSheet::clear()
{
    resultsList->clearSelection();
    m_model->clear();
}

const SpeciesProfile *FishSearchSheet::selectedProfile() const
{
    const QModelIndexList rows = resultsList->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return nullptr;
    const auto *order = static_cast<const QSortFilterProxyModel *>(resultsList->model());
    return &m_model->profileAt(order->mapToSource(rows.first()).row());
}

/// The arrow keys move from the field into the list, and up from its first row back. Return searches in the field and
/// chooses in the list.
bool FishSearchSheet::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (isPlainReturn(key)) {
        if (watched == nameField)
            Q_EMIT searchRequested();
        else
            okButton->click();
        return true;
    }
    if (watched == nameField && (key.key() == Qt::Key_Down || key.key() == Qt::Key_PageDown)) {
        goIntoResults();
        return true;
    }
    if (watched == resultsList && key.key() == Qt::Key_Up && resultsList->currentIndex().row() == 0) {
        nameField->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void FishSearchSheet::goIntoResults()
{
    if (resultsList->model()->rowCount() == 0)
        return;
    if (!selectedProfile())
        resultsList->selectRow(0);
    resultsList->setFocus(Qt::OtherFocusReason);
}

} // namespace brinemark

#include "moc_FishSearchSheet.cpp"
