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

/// The visible alert, sheet or panel; null when there is none.
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

/// For modal panels, which block until they are answered: calls `act`, which has to answer, with the next visible
/// alert. `act` is not called when no alert appears within two seconds.
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
