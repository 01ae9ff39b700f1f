#pragma once

#include "ui/Shared.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QDialog;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace brinemark
{

class Tank;

/// The sheet in which a tank is made or its name, size and type are changed. Object names: the sheet "tankSheet", its
/// controls "nameField", "sizeField", "freshwaterButton", "marineButton", "okButton", "cancelButton".
class TankDataEntryController : public QObject, public Shared<TankDataEntryController>
{
    Q_OBJECT

public:
    ~TankDataEntryController() override;

    /// Opens the sheet on the main window. Without a tank a new one is made, which enters the tank list when the sheet
    /// is confirmed. `title` names the target to begin with; empty for none.
    void displayTank(std::shared_ptr<Tank> tank, bool withCancel, const QString &title);

    void okAction();
    void cancelAction();

private:
    friend class Shared<TankDataEntryController>;
    TankDataEntryController();

    void makeSheet();
    void closeSheet(int returnCode);

    std::shared_ptr<Tank> m_tank; ///< the tank that is being edited or made
    QPointer<QDialog> m_infoPanel;
    QLineEdit *m_nameField = nullptr;
    QLineEdit *m_sizeField = nullptr;
    QRadioButton *m_freshwaterButton = nullptr;
    QRadioButton *m_marineButton = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
};

} // namespace brinemark
