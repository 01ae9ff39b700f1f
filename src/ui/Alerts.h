// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QWidget;

/// The one way in which the program tells or asks a person something that has to be read.
namespace brinemark
{

enum class AlertStyle { Informational, Critical };

/// What a button of an alert answers.
enum AlertAnswer : int { AlertOther = -1, AlertAlternate = 0, AlertDefault = 1 };

/// Looked-up texts, all plain text. A button without a text is left out, except for the default one, which is then
/// "OK". Return presses the default button. Escape, and closing the window, press the one that changes nothing: the
/// other button when there is one, else the alternate, else the default.
struct Alert {
    AlertStyle style = AlertStyle::Informational;
    QString title = {};
    QString message = {};
    QString defaultButton = {};
    QString alternateButton = {};
    QString otherButton = {};
};

/// The question before something is deleted for good, with a button that cancels; AlertDefault deletes.
[[nodiscard]] Alert deletionAlert(const QString &question);

/// Shows the alert as a sheet of the window that holds `window` and returns at once; `ended` gets the AlertAnswer. A
/// window shows one sheet at a time: a second one waits until the first is answered. When the window goes first, so
/// does the sheet, and `ended` is never called.
///
/// The dialog's object name is "alertSheet", those of its buttons "defaultButton", "alternateButton" and "otherButton".
void beginAlertSheet(QWidget *window, const Alert &alert, std::function<void(int answer)> ended = {});

/// Shows the alert as a modal panel (object name "alertPanel", the buttons as above) and returns its AlertAnswer.
int runAlertPanel(QWidget *parent, const Alert &alert);

/// The short sound for an action that cannot be done.
void beep();

/// Calls `handler` instead of making the sound; an empty one brings the sound back. Returns the handler in place
/// before.
std::function<void()> setBeepHandler(std::function<void()> handler);

} // namespace brinemark
