// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QObject>

#include <memory>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDialog;
class QLabel;
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

    bool eventFilter(QObject *watched, QEvent *event) override;

    [[nodiscard]] QDialog *prefWindow() const { return m_prefWindow.get(); }

private:
    friend class Shared<PrefsController>;
    PrefsController();

    void iCalPopupAction();
    void overdueAction();
    void autoSaveMatrixAction();
    void defaultFileSetFileAction();
    void defaultFileClearAction();
    void showMessagesAction();
    void openFileDidEnd(bool ok, const QString &path);
    void showStored(); ///< what other windows may have changed: the default file and the silenced messages

    std::unique_ptr<QDialog> m_prefWindow;
    QCheckBox *m_overdueCheck;
    QButtonGroup *m_autoSaveMatrix;
    QLineEdit *m_defaultFilePath;
    QPushButton *m_defaultFileSetButton;
    QPushButton *m_defaultFileClearButton;
    QLabel *m_hiddenMessages;
    QPushButton *m_showMessagesButton;
    QComboBox *m_iCalPopup;
};

} // namespace brinemark
