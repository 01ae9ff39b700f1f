#include "chemistry/views/TankDataEntryController.h"

#include "base/text/Texts.h"
#include "chemistry/views/TankDataController.h"
#include "model/Tank.h"
#include "model/TankList.h"
#include "ui/CaptionForm.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace brinemark
{

namespace
{

constexpr int fieldWidth = 280; ///< pixels

} // namespace

TankDataEntryController::TankDataEntryController() = default;

TankDataEntryController::~TankDataEntryController()
{
    delete m_infoPanel;
}

void TankDataEntryController::makeSheet()
{
    m_infoPanel = new QDialog(Shell::shared().mainWindow());
    m_infoPanel->setObjectName(QStringLiteral("tankSheet"));
    m_nameField = new QLineEdit;
    m_nameField->setObjectName(QStringLiteral("nameField"));
    m_nameField->setMinimumWidth(fieldWidth);
    m_sizeField = new QLineEdit;
    m_sizeField->setObjectName(QStringLiteral("sizeField"));
    m_freshwaterButton = new QRadioButton(text("TankFreshwater"));
    m_freshwaterButton->setObjectName(QStringLiteral("freshwaterButton"));
    m_marineButton = new QRadioButton(text("TankSaltwater"));
    m_marineButton->setObjectName(QStringLiteral("marineButton"));
    auto *buttons = new QDialogButtonBox;
    m_okButton = buttons->addButton(text("OK"), QDialogButtonBox::AcceptRole);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->setDefault(true);
    m_cancelButton = buttons->addButton(text("CancelLabel"), QDialogButtonBox::RejectRole);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));

    auto *types = new QWidget;
    auto *typeLine = new QHBoxLayout(types);
    typeLine->setContentsMargins(0, 0, 0, 0);
    typeLine->setSpacing(16);
    typeLine->addWidget(m_freshwaterButton);
    typeLine->addWidget(m_marineButton);
    typeLine->addStretch();
    auto *form = new QGridLayout;
    form->setHorizontalSpacing(8);
    form->setVerticalSpacing(8);
    addCaptioned(*form, 0, 0, text("TankNameLabel"), m_nameField);
    addCaptioned(*form, 1, 0, text("TankSize"), m_sizeField);
    addCaptioned(*form, 2, 0, text("TankType"), types);
    auto *column = new QVBoxLayout(m_infoPanel);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(16);
    column->addLayout(form);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);

    connect(buttons, &QDialogButtonBox::accepted, this, &TankDataEntryController::okAction);
    connect(buttons, &QDialogButtonBox::rejected, this, &TankDataEntryController::cancelAction);
    connect(m_infoPanel, &QDialog::finished, this, &TankDataEntryController::closeSheet);
}

void TankDataEntryController::displayTank(std::shared_ptr<Tank> tank, bool withCancel, const QString &)
{
    if (!m_infoPanel)
        makeSheet();
    if (m_infoPanel->isVisible())
        return;
    const bool isNew = !tank;
    m_tank = isNew ? std::make_shared<Tank>(text("NewTankName")) : std::move(tank);
    m_infoPanel->setWindowTitle(isNew ? text("NewTankTitle") : text("EditTankTitle"));
    m_nameField->setText(m_tank->name);
    m_sizeField->setText(m_tank->size);
    (m_tank->freshwater ? m_freshwaterButton : m_marineButton)->setChecked(true);
    m_cancelButton->setVisible(withCancel);
    m_nameField->setFocus();
    m_nameField->selectAll();
    openSheet(Shell::shared().mainWindow(), m_infoPanel);
}

void TankDataEntryController::okAction()
{
    if (m_infoPanel)
        m_infoPanel->done(1);
}

void TankDataEntryController::cancelAction()
{
    if (m_infoPanel)
        m_infoPanel->done(2);
}

void TankDataEntryController::closeSheet(int returnCode)
{
    const std::shared_ptr<Tank> tank = std::exchange(m_tank, nullptr);
    Shell &shell = Shell::shared();
    // Escape ends a sheet without a cancel button too: what was typed then stays untold.
    if (returnCode == 1 && tank) {
        tank->name = m_nameField->text();
        tank->size = m_sizeField->text();
        tank->freshwater = m_freshwaterButton->isChecked();
        if (shell.tankList().indexOf(tank.get()) < 0)
            shell.appendTank(tank);
        shell.updateTree();
        TankDataController::sharedInstance().display();
        shell.documentModifiedWithChange(true);
    }
    shell.orderFrontAndCheckModified();
}

} // namespace brinemark
