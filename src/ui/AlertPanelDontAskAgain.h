// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace brinemark
{

/// An alert that the user can silence for good: a modal panel or a sheet with a check box. The answer is stored as one
/// integer preference per identifier; while it is stored, the alert is not shown and the stored integer is reported
/// instead.
///
/// The dialog and its buttons have the object names of every alert (see Alerts.h); the check box is "dontShowCheckbox".
class AlertPanelDontAskAgain
{
public:
    /// Receives the answer (1 for the default button, 0 for the alternate one, or the caller's own code), the context
    /// and the identifier.
    using DidEnd = std::function<void(int answer, void *context, const QString &identifier)>;

    /// All texts are already translated. Without a text the default button says "OK" and the alternate button is left
    /// out.
    struct Question {
        QString title = {};
        QString message = {};
        QString defaultButton = {};
        QString alternateButton = {};
        QString identifier = {};
        bool ignoreExistingState = false; ///< show it even when it was silenced
    };

    AlertPanelDontAskAgain() = delete;

    /// True when nothing is stored. Otherwise false, and `state`, when given, receives the stored integer.
    static bool canShowPanelForIdentifier(const QString &identifier, int *state = nullptr);
    /// The same without the state; kept without a caller.
    static bool willShowPanelForIdentifier(const QString &identifier);
    /// The stored integer, or -1 when there is none.
    static int valueForIdentifier(const QString &identifier);
    static void setValue(int value, const QString &identifier);
    static void setState(int state, const QString &identifier);
    /// Forgets the stored integer, so that the alert shows again.
    static void clearValueForIdentifier(const QString &identifier);
    [[nodiscard]] static int silencedCount(); ///< of all identifiers
    static void clearAllValues();

    /// Runs the panel and returns the answer; a silenced panel returns the stored integer at once. With
    /// `useDefaultReturnCode`, `defaultReturnCode` is what the check box stores and what a silenced panel returns,
    /// whichever button was pressed.
    static int runModalPanelWithTitle(const Question &question, bool useDefaultReturnCode, int defaultReturnCode);
    static int runModalPanelWithTitle(const Question &question);

    /// The same as a sheet of `window`. `didEnd` is called when the sheet has ended, or at once when the alert is
    /// silenced.
    static void beginSheetForWindow(QWidget *window, const Question &question, bool useDefaultReturnCode,
                                    int defaultReturnCode, DidEnd didEnd = {}, void *context = nullptr);
    static void beginSheetForWindow(QWidget *window, const Question &question, DidEnd didEnd = {},
                                    void *context = nullptr);
};

} // namespace brinemark
