// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace brinemark
{

/// A line of plain text that ends in an ellipsis where the room ends; the tool tip then holds the whole text.
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
