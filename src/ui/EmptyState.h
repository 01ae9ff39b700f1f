// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QWidget>

class QLabel;
class QPushButton;

namespace brinemark
{

/// What a view shows while it has no content: a picture, one sentence that says what belongs here and, when the user
/// can add it here, a button (object name "emptyStateButton") that does so.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    /// The texts are already translated. Without `buttonText` there is no button.
    EmptyState(const QIcon &picture, const QString &sentence, const QString &buttonText = {},
               QWidget *parent = nullptr);

    [[nodiscard]] QString sentence() const;
    [[nodiscard]] QPushButton *button() const { return m_button; }
    void setPicture(const QIcon &picture);
    void setSentence(const QString &sentence);
    void setButtonText(const QString &text);

Q_SIGNALS:
    void addRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyLook();
    void fitSentence();

    QIcon m_icon;
    QLabel *m_picture;
    QLabel *m_sentence;
    QPushButton *m_button;
};

} // namespace brinemark
