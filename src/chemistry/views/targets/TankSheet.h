// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace brinemark
{

class HighValueBox;
class Tank;
class TargetNumberEdit;

/// The controls of TankDataEntryController's sheet: a tank's name, size and type, and one target at a time. Every
/// control's object name is the name of its member here; the numbers' parts are "preferredField", "preferredStepper",
/// "deviationField" and "deviationStepper".
class TankSheet : public QDialog
{
    Q_OBJECT

public:
    explicit TankSheet(QWidget *parent = nullptr);
    ~TankSheet() override;

    QLineEdit *const nameField;
    QLineEdit *const sizeField;
    QRadioButton *const freshwaterButton;
    QRadioButton *const marineButton;
    QComboBox *const warningPopup;
    TargetNumberEdit *const preferred;
    QCheckBox *const warningCheckbox;
    QCheckBox *const deviationCheckbox;
    TargetNumberEdit *const deviation;
    HighValueBox *const warningBox;
    QPushButton *const helpButton;
    QPushButton *const cancelButton;
    QPushButton *const okButton;

    /// Data of the chooser's items.
    enum ItemRole { TargetTagRole = Qt::UserRole, TargetKeyRole };

    void fillChooser(const Tank &tank); ///< emits no signal
    void setWarningTitle(QString parameterName);

    /// Called for Escape and the window's close button, which are neither OK nor Cancel.
    void reject() override { Q_EMIT dismissed(); }

Q_SIGNALS:
    void dismissed();

private:
    void nameControls();
    QLayout *makeForm();
};

} // namespace brinemark
