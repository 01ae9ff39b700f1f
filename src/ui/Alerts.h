// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

/// Every message and question that the user must read is shown by these functions.
namespace brinemark
{

enum class AlertStyle { Informational, Critical };

/// The result of an alert: which of its buttons was pressed.
enum AlertAnswer : int { AlertOther = -1, AlertAlternate = 0, AlertDefault = 1 };

/// The texts are already translated and shown as plain text. A button without a text is left out, except the default
/// one, which then says "OK". Return presses the default button. Escape and closing the window press the button that
/// changes nothing: the other button if there is one, else the alternate, else the default.
struct Alert {
    AlertStyle style = AlertStyle::Informational;
    QString title = {};
    QString message = {};
    QString defaultButton = {};
    QString alternateButton = {};
    QString otherButton = {};
    /// The answer of Escape and of closing the window, if another button changes nothing.
    std::optional<AlertAnswer> cancels = {};
};

/// The question before something is deleted for good. AlertDefault means delete; the alternate button cancels.
[[nodiscard]] Alert deletionAlert(const QString &question);

/// Shows the alert as a sheet of the window that holds `window` and returns at once; `ended` receives the AlertAnswer.
/// A window shows one sheet at a time: further sheets wait until the first is answered. When the window is destroyed
/// first, the sheet is destroyed with it and `ended` is never called.
///
/// The dialog's object name is "alertSheet", those of its buttons "defaultButton", "alternateButton" and "otherButton".
void beginAlertSheet(QWidget *window, const Alert &alert, std::function<void(int answer)> ended = {});

/// Shows the alert as a modal panel (object name "alertPanel", the buttons as above) and returns its AlertAnswer.
int runAlertPanel(QWidget *parent, const Alert &alert);

/// For runs that nobody watches: from now on alerts are not shown. Their texts go to standard error, and their answer
/// is that of Escape, which changes nothing.
void setUnattended(bool unattended);
[[nodiscard]] bool isUnattended();

/// The short sound for an action that is not possible.
void beep();

/// Calls `handler` instead of making the sound; an empty handler restores the sound. Returns the previous handler.
std::function<void()> setBeepHandler(std::function<void()> handler);

} // namespace brinemark
