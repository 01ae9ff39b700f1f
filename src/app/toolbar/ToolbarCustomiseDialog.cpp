// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/toolbar/ToolbarCustomiseDialog.h"

#include "app/toolbar/ToolbarAvailableModel.h"
#include "app/toolbar/ToolbarShownModel.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace brinemark
{

namespace
{

constexpr QSize listSize(232, 352);
constexpr QSize listIcons(24, 24);

int currentRow(const QListView *list)
{
    const QModelIndexList selected = list->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

} // namespace

ToolbarCustomiseDialog::ToolbarCustomiseDialog(const ToolbarConfiguration &configuration, Apply apply, QWidget *parent)
    : QDialog(parent)
    , m_apply(std::move(apply))
    , m_configuration(configuration)
    , m_shownModel(new ToolbarShownModel(configuration.identifiers, this))
    , m_availableModel(new ToolbarAvailableModel(m_shownModel, this))
{
    setObjectName(QStringLiteral("toolbarCustomiseDialog"));
    showHelpOnKey(this, QStringLiteral("toolbar"));
    setWindowTitle(text("ToolbarCustomiseTitle"_key));
    setWindowModality(Qt::WindowModal);

    auto *lists = new QHBoxLayout;
    lists->setSpacing(spacing::content);
    lists->addLayout(availableColumn());
    lists->addLayout(shownColumn());

    m_display = new QComboBox;
    m_display->setObjectName(QStringLiteral("toolbarDisplay"));
    for (const ToolbarDisplayMode &mode : toolbarDisplayModes) {
        m_display->addItem(text(mode.label));
        if (mode.mode == configuration.display)
            m_display->setCurrentIndex(m_display->count() - 1);
    }
    auto *displayLabel = new QLabel(text("ToolbarCustomiseDisplay"_key));
    displayLabel->setBuddy(m_display);
    connect(m_display, &QComboBox::currentIndexChanged, this, &ToolbarCustomiseDialog::applyNow);

    QPushButton *defaults =
        button("toolbarReset", "ToolbarCustomiseReset"_key, &ToolbarCustomiseDialog::restoreDefaults);
    QPushButton *done = button("toolbarDone", "ToolbarCustomiseDone"_key, &ToolbarCustomiseDialog::finish);
    done->setDefault(true);

    auto *bottom = new QHBoxLayout;
    bottom->setSpacing(spacing::group);
    bottom->addWidget(displayLabel);
    bottom->addWidget(m_display);
    bottom->addStretch();
    bottom->addWidget(defaults);
    bottom->addWidget(done);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(spacing::aroundContent);
    all->setSpacing(spacing::content);
    all->addLayout(lists, 1);
    all->addLayout(bottom);

    connect(m_shownModel, &ToolbarShownModel::changed, this, &ToolbarCustomiseDialog::applyNow);
    connect(m_shownModel, &ToolbarShownModel::dropped, this, &ToolbarCustomiseDialog::selectShown);
    selectShown(0);
    m_available->setCurrentIndex(m_availableModel->index(0));
    m_available->setFocus();
}

QVBoxLayout *ToolbarCustomiseDialog::availableColumn()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(spacing::group);
    m_available = listView("toolbarAvailable", m_availableModel, "ToolbarCustomiseAvailable"_key);
    auto *title = new QLabel(text("ToolbarCustomiseAvailable"_key));
    title->setBuddy(m_available);
    column->addWidget(title);
    column->addWidget(m_available, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing::group);
    m_add = button("toolbarAdd", "ToolbarCustomiseAdd"_key, &ToolbarCustomiseDialog::add);
    buttons->addWidget(m_add);
    buttons->addStretch();
    column->addLayout(buttons);

    addKey(m_available, Qt::Key_Return, &ToolbarCustomiseDialog::add);
    addKey(m_available, Qt::Key_Enter, &ToolbarCustomiseDialog::add);
    connect(m_available, &QListView::doubleClicked, this, &ToolbarCustomiseDialog::add);
    return column;
}

QVBoxLayout *ToolbarCustomiseDialog::shownColumn()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(spacing::group);
    m_shown = listView("toolbarShown", m_shownModel, "ToolbarCustomiseShown"_key);
    auto *title = new QLabel(text("ToolbarCustomiseShown"_key));
    title->setBuddy(m_shown);
    column->addWidget(title);
    column->addWidget(m_shown, 1);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(spacing::group);
    m_remove = button("toolbarRemove", "ToolbarCustomiseRemove"_key, &ToolbarCustomiseDialog::remove);
    m_up = button("toolbarUp", "ToolbarCustomiseUp"_key, &ToolbarCustomiseDialog::moveUp);
    m_down = button("toolbarDown", "ToolbarCustomiseDown"_key, &ToolbarCustomiseDialog::moveDown);
    for (QPushButton *each : {m_remove, m_up, m_down})
        buttons->addWidget(each);
    buttons->addStretch();
    column->addLayout(buttons);

    addKey(m_shown, Qt::Key_Delete, &ToolbarCustomiseDialog::remove);
    addKey(m_shown, Qt::Key_Backspace, &ToolbarCustomiseDialog::remove);
    addKey(m_shown, Qt::ALT | Qt::Key_Up, &ToolbarCustomiseDialog::moveUp);
    addKey(m_shown, Qt::ALT | Qt::Key_Down, &ToolbarCustomiseDialog::moveDown);
    return column;
}

QListView *ToolbarCustomiseDialog::listView(const char *name, QAbstractItemModel *model, TextKey title)
{
    auto *list = new QListView;
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(text(title));
    list->setModel(model);
    list->setIconSize(listIcons);
    list->setMinimumSize(listSize);
    list->setUniformItemSizes(true);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setDragDropMode(QAbstractItemView::DragDrop);
    list->setDefaultDropAction(Qt::MoveAction);
    list->setDragDropOverwriteMode(false);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ToolbarCustomiseDialog::enableButtons);
    return list;
}

// Return is reserved for the Done button and for the list with the focus, so these buttons are not auto-default.
QPushButton *ToolbarCustomiseDialog::button(const char *name, TextKey caption, void (ToolbarCustomiseDialog::*action)())
{
    auto *result = new QPushButton(text(caption));
    result->setObjectName(QLatin1String(name));
    result->setAutoDefault(false);
    connect(result, &QPushButton::clicked, this, action);
    return result;
}

void ToolbarCustomiseDialog::addKey(QListView *list, const QKeySequence &key, void (ToolbarCustomiseDialog::*action)())
{
    auto *shortcut = new QShortcut(key, list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, action);
}

// Inserts the new item after the selected one.
void ToolbarCustomiseDialog::add()
{
    const int from = currentRow(m_available);
    if (from < 0)
        return;
    const int selected = currentRow(m_shown);
    selectShown(m_shownModel->insert(selected < 0 ? -1 : selected + 1, m_availableModel->identifiers().at(from)));
}

void ToolbarCustomiseDialog::remove()
{
    m_shownModel->remove(currentRow(m_shown));
}

void ToolbarCustomiseDialog::moveUp()
{
    const int row = currentRow(m_shown);
    if (row > 0)
        selectShown(m_shownModel->move(row, row - 1));
}

void ToolbarCustomiseDialog::moveDown()
{
    const int row = currentRow(m_shown);
    if (row >= 0 && row + 1 < m_shownModel->rowCount())
        selectShown(m_shownModel->move(row, row + 2));
}

void ToolbarCustomiseDialog::restoreDefaults()
{
    m_display->setCurrentIndex(0);
    m_shownModel->setIdentifiers(toolbarDefaultIdentifiers());
    selectShown(0);
}

void ToolbarCustomiseDialog::selectShown(int row)
{
    const QModelIndex index = m_shownModel->index(row);
    if (index.isValid())
        m_shown->setCurrentIndex(index);
    enableButtons();
}

void ToolbarCustomiseDialog::enableButtons()
{
    if (!m_add || !m_down)
        return;
    const int row = currentRow(m_shown);
    m_add->setEnabled(currentRow(m_available) >= 0);
    m_remove->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_shownModel->rowCount());
}

void ToolbarCustomiseDialog::applyNow()
{
    m_configuration.identifiers = m_shownModel->identifiers();
    m_configuration.display = toolbarDisplayModes[m_display->currentIndex()].mode;
    m_apply(m_configuration);
    enableButtons();
}

} // namespace brinemark

#include "moc_ToolbarCustomiseDialog.cpp"
