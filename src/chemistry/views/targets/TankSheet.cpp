// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/targets/TankSheet.h"

#include "base/text/Texts.h"
#include "chemistry/NamedTargets.h"
#include "chemistry/TargetInput.h"
#include "chemistry/views/targets/HighValueBox.h"
#include "chemistry/views/targets/TargetNumberEdit.h"
#include "ui/CaptionForm.h"
#include "ui/CheckedLineEdit.h"
#include "ui/HelpWindow.h"
#include "ui/Spacing.h"
#include "ui/Stepper.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr int nameFieldWidth = 280; ///< pixels

void addLine(QGridLayout &form, const QString &caption, QWidget *control, QWidget *buddy)
{
    const int row = form.rowCount();
    QLabel *label = makeCaption(caption);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setContentsMargins(2, 0, 0, 0); // bold letters extend slightly beyond their box
    setCaptionOf(buddy, label);
    form.addWidget(label, row, 0);
    form.addWidget(control, row, 1);
}

void addSeparator(QGridLayout &form)
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    const int row = form.rowCount();
    form.addWidget(line, row, 0, 1, 2, Qt::AlignVCenter);
    form.setRowMinimumHeight(row, 16);
}

} // namespace

TankSheet::TankSheet(QWidget *parent)
    : QDialog(parent)
    , nameField(new QLineEdit)
    , sizeField(new QLineEdit)
    , freshwaterButton(new QRadioButton(text("TankFreshwater")))
    , marineButton(new QRadioButton(text("TankSaltwater")))
    , warningPopup(new QComboBox)
    , preferred(new TargetNumberEdit(QStringLiteral("preferred")))
    , warningCheckbox(new QCheckBox)
    , deviationCheckbox(new QCheckBox(text("DeviationCheckboxLabel")))
    , deviation(new TargetNumberEdit(QStringLiteral("deviation")))
    , warningBox(new HighValueBox)
    , helpButton(new QPushButton(text("HelpButton")))
    , cancelButton(new QPushButton(text("CancelLabel")))
    , okButton(new QPushButton(text("OK")))
{
    nameControls();
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(helpButton, QDialogButtonBox::HelpRole);
    buttons->addButton(cancelButton, QDialogButtonBox::RejectRole);
    buttons->addButton(okButton, QDialogButtonBox::AcceptRole);
    helpButton->setAutoDefault(false);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::content);
    column->addLayout(makeForm());
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    okButton->setDefault(true); // has no effect before the button is in the sheet
    warningBox->hide();

    QWidget *previous = nameField;
    for (QWidget *next :
         std::initializer_list<QWidget *>{sizeField, freshwaterButton, marineButton, warningPopup, preferred->field(),
                                          preferred->stepper(), warningCheckbox, deviationCheckbox, deviation->field(),
                                          deviation->stepper(), helpButton, cancelButton, okButton}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

TankSheet::~TankSheet()
{
    // Ignore the signals of the controls while they are destroyed, such as editingFinished from a field that loses the
    // focus.
    for (QWidget *widget : findChildren<QWidget *>())
        widget->disconnect();
}

void TankSheet::nameControls()
{
    setObjectName(QStringLiteral("tankSheet"));
    showHelpOnKey(this, QStringLiteral("conditions"));
    nameField->setObjectName(QStringLiteral("nameField"));
    sizeField->setObjectName(QStringLiteral("sizeField"));
    freshwaterButton->setObjectName(QStringLiteral("freshwaterButton"));
    marineButton->setObjectName(QStringLiteral("marineButton"));
    warningPopup->setObjectName(QStringLiteral("warningPopup"));
    warningCheckbox->setObjectName(QStringLiteral("warningCheckbox"));
    deviationCheckbox->setObjectName(QStringLiteral("deviationCheckbox"));
    helpButton->setObjectName(QStringLiteral("helpButton"));
    cancelButton->setObjectName(QStringLiteral("cancelButton"));
    okButton->setObjectName(QStringLiteral("okButton"));

    sizeField->setToolTip(text("TankSizeToolTip"));
    warningPopup->setToolTip(text("TargetPopupToolTip"));
    preferred->field()->setToolTip(text("PreferredToolTip"));
    preferred->stepper()->setToolTip(text("PreferredStepperToolTip"));
    preferred->stepper()->setAccessibleName(text("PreferredStepperToolTip"));
    warningCheckbox->setToolTip(text("WarningCheckboxToolTip"));
    deviationCheckbox->setToolTip(text("DeviationCheckboxToolTip"));
    deviation->field()->setToolTip(text("DeviationToolTip"));
    deviation->stepper()->setToolTip(text("DeviationStepperToolTip"));
    deviation->stepper()->setAccessibleName(text("DeviationStepperToolTip"));
    helpButton->setToolTip(text("TankSheetHelpToolTip"));
}

QLayout *TankSheet::makeForm()
{
    auto *types = new QWidget;
    auto *typeLine = new QHBoxLayout(types);
    typeLine->setContentsMargins(0, 0, 0, 0);
    typeLine->setSpacing(spacing::content);
    typeLine->addWidget(freshwaterButton);
    typeLine->addWidget(marineButton);
    typeLine->addStretch();
    nameField->setMinimumWidth(nameFieldWidth);

    auto *form = new QGridLayout;
    form->setHorizontalSpacing(spacing::group);
    form->setVerticalSpacing(spacing::group);
    form->setColumnStretch(1, 1);
    addLine(*form, text("TankSheetName"), nameField, nameField);
    addLine(*form, text("TankSheetSize"), sizeField, sizeField);
    addLine(*form, text("TankSheetType"), types, freshwaterButton);
    addSeparator(*form);
    addLine(*form, text("TankSheetParameter"), warningPopup, warningPopup);
    addLine(*form, text("TankSheetPreferred"), preferred, preferred->field());
    form->addWidget(warningCheckbox, form->rowCount(), 1);
    form->addWidget(deviationCheckbox, form->rowCount(), 1);
    addLine(*form, text("TankSheetDeviation"), deviation, deviation->field());
    form->addWidget(warningBox, form->rowCount(), 0, 1, 2);
    return form;
}

void TankSheet::fillChooser(const Tank &tank)
{
    const QSignalBlocker quiet(warningPopup);
    warningPopup->clear();
    int widest = 0;
    for (const NamedTarget &named : targetsByName(tank)) {
        const TargetInput &input = targetInputOf(named.parameter);
        warningPopup->addItem(named.name, input.tag);
        warningPopup->setItemData(warningPopup->count() - 1, input.targetKey().toString(), TargetKeyRole);
        setWarningTitle(named.name);
        widest = std::max(widest, warningCheckbox->sizeHint().width());
    }
    // Room for the longest title, so that the sheet keeps its width when the parameter changes.
    warningCheckbox->setMinimumWidth(widest);
}

void TankSheet::setWarningTitle(QString parameterName)
{
    // Double the ampersands in the name, which would otherwise mark mnemonics.
    parameterName.replace(QLatin1Char('&'), QLatin1String("&&"));
    warningCheckbox->setText(fillPlaceholders(text("DisplayWarningCheckboxLabel"), {parameterName}));
}

} // namespace brinemark

#include "moc_TankSheet.cpp"
