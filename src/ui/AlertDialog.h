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

/// The dialog of every alert: icon, title, message, optional check box, and one to three buttons. Its result code is
/// the AlertAnswer.
class AlertDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AlertDialog(const Alert &alert, QWidget *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString message() const;
    /// The answer that Escape and closing the window give.
    [[nodiscard]] AlertAnswer cancelAnswer() const { return m_cancelAnswer; }
    [[nodiscard]] QPushButton *button(AlertAnswer answer) const; ///< null when the alert has no such button

    QCheckBox *addCheckBox(const QString &text);

    /// Shows `dialog` as a sheet of `window` (see openSheet) and deletes it once it is answered.
    static void showAsSheet(AlertDialog *dialog, QWidget *window, std::function<void(int answer)> ended);
    /// Runs `dialog` modally over `parent`, deletes it and returns the answer.
    static int runAsPanel(AlertDialog *dialog, QWidget *parent);

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addButton(AlertAnswer answer, const QString &text, const Alert &alert);

    QVBoxLayout *m_texts = nullptr;
    MessageText *m_title = nullptr;
    MessageText *m_message = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    AlertAnswer m_cancelAnswer = AlertDefault;
};

} // namespace brinemark
