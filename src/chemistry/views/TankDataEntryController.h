// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Parameters.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

#include <memory>
#include <optional>

class QPushButton;

namespace brinemark
{

class Tank;
class TankSheet;
class TargetNumberEdit;
struct TankData;

/// The sheet (a TankSheet) that creates a tank or edits its name, size, type and targets. Target changes take effect at
/// once; name, size and type when the sheet is confirmed.
class TankDataEntryController : public QObject, public Shared<TankDataEntryController>
{
    Q_OBJECT

public:
    ~TankDataEntryController() override;

    /// Opens the sheet on the main window. A null tank creates a new one, which is added to the tank list when the
    /// sheet is confirmed. `title` is the name of the target to choose first; empty for none. Does nothing while the
    /// sheet is open or waits for another sheet to close.
    void displayTank(std::shared_ptr<Tank> tank, bool withCancel, const QString &title);

    void okAction();
    void cancelAction();
    void helpButtonAction();

    // Actions of the controls; to be called while the sheet is open.
    void warningPopupAction();
    void preferredStepperAction();
    void deviationStepperAction();
    void warningCheckboxAction();
    void deviationCheckboxAction();
    /// Stores the number that was typed into one of the two fields.
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
    /// Sets a field of the target that is being edited, and records whether that changed it.
    template <class Value>
    void store(Value TankData::*field, Value value);
    [[nodiscard]] std::optional<Parameter> chosenParameter() const;
    void dismissSheet();
    void endSheet(int returnCode);
    void closeSheet(int returnCode);
    void confirm(const std::shared_ptr<Tank> &tank);

    std::shared_ptr<Tank> m_tank; ///< the tank that is being edited or made
    TankData *m_currentData = nullptr;
    bool m_targetsChanged = false; ///< since the sheet was opened
    OwnedWidget<TankSheet> m_infoPanel;
};

} // namespace brinemark
