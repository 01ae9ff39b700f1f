// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"
#include "ui/Shared.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

class QPushButton;

namespace brinemark
{

class Tank;
class TankSheet;
class TargetNumberEdit;
struct TankData;

/// The sheet in which a tank is made, or its name, size, type and targets are changed. Targets change while the sheet
/// is up; name, size and type when it is confirmed. The sheet is a TankSheet.
class TankDataEntryController : public QObject, public Shared<TankDataEntryController>
{
    Q_OBJECT

public:
    ~TankDataEntryController() override;

    /// Opens the sheet on the main window. Without a tank a new one is made, which enters the tank list when the sheet
    /// is confirmed. `title` is the name of the target to begin with; empty for none. Does nothing while the sheet is
    /// up or waits for another one to go.
    void displayTank(std::shared_ptr<Tank> tank, bool withCancel, const QString &title);

    void okAction();
    void cancelAction();
    void helpButtonAction();

    // Of the controls; to be called while the sheet is up.
    void warningPopupAction();
    void preferredStepperAction();
    void deviationStepperAction();
    void warningCheckboxAction();
    void deviationCheckboxAction();
    /// Takes over what was typed into one of the two numbers.
    void controlTextDidEndEditing(TargetNumberEdit *number);

    void setupInputWithTag(int tag); ///< 0 sets nothing
    void setupStepperValues();
    void enableWarningControls(bool warningOn);
    void highValueCheck();
    void showHighValueWarningWithBool(bool show);

    [[nodiscard]] QPushButton *cancelButton() const; ///< null before the sheet was first opened

private:
    friend class Shared<TankDataEntryController>;
    TankDataEntryController();

    void makeSheet();
    void showTank(bool isNew);
    bool selectTitle(const QString &title);
    void showCurrentData();
    void storeNumbers();
    void storeNumber(const TargetNumberEdit &number);
    /// Stores into the target that is being edited, and remembers when that changed it.
    template <class Value>
    void store(Value TankData::*field, Value value);
    [[nodiscard]] std::optional<Parameter> chosenParameter() const;
    void endSheet(int returnCode);
    void closeSheet(int returnCode);
    void confirm(const std::shared_ptr<Tank> &tank);

    std::shared_ptr<Tank> m_tank; ///< the tank that is being edited or made
    TankData *m_currentData = nullptr;
    bool m_targetsChanged = false; ///< since the sheet was opened
    QPointer<TankSheet> m_infoPanel;
};

} // namespace brinemark
