// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace brinemark
{

/// One line of plain text that is cut off with an ellipsis when it does not fit; the tool tip then shows the whole
/// text.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text = {}, QWidget *parent = nullptr);

    [[nodiscard]] bool isTruncated() const;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace brinemark
