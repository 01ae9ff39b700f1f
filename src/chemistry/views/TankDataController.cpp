// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/TankDataController.h"

#include "base/text/Texts.h"
#include "chemistry/views/TankDataEntryController.h"
#include "chemistry/views/TargetTableModel.h"
#include "model/Tank.h"
#include "ui/CaptionForm.h"
#include "ui/EmptyState.h"
#include "ui/Icons.h"
#include "ui/Shell.h"
#include "ui/Spacing.h"
#include "ui/TitleLine.h"
#include "ui/TruncatingDelegate.h"
#include "ui/lists/RecordTableView.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include <array>
#include <initializer_list>

namespace brinemark
{

namespace
{

void showValue(QLabel *field, const QString &value)
{
    field->setText(value);
    // The Tab key skips a field without text.
    field->setFocusPolicy(value.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

} // namespace

TankDataController::TankDataController()
    : m_model(new TargetTableModel(this))
{
}

TankDataController::~TankDataController() = default;

QWidget *TankDataController::view()
{
    if (!m_view)
        makeView();
    return m_view;
}

void TankDataController::makeView()
{
    m_view = new QWidget;
    m_view->setObjectName(QStringLiteral("tankView"));
    m_titleLine = new TitleLine;
    m_emptyState = new EmptyState(icon("NewTankBig"), text("EmptyTanks"), text("ToolbarNewTank"));
    m_pages = new QStackedWidget;
    m_pages->addWidget(makeContent());
    m_pages->addWidget(m_emptyState);
    auto *column = new QVBoxLayout(m_view);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addWidget(m_pages, 1);

    connect(m_emptyState, &EmptyState::addRequested, this,
            [] { TankDataEntryController::sharedInstance().displayTank(nullptr, true, {}); });
    connect(m_editButton, &QPushButton::clicked, this, &TankDataController::editAction);
    connect(m_table, &QTableView::doubleClicked, this, &TankDataController::edit);
    m_table->returnPressed = [this] { editAction(); };
}

QWidget *TankDataController::makeContent()
{
    m_nameField = makeValue(QStringLiteral("nameField"));
    m_sizeField = makeValue(QStringLiteral("sizeField"));
    m_typeField = makeValue(QStringLiteral("typeField"));
    for (QLabel *value : {m_nameField, m_sizeField, m_typeField})
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    makeTable();
    m_editButton = new QPushButton(icon("Edit"), text("Edit..."));
    m_editButton->setObjectName(QStringLiteral("editButton"));
    m_editButton->setToolTip(text("EditTankToolTip"));

    auto *form = new QGridLayout;
    form->setContentsMargins(spacing::content, 0, spacing::content, spacing::content);
    form->setHorizontalSpacing(spacing::group);
    form->setVerticalSpacing(spacing::tight);
    addCaptioned(*form, 0, 0, text("TankNameLabel"), m_nameField);
    addCaptioned(*form, 1, 0, text("TankSize"), m_sizeField);
    addCaptioned(*form, 2, 0, text("TankType"), m_typeField);
    auto *targetsTitle = makeCaption(text("TargetsTitle"));
    targetsTitle->setBuddy(m_table);
    targetsTitle->setContentsMargins(spacing::content, 0, spacing::content, spacing::group);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(spacing::aroundGroup);
    buttons->addWidget(m_editButton);
    buttons->addStretch();
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(form);
    column->addWidget(targetsTitle);
    column->addWidget(m_table, 1);
    column->addLayout(buttons);
    return content;
}

void TankDataController::makeTable()
{
    m_table = new RecordTableView([] { Shell::shared().deleteItem(); });
    m_table->setObjectName(QStringLiteral("conditionTableView"));
    m_table->setAccessibleName(text("TargetsTitle"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(new TruncatingDelegate(m_table));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionsClickable(false);
    m_table->horizontalHeader()->setSortIndicatorShown(false);
    constexpr std::array widths{200, 110, 100};
    for (int i = 0; i < int(widths.size()); ++i)
        m_table->setColumnWidth(i, widths[std::size_t(i)]);
}

void TankDataController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    QWidget *previous = tankTree;
    for (QWidget *next : std::initializer_list<QWidget *>{view(), m_nameField, m_sizeField, m_typeField, m_table,
                                                          m_editButton, helpButton}) {
        QWidget::setTabOrder(previous, next);
        previous = next;
    }
    display();
}

void TankDataController::display()
{
    if (!m_view)
        return;
    const Tank *tank = Shell::shared().currentTank();
    m_model->setTank(tank);
    m_titleLine->setTitle(text("TankViewTitle"));
    m_titleLine->setSecondary(tank ? tank->name : QString());
    showValue(m_nameField, tank ? tank->name : QString());
    showValue(m_sizeField, tank ? tank->size : QString());
    showValue(m_typeField, !tank ? QString() : tank->freshwater ? text("TankFreshwater") : text("TankSaltwater"));
    m_editButton->setEnabled(tank);
    m_pages->setCurrentIndex(tank ? 0 : m_pages->indexOf(m_emptyState));
}

void TankDataController::editAction()
{
    if (m_view)
        edit(m_table->selectionModel()->hasSelection() ? m_table->currentIndex() : QModelIndex());
}

void TankDataController::edit(const QModelIndex &row)
{
    Tank *tank = Shell::shared().currentTank();
    if (!tank)
        return;
    const NamedTarget *target = m_model->targetAt(row.row());
    TankDataEntryController::sharedInstance().displayTank(tank->shared_from_this(), false,
                                                          target ? target->name : QString());
}

} // namespace brinemark

#include "moc_TankDataController.cpp"
