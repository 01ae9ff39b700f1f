// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>

class QTableView;

namespace brinemark
{

/// A button in the corner of a table above its vertical scroll bar, as wide as the scroll bar and as high as the
/// header. It keeps the scroll bar visible, even when there is nothing to scroll.
class HeaderCornerButton : public QToolButton
{
    Q_OBJECT

public:
    /// `iconName` names an icon of ui/Icons.h; `toolTip` is the looked-up text. The table owns the button.
    HeaderCornerButton(QTableView &table, const char *iconName, const QString &toolTip);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QTableView &m_table;
};

} // namespace brinemark
