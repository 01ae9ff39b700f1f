// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/AlertDialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace brinemark::test
{

/// The alert that is on the screen, sheet or panel; null when there is none.
inline AlertDialog *shownAlert()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *alert = qobject_cast<AlertDialog *>(window);
        if (alert && alert->isVisible())
            return alert;
    }
    return nullptr;
}

/// Presses a button of the alert on the screen ("defaultButton", "alternateButton", "otherButton"); false when there is
/// no alert or no such button.
inline bool pressAlertButton(const char *name)
{
    AlertDialog *alert = shownAlert();
    auto *button = alert ? alert->findChild<QPushButton *>(QLatin1String(name)) : nullptr;
    if (button)
        QTest::mouseClick(button, Qt::LeftButton);
    return button != nullptr;
}

/// For modal panels, which do not return before they are answered: call this first, and `act` gets the next alert once
/// it is on the screen. `act` has to answer it. Within two seconds nothing shown means nothing called.
inline void onNextAlert(std::function<void(AlertDialog &)> act, int triesLeft = 200)
{
    QTimer::singleShot(10, qApp, [act = std::move(act), triesLeft] {
        if (AlertDialog *alert = shownAlert())
            act(*alert);
        else if (triesLeft > 0)
            onNextAlert(act, triesLeft - 1);
    });
}

} // namespace brinemark::test
