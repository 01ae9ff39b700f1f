// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/TankDataEntryController.h"

#include "base/text/Texts.h"
#include "chemistry/HighValue.h"
#include "chemistry/TargetInput.h"
#include "chemistry/views/TankDataController.h"
#include "chemistry/views/targets/HighValueBox.h"
#include "chemistry/views/targets/TankSheet.h"
#include "chemistry/views/targets/TargetNumberEdit.h"
#include "model/Tank.h"
#include "model/TankList.h"
#include "ui/Alerts.h"
#include "ui/CheckedLineEdit.h"
#include "ui/FinishTyping.h"
#include "ui/HelpWindow.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace brinemark
{

namespace
{

enum ReturnCode { Dismissed = 0, Confirmed = 1, Cancelled = 2 };

} // namespace

TankDataEntryController::TankDataEntryController() = default;

TankDataEntryController::~TankDataEntryController() = default;

void TankDataEntryController::makeSheet()
{
    m_infoPanel = new TankSheet(Shell::shared().mainWindow());
    const TankSheet &sheet = *m_infoPanel;
    const auto onClick = [this](QAbstractButton *button, auto action) {
        connect(button, &QAbstractButton::clicked, this, action);
    };
    onClick(sheet.okButton, &TankDataEntryController::okAction);
    onClick(sheet.cancelButton, &TankDataEntryController::cancelAction);
    onClick(sheet.helpButton, &TankDataEntryController::helpButtonAction);
    onClick(sheet.warningCheckbox, &TankDataEntryController::warningCheckboxAction);
    onClick(sheet.deviationCheckbox, &TankDataEntryController::deviationCheckboxAction);
    connect(sheet.freshwaterButton, &QRadioButton::toggled, this, &TankDataEntryController::highValueCheck);
    connect(sheet.warningPopup, &QComboBox::currentIndexChanged, this, &TankDataEntryController::warningPopupAction);
    connect(sheet.preferred, &TargetNumberEdit::stepped, this, &TankDataEntryController::preferredStepperAction);
    connect(sheet.deviation, &TargetNumberEdit::stepped, this, &TankDataEntryController::deviationStepperAction);
    for (TargetNumberEdit *number : {sheet.preferred, sheet.deviation}) {
        connect(number, &TargetNumberEdit::typing, this, &TankDataEntryController::highValueCheck);
        connect(number, &TargetNumberEdit::editingFinished, this, [this, number] { controlTextDidEndEditing(number); });
    }
    connect(&sheet, &TankSheet::dismissed, this, [this] { dismissSheet(); });
    connect(&sheet, &QDialog::finished, this, &TankDataEntryController::closeSheet);
}

// ---- opening

void TankDataEntryController::displayTank(std::shared_ptr<Tank> tank, bool withCancel, const QString &title)
{
    finishTyping(Shell::shared().mainWindow());
    if (!m_infoPanel)
        makeSheet();
    else if (m_tank)
        return;
    const bool isNew = !tank;
    m_tank = isNew ? std::make_shared<Tank>(text("NewTankName")) : std::move(tank);
    m_currentData = nullptr;
    m_targetsChanged = false;
    showTank(isNew);
    m_infoPanel->cancelButton->setVisible(withCancel);
    QLineEdit *first = selectTitle(title) ? m_infoPanel->preferred->field() : m_infoPanel->nameField;
    warningPopupAction();
    first->setFocus();
    first->selectAll();
    openSheet(Shell::shared().mainWindow(), m_infoPanel);
}

void TankDataEntryController::showTank(bool isNew)
{
    m_infoPanel->setWindowTitle(isNew ? text("NewTankTitle") : text("EditTankTitle"));
    m_infoPanel->nameField->setText(m_tank->name);
    m_infoPanel->sizeField->setText(m_tank->size);
    (m_tank->freshwater ? m_infoPanel->freshwaterButton : m_infoPanel->marineButton)->setChecked(true);
    m_infoPanel->fillChooser(*m_tank);
}

/// Chooses the target of that name, or the first target when there is none; returns whether the name was found.
bool TankDataEntryController::selectTitle(const QString &title)
{
    const QSignalBlocker quiet(m_infoPanel->warningPopup);
    const int item =
        title.isEmpty() ? -1 : m_infoPanel->warningPopup->findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_infoPanel->warningPopup->setCurrentIndex(std::max(item, 0));
    return item >= 0;
}

// ---- one target

void TankDataEntryController::warningPopupAction()
{
    if (!m_tank)
        return;
    storeNumbers();
    const QComboBox &popup = *m_infoPanel->warningPopup;
    m_infoPanel->setWarningTitle(popup.currentText());
    m_currentData = m_tank->targetForKey(popup.currentData(TankSheet::TargetKeyRole).toString());
    setupInputWithTag(popup.currentData(TankSheet::TargetTagRole).toInt());
    showCurrentData();
    setupStepperValues();
    enableWarningControls(m_infoPanel->warningCheckbox->isChecked());
    highValueCheck();
}

void TankDataEntryController::showCurrentData()
{
    const TankSheet &sheet = *m_infoPanel;
    sheet.warningCheckbox->setEnabled(m_currentData);
    sheet.preferred->setEnabled(m_currentData);
    sheet.warningCheckbox->setChecked(m_currentData && m_currentData->warningOn);
    sheet.deviationCheckbox->setChecked(m_currentData && m_currentData->deviationOn);
    if (m_currentData) {
        sheet.preferred->setValue(m_currentData->preferredValue);
        sheet.deviation->setValue(m_currentData->deviationValue);
    } else {
        sheet.preferred->clear();
        sheet.deviation->clear();
    }
}

void TankDataEntryController::setupInputWithTag(int tag)
{
    const TargetInput *input = targetInputForTag(tag);
    if (!input || !m_infoPanel)
        return;
    m_infoPanel->preferred->setInput(input->preferred, input->decimals);
    m_infoPanel->deviation->setInput(input->deviation, input->decimals);
}

void TankDataEntryController::setupStepperValues()
{
    m_infoPanel->preferred->setupStepper();
    m_infoPanel->deviation->setupStepper();
}

template <class Value>
void TankDataEntryController::store(Value TankData::*field, Value value)
{
    if (!m_currentData || m_currentData->*field == value)
        return;
    m_currentData->*field = value;
    m_targetsChanged = true;
}

void TankDataEntryController::storeNumbers()
{
    storeNumber(*m_infoPanel->preferred);
    storeNumber(*m_infoPanel->deviation);
}

/// Stores a number only if the user has changed it, so that other numbers keep all their digits, even beyond the
/// field's maximum.
void TankDataEntryController::storeNumber(const TargetNumberEdit &number)
{
    const bool isPreferred = &number == m_infoPanel->preferred;
    if (number.isTouched())
        store(isPreferred ? &TankData::preferredValue : &TankData::deviationValue, float(number.value()));
}

void TankDataEntryController::preferredStepperAction()
{
    m_infoPanel->preferred->takeStepperValue();
    storeNumber(*m_infoPanel->preferred);
    highValueCheck();
}

void TankDataEntryController::deviationStepperAction()
{
    m_infoPanel->deviation->takeStepperValue();
    storeNumber(*m_infoPanel->deviation);
    highValueCheck();
}

void TankDataEntryController::controlTextDidEndEditing(TargetNumberEdit *number)
{
    if (!m_currentData)
        return; // the sheet is closed, which takes the focus from the field
    number->moveStepper();
    storeNumber(*number);
    highValueCheck();
}

void TankDataEntryController::warningCheckboxAction()
{
    const bool on = m_infoPanel->warningCheckbox->isChecked();
    enableWarningControls(on);
    store(&TankData::warningOn, on);
    highValueCheck();
}

void TankDataEntryController::deviationCheckboxAction()
{
    const bool on = m_infoPanel->deviationCheckbox->isChecked();
    m_infoPanel->deviation->setEnabled(on);
    store(&TankData::deviationOn, on);
    highValueCheck();
}

void TankDataEntryController::enableWarningControls(bool warningOn)
{
    m_infoPanel->deviationCheckbox->setEnabled(warningOn);
    m_infoPanel->deviation->setEnabled(warningOn && m_infoPanel->deviationCheckbox->isChecked());
}

// ---- advice

std::optional<Parameter> TankDataEntryController::chosenParameter() const
{
    const TargetInput *input =
        targetInputForTag(m_infoPanel->warningPopup->currentData(TankSheet::TargetTagRole).toInt());
    return input && m_currentData ? std::optional(input->parameter) : std::nullopt;
}

void TankDataEntryController::highValueCheck()
{
    const TankSheet &sheet = *m_infoPanel;
    double value = sheet.preferred->value();
    if (sheet.deviation->isEnabled())
        value += sheet.deviation->value();
    const std::optional<Parameter> parameter = chosenParameter();
    const bool freshwater = sheet.freshwaterButton->isChecked();
    const bool isHigh = parameter && isHighValue(*parameter, freshwater, value);
    if (isHigh)
        sheet.warningBox->setAdvice(*parameter, freshwater, value);
    showHighValueWarningWithBool(isHigh);
}

void TankDataEntryController::showHighValueWarningWithBool(bool show)
{
    HighValueBox &box = *m_infoPanel->warningBox;
    const bool isNew = show && box.isHidden();
    box.setVisible(show);
    if (isNew) {
        QAccessibleEvent appeared(&box, QAccessible::Alert); // makes a screen reader announce it
        QAccessible::updateAccessibility(&appeared);
    }
}

// ---- closing

QPushButton *TankDataEntryController::cancelButton() const
{
    return m_infoPanel ? m_infoPanel->cancelButton : nullptr;
}

void TankDataEntryController::helpButtonAction()
{
    showHelp(QStringLiteral("conditions"));
}

void TankDataEntryController::okAction()
{
    if (!m_infoPanel)
        return;
    if (m_infoPanel->nameField->text().trimmed().isEmpty()) {
        beep();
        m_infoPanel->nameField->setFocus();
        return;
    }
    storeNumbers();
    endSheet(Confirmed);
}

void TankDataEntryController::cancelAction()
{
    if (m_infoPanel)
        endSheet(Cancelled);
}

void TankDataEntryController::dismissSheet()
{
    storeNumbers();
    const TankSheet &sheet = *m_infoPanel;
    const bool changed = m_targetsChanged || sheet.nameField->text() != m_tank->name ||
                         sheet.sizeField->text() != m_tank->size ||
                         sheet.freshwaterButton->isChecked() != m_tank->freshwater;
    // A sheet without Cancel offers no way to give up what was entered, so Escape keeps it as OK does.
    if (changed && sheet.cancelButton->isHidden())
        okAction();
    else
        endSheet(Dismissed);
}

void TankDataEntryController::endSheet(int returnCode)
{
    m_currentData = nullptr; // a field that loses the focus to the closing sheet must not store its number
    m_infoPanel->done(returnCode);
}

void TankDataEntryController::closeSheet(int returnCode)
{
    m_currentData = nullptr;
    const std::shared_ptr<Tank> tank = std::exchange(m_tank, nullptr);
    if (!tank)
        return;
    Shell &shell = Shell::shared();
    if (returnCode == Confirmed)
        confirm(tank);
    shell.orderFrontAndCheckModified();
}

void TankDataEntryController::confirm(const std::shared_ptr<Tank> &tank)
{
    Shell &shell = Shell::shared();
    if (shell.tankList().indexOf(tank.get()) < 0)
        shell.appendTank(tank);
    tank->name = m_infoPanel->nameField->text();
    tank->size = m_infoPanel->sizeField->text();
    tank->freshwater = m_infoPanel->freshwaterButton->isChecked();
    shell.updateTree();
    TankDataController::sharedInstance().display();
    shell.documentModifiedWithChange(true);
}

} // namespace brinemark

#include "moc_TankDataEntryController.cpp"
