// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/AlertPanelDontAskAgain.h"

#include "base/PreferenceKeys.h"
#include "base/text/Texts.h"
#include "ui/AlertDialog.h"

#include <QCheckBox>

#include <optional>

namespace brinemark
{

namespace
{

using Question = AlertPanelDontAskAgain::Question;

/// The answer to report without showing the panel, or nullopt when the panel must be shown. `ownCode`, when given, is
/// reported instead of the stored answer and replaces it in the preferences.
std::optional<int> silencedAnswer(const Question &question, const std::optional<int> &ownCode)
{
    int stored = 0;
    if (question.ignoreExistingState || AlertPanelDontAskAgain::canShowPanelForIdentifier(question.identifier, &stored))
        return std::nullopt;
    if (!ownCode)
        return stored;
    if (*ownCode != stored)
        AlertPanelDontAskAgain::setValue(*ownCode, question.identifier);
    return *ownCode;
}

/// Makes the panel. When it is answered with the box ticked, it stores the answer.
AlertDialog *makePanel(const Question &question, const std::optional<int> &ownCode, QWidget *parent)
{
    auto *panel = new AlertDialog({.title = question.title,
                                   .message = question.message,
                                   .defaultButton = question.defaultButton,
                                   .alternateButton = question.alternateButton,
                                   .otherButton = {}},
                                  parent);
    QCheckBox *box = panel->addCheckBox(text("DontShowAgain"));
    box->setObjectName(QStringLiteral("dontShowCheckbox"));
    QObject::connect(panel, &QDialog::finished, box, [box, ownCode, identifier = question.identifier](int answer) {
        if (box->isChecked())
            AlertPanelDontAskAgain::setValue(ownCode.value_or(answer), identifier);
    });
    return panel;
}

std::optional<int> ownCode(bool use, int code)
{
    return use ? std::optional(code) : std::nullopt;
}

} // namespace

bool AlertPanelDontAskAgain::canShowPanelForIdentifier(const QString &identifier, int *state)
{
    const QString key = preference::dontAskAgainName(identifier);
    if (!Preferences::shared().contains(key))
        return true;
    if (state)
        *state = Preferences::shared().variant(key).toInt();
    return false;
}

bool AlertPanelDontAskAgain::willShowPanelForIdentifier(const QString &identifier)
{
    return canShowPanelForIdentifier(identifier);
}

int AlertPanelDontAskAgain::valueForIdentifier(const QString &identifier)
{
    int stored = -1;
    canShowPanelForIdentifier(identifier, &stored);
    return stored;
}

void AlertPanelDontAskAgain::setValue(int value, const QString &identifier)
{
    Preferences::shared().setVariant(preference::dontAskAgainName(identifier), value);
}

void AlertPanelDontAskAgain::setState(int state, const QString &identifier)
{
    setValue(state, identifier);
}

void AlertPanelDontAskAgain::clearValueForIdentifier(const QString &identifier)
{
    Preferences::shared().remove(preference::dontAskAgainName(identifier));
}

int AlertPanelDontAskAgain::silencedCount()
{
    return int(Preferences::shared().namesWithPrefix(preference::dontAskAgainName({})).size());
}

void AlertPanelDontAskAgain::clearAllValues()
{
    for (const QString &name : Preferences::shared().namesWithPrefix(preference::dontAskAgainName({})))
        Preferences::shared().remove(name);
}

int AlertPanelDontAskAgain::runModalPanelWithTitle(const Question &question, bool useDefaultReturnCode,
                                                   int defaultReturnCode)
{
    const auto code = ownCode(useDefaultReturnCode, defaultReturnCode);
    if (const auto answer = silencedAnswer(question, code))
        return *answer;
    return AlertDialog::runAsPanel(makePanel(question, code, nullptr), nullptr);
}

int AlertPanelDontAskAgain::runModalPanelWithTitle(const Question &question)
{
    return runModalPanelWithTitle(question, false, -1);
}

void AlertPanelDontAskAgain::beginSheetForWindow(QWidget *window, const Question &question, bool useDefaultReturnCode,
                                                 int defaultReturnCode, DidEnd didEnd, void *context)
{
    const auto code = ownCode(useDefaultReturnCode, defaultReturnCode);
    auto report = [didEnd = std::move(didEnd), context, identifier = question.identifier](int answer) {
        if (didEnd)
            didEnd(answer, context, identifier);
    };
    if (const auto answer = silencedAnswer(question, code)) {
        report(*answer);
        return;
    }
    AlertDialog *sheet = makePanel(question, code, window ? window->window() : nullptr);
    AlertDialog::showAsSheet(sheet, window, std::move(report));
}

void AlertPanelDontAskAgain::beginSheetForWindow(QWidget *window, const Question &question, DidEnd didEnd,
                                                 void *context)
{
    beginSheetForWindow(window, question, false, -1, std::move(didEnd), context);
}

} // namespace brinemark
