// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

#include <QObject>

class QCheckBox;
class QComboBox;
class QDialog;
class QLabel;

namespace brinemark
{

/// The update window with its settings, and the automatic check at start-up. Object names: the window "updateWindow",
/// its controls "autoUpdateCheck", "checkPopupButton" and "lastCheckField".
class QZUpdateController : public QObject, public Shared<QZUpdateController>
{
    Q_OBJECT

public:
    ~QZUpdateController() override;

    /// Stores the first settings (automatic, weekly, never checked) and centres an existing window.
    void initDefaults();
    void launchUpdateCheck();  ///< called at start-up: checks if automatic checks are on and one is due
    void showScheduleWindow(); ///< shows the window with the current settings

private:
    friend class Shared<QZUpdateController>;
    QZUpdateController();

    void checkForUpdateWithInteraction(bool interaction);
    void makeWindow();

    QCheckBox *m_autoUpdateCheck = nullptr;
    QComboBox *m_checkPopupButton = nullptr;
    QLabel *m_lastCheckField = nullptr;
    OwnedWidget<QDialog> m_scheduleWindow;
};

} // namespace brinemark
