// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Alerts.h"

#include "base/text/Texts.h"
#include "ui/AlertDialog.h"

#include <QApplication>

#include <utility>

namespace brinemark
{

namespace
{

std::function<void()> &beepHandler()
{
    static std::function<void()> handler;
    return handler;
}

bool unattendedRun = false;

} // namespace

Alert deletionAlert(const QString &question)
{
    return {.style = AlertStyle::Critical,
            .title = question,
            .message = text("CannotUndoMessage"),
            .alternateButton = text("CancelLabel")};
}

void beginAlertSheet(QWidget *window, const Alert &alert, std::function<void(int answer)> ended)
{
    AlertDialog::showAsSheet(new AlertDialog(alert, window ? window->window() : nullptr), window, std::move(ended));
}

int runAlertPanel(QWidget *parent, const Alert &alert)
{
    return AlertDialog::runAsPanel(new AlertDialog(alert, parent ? parent->window() : nullptr), parent);
}

void setUnattended(bool unattended)
{
    unattendedRun = unattended;
}

bool isUnattended()
{
    return unattendedRun;
}

void beep()
{
    if (beepHandler())
        beepHandler()();
    else
        QApplication::beep();
}

std::function<void()> setBeepHandler(std::function<void()> handler)
{
    return std::exchange(beepHandler(), std::move(handler));
}

} // namespace brinemark
