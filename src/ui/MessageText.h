// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTextEdit>

namespace brinemark
{

/// A read-only text of several lines at a readable width. It grows with its text up to a share of the screen's height
/// and scrolls beyond that. The text can be selected and copied, and wraps inside words that are too long for a line,
/// such as paths, but not inside a measured value such as "5 mg/l".
class MessageText : public QTextEdit
{
    Q_OBJECT

public:
    MessageText(const QString &text, double shareOfScreen, QWidget *parent = nullptr);

    static constexpr int readableWidth = 420; ///< pixels

    [[nodiscard]] const QString &text() const { return m_text; } ///< as given
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_text;
    double m_shareOfScreen;
};

} // namespace brinemark
