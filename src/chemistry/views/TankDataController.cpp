#include "chemistry/views/TankDataController.h"

#include "base/text/Texts.h"
#include "chemistry/views/TankDataEntryController.h"
#include "chemistry/views/TargetTableModel.h"
#include "model/Tank.h"
#include "ui/CaptionForm.h"
#include "ui/Icons.h"
#include "ui/lists/RecordTableView.h"
#include "ui/Shell.h"
#include "ui/TitleLine.h"
#include "ui/TruncatingDelegate.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

namespace brinemark
{

TankDataController::TankDataController()
    : m_model(new TargetTableModel(this))
{
}

TankDataController::~TankDataController()
{
    delete m_view;
}

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
    m_nameField = makeValue(QStringLiteral("nameField"));
    m_sizeField = makeValue(QStringLiteral("sizeField"));
    m_typeField = makeValue(QStringLiteral("typeField"));
    m_table = new RecordTableView([] { Shell::shared().deleteItem(); });
    m_table->setObjectName(QStringLiteral("conditionTableView"));
    m_table->setModel(m_model);
    m_table->setItemDelegate(new TruncatingDelegate(m_table));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionsClickable(false);
    m_table->horizontalHeader()->setSortIndicatorShown(false);
    constexpr std::array widths{200, 110, 100};
    for (int i = 0; i < int(widths.size()); ++i)
        m_table->setColumnWidth(i, widths[std::size_t(i)]);
    auto *editButton = new QPushButton(icon("Edit"), text("Edit..."));
    editButton->setObjectName(QStringLiteral("editButton"));
    editButton->setToolTip(text("EditTankToolTip"));
    m_editButton = editButton;

    auto *form = new QGridLayout;
    form->setContentsMargins(16, 0, 16, 16);
    form->setHorizontalSpacing(8);
    form->setVerticalSpacing(4);
    addCaptioned(*form, 0, 0, text("TankNameLabel"), m_nameField);
    addCaptioned(*form, 1, 0, text("TankSize"), m_sizeField);
    addCaptioned(*form, 2, 0, text("TankType"), m_typeField);
    auto *targetsTitle = makeCaption(text("TargetsTitle"));
    targetsTitle->setBuddy(m_table);
    targetsTitle->setContentsMargins(16, 0, 16, 8);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(8, 8, 8, 8);
    buttons->addWidget(editButton);
    buttons->addStretch();
    auto *column = new QVBoxLayout(m_view);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_titleLine);
    column->addLayout(form);
    column->addWidget(targetsTitle);
    column->addWidget(m_table, 1);
    column->addLayout(buttons);

    connect(editButton, &QPushButton::clicked, this, &TankDataController::editAction);
    connect(m_table, &QTableView::doubleClicked, this, &TankDataController::edit);
}

void TankDataController::setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton)
{
    QWidget *shown = view();
    QWidget::setTabOrder(tankTree, shown);
    QWidget::setTabOrder(shown, m_table);
    QWidget::setTabOrder(m_table, m_editButton);
    QWidget::setTabOrder(m_editButton, helpButton);
    display();
}

void TankDataController::display()
{
    if (!m_view)
        return;
    Tank *tank = Shell::shared().currentTank();
    m_model->setTank(tank);
    m_titleLine->setTitle(text("TankViewTitle"));
    m_titleLine->setSecondary(tank ? tank->name : QString());
    m_nameField->setText(tank ? tank->name : QString());
    m_sizeField->setText(tank ? tank->size : QString());
    m_typeField->setText(!tank ? QString() : tank->freshwater ? text("TankFreshwater") : text("TankSaltwater"));
    m_editButton->setEnabled(tank);
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
    const TankData *target = m_model->targetAt(row.row());
    TankDataEntryController::sharedInstance().displayTank(tank->shared_from_this(), false,
                                                          target ? target->name : QString());
}

} // namespace brinemark
