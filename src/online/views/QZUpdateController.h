// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Shared.h"

#include <QObject>
#include <QPointer>

class QCheckBox;
class QComboBox;
class QDialog;
class QLabel;

namespace brinemark
{

/// The update window, its settings, and whether a check is due. Object names: the window "updateWindow", its controls
/// "autoUpdateCheck", "checkPopupButton" and "lastCheckField".
class QZUpdateController : public QObject, public Shared<QZUpdateController>
{
    Q_OBJECT

public:
    ~QZUpdateController() override;

    void initDefaults();       ///< centres the window and stores the first settings: automatic, weekly, never checked
    void launchUpdateCheck();  ///< at start-up: checks if that is wanted and due
    void showScheduleWindow(); ///< shows the window with the settings of the moment

private:
    friend class Shared<QZUpdateController>;
    QZUpdateController();

    void checkForUpdateWithInteraction(bool interaction);
    void makeWindow();

    QPointer<QDialog> m_scheduleWindow;
    QCheckBox *m_autoUpdateCheck = nullptr;
    QComboBox *m_checkPopupButton = nullptr;
    QLabel *m_lastCheckField = nullptr;
};

} // namespace brinemark
