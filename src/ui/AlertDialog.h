// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/Alerts.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QPushButton;
class QVBoxLayout;

namespace brinemark
{

class MessageText;

/// The window of every alert: icon, title, message, perhaps a check box, and one to three buttons. Its result is the
/// AlertAnswer.
class AlertDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AlertDialog(const Alert &alert, QWidget *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString message() const;
    /// The answer of Escape and of closing the window.
    [[nodiscard]] AlertAnswer cancelAnswer() const { return m_cancelAnswer; }
    [[nodiscard]] QPushButton *button(AlertAnswer answer) const; ///< null when the alert has no such button

    QCheckBox *addCheckBox(const QString &text);

    /// Shows `dialog` as a sheet of `window` (see openSheet) and deletes it when it has been answered.
    static void showAsSheet(AlertDialog *dialog, QWidget *window, std::function<void(int answer)> ended);
    /// Runs `dialog` modally over `parent`, deletes it and returns the answer.
    static int runAsPanel(AlertDialog *dialog, QWidget *parent);

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addButton(AlertAnswer answer, const QString &text);

    QVBoxLayout *m_texts = nullptr;
    MessageText *m_title = nullptr;
    MessageText *m_message = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    AlertAnswer m_cancelAnswer = AlertDefault;
};

} // namespace brinemark
