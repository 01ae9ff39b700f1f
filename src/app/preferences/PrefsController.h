// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QObject>

#include <memory>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDialog;
class QLineEdit;
class QPushButton;

namespace brinemark
{

/// The preferences window. Every change is stored at once, so there is no button to confirm.
class PrefsController : public QObject, public Shared<PrefsController>
{
    Q_OBJECT

public:
    ~PrefsController() override;

    /// Shows the stored preferences, centres the window and brings it to the front.
    void display();

    /// Fills the calendar pop-up; disables it when there is no calendar application or no list could be read.
    void readCalendars();

    [[nodiscard]] QDialog *prefWindow() const { return m_prefWindow.get(); }

private:
    friend class Shared<PrefsController>;
    PrefsController();

    void iCalPopupAction();
    void overdueAction();
    void autoSaveMatrixAction();
    void defaultFileSetFileAction();
    void openFileDidEnd(bool ok, const QString &path);
    void showDefaultFile(const QString &path);

    std::unique_ptr<QDialog> m_prefWindow;
    QCheckBox *m_overdueCheck;
    QButtonGroup *m_autoSaveMatrix;
    QLineEdit *m_defaultFilePath;
    QPushButton *m_defaultFileSetButton;
    QComboBox *m_iCalPopup;
};

} // namespace brinemark
