// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace brinemark
{

/// An alert that a person can silence for good: a modal panel or a sheet with a check box. What was chosen is one
/// integer preference for each identifier; while it is stored the alert is not shown and the integer is reported in its
/// place.
///
/// The dialog and its buttons have the object names of every alert (see Alerts.h), the check box is "dontShowCheckbox".
class AlertPanelDontAskAgain
{
public:
    /// Gets the answer (1 default button, 0 alternate button, or a caller's own code), the context and the identifier.
    using DidEnd = std::function<void(int answer, void *context, const QString &identifier)>;

    /// Looked-up texts. Without a text the default button is "OK", and the alternate one is left out.
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
    static bool willShowPanelForIdentifier(const QString &identifier);
    /// The stored integer, or -1 when there is none.
    static int valueForIdentifier(const QString &identifier);
    static void setValue(int value, const QString &identifier);
    static void setState(int state, const QString &identifier);
    /// Forgets the stored integer, so that the alert shows again.
    static void clearValueForIdentifier(const QString &identifier);

    /// Runs the panel, unless it was silenced, and returns the answer. With `useDefaultReturnCode` a silenced alert
    /// always reports `defaultReturnCode`, whichever button silenced it.
    static int runModalPanelWithTitle(const Question &question, bool useDefaultReturnCode, int defaultReturnCode);
    static int runModalPanelWithTitle(const Question &question);

    /// The same as a sheet of `window`. `didEnd` is called when the sheet has ended, or at once when it was silenced.
    static void beginSheetForWindow(QWidget *window, const Question &question, bool useDefaultReturnCode,
                                    int defaultReturnCode, DidEnd didEnd = {}, void *context = nullptr);
    static void beginSheetForWindow(QWidget *window, const Question &question, DidEnd didEnd = {},
                                    void *context = nullptr);
};

} // namespace brinemark
