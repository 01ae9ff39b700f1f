// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/AlertDialog.h"

#include "base/text/Texts.h"
#include "ui/Icons.h"
#include "ui/MessageText.h"
#include "ui/Sheets.h"
#include "ui/Spacing.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextStream>
#include <QVBoxLayout>

namespace brinemark
{

namespace
{

constexpr int iconSize = 48;
constexpr int minimumButtonWidth = 82;

const char *buttonName(AlertAnswer answer)
{
    switch (answer) {
    case AlertDefault:
        return "defaultButton";
    case AlertAlternate:
        return "alternateButton";
    case AlertOther:
        break;
    }
    return "otherButton";
}

AlertAnswer cancelAnswerOf(const Alert &alert)
{
    const AlertAnswer last = !alert.otherButton.isEmpty()       ? AlertOther
                             : !alert.alternateButton.isEmpty() ? AlertAlternate
                                                                : AlertDefault;
    return alert.cancels.value_or(last);
}

/// By the buttons' roles the desktop orders them its own way.
QDialogButtonBox::ButtonRole roleOf(AlertAnswer answer, const Alert &alert)
{
    const bool isOnlyButton = alert.alternateButton.isEmpty() && alert.otherButton.isEmpty();
    if (answer == cancelAnswerOf(alert) && !isOnlyButton)
        return QDialogButtonBox::RejectRole;
    return answer == AlertAlternate ? QDialogButtonBox::DestructiveRole : QDialogButtonBox::AcceptRole;
}

/// Writes the alert's texts to standard error and deletes it. Returns the answer that changes nothing.
int answerUnattended(AlertDialog *dialog)
{
    const int answer = dialog->cancelAnswer();
    QTextStream(stderr) << dialog->title() << '\n' << dialog->message() << '\n';
    delete dialog;
    return answer;
}

} // namespace

AlertDialog::AlertDialog(const Alert &alert, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAccessibleName(alert.title);

    auto *picture = new QLabel(this);
    const char *name = alert.style == AlertStyle::Critical ? "AlertCritical" : "AlertInformation";
    picture->setPixmap(icon(name).pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));

    // The text heights, as shares of the screen's height, leave room for the buttons and the window frame on a small
    // screen.
    m_title = new MessageText(alert.title, 0.2, this);
    m_title->setObjectName(QStringLiteral("alertTitle"));
    m_title->setAccessibleName(alert.title);
    m_title->setFocusPolicy(Qt::ClickFocus);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);

    m_message = new MessageText(alert.message, 0.5, this);
    m_message->setObjectName(QStringLiteral("alertMessage"));
    m_message->setAccessibleName(alert.title);
    m_message->setVisible(!alert.message.isEmpty());

    m_texts = new QVBoxLayout;
    m_texts->setSpacing(spacing::group);
    m_texts->addWidget(m_title);
    m_texts->addWidget(m_message);

    auto *top = new QHBoxLayout;
    top->setSpacing(spacing::content);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(m_texts, 1);
    top->setAlignment(m_texts, Qt::AlignVCenter); // a title without a message is centred beside the picture

    m_buttons = new QDialogButtonBox(this);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(spacing::aroundContent);
    all->setSpacing(spacing::content);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addLayout(top);
    all->addStretch();
    all->addWidget(m_buttons);

    m_cancelAnswer = cancelAnswerOf(alert);
    addButton(AlertDefault, alert.defaultButton.isEmpty() ? text("OK") : alert.defaultButton, alert);
    addButton(AlertAlternate, alert.alternateButton, alert);
    addButton(AlertOther, alert.otherButton, alert);
}

QString AlertDialog::title() const
{
    return m_title->text();
}

QString AlertDialog::message() const
{
    return m_message->text();
}

QPushButton *AlertDialog::button(AlertAnswer answer) const
{
    return m_buttons->findChild<QPushButton *>(QLatin1String(buttonName(answer)));
}

QCheckBox *AlertDialog::addCheckBox(const QString &text)
{
    auto *box = new QCheckBox(text, this);
    m_texts->addSpacing(spacing::tight);
    m_texts->addWidget(box);
    setTabOrder(m_message, box);
    return box;
}

void AlertDialog::showAsSheet(AlertDialog *dialog, QWidget *window, std::function<void(int)> ended)
{
    if (isUnattended()) {
        const int answer = answerUnattended(dialog);
        if (ended)
            QMetaObject::invokeMethod(
                qApp, [ended = std::move(ended), answer] { ended(answer); }, Qt::QueuedConnection);
        return;
    }
    dialog->setObjectName(QStringLiteral("alertSheet"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (ended)
        connect(dialog, &QDialog::finished, dialog, std::move(ended));
    openSheet(window, dialog);
}

int AlertDialog::runAsPanel(AlertDialog *dialog, QWidget *parent)
{
    if (isUnattended())
        return answerUnattended(dialog);
    // When the parent is destroyed while the panel is open, the dialog is destroyed with it: that counts as cancelling.
    const QPointer<AlertDialog> panel = dialog;
    const int cancelled = panel->cancelAnswer();
    panel->setObjectName(QStringLiteral("alertPanel"));
    centreOver(parent, panel);
    // The program waits for the user now, so a busy cursor is hidden while the question is shown.
    const bool busy = QGuiApplication::overrideCursor();
    if (busy)
        QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor));
    const int answer = panel->exec();
    if (busy)
        QGuiApplication::restoreOverrideCursor();
    if (!panel)
        return cancelled;
    delete panel;
    return answer;
}

void AlertDialog::reject()
{
    done(m_cancelAnswer);
}

void AlertDialog::showEvent(QShowEvent *event)
{
    button(AlertDefault)->setFocus();
    QDialog::showEvent(event);
}

void AlertDialog::addButton(AlertAnswer answer, const QString &text, const Alert &alert)
{
    if (text.isEmpty())
        return;
    QPushButton *added = m_buttons->addButton(text, roleOf(answer, alert));
    added->setObjectName(QLatin1String(buttonName(answer)));
    added->setMinimumWidth(minimumButtonWidth);
    added->setDefault(answer == AlertDefault);
    connect(added, &QPushButton::clicked, this, [this, answer] { done(answer); });
}

} // namespace brinemark

#include "moc_AlertDialog.cpp"
