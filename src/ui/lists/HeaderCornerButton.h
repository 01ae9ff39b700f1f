// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>

class QTableView;

namespace brinemark
{

/// A button in the corner of a table above its vertical scroll bar, as wide as that and as high as the header. The
/// scroll bar stays in sight for it, whether there is something to scroll or not.
class HeaderCornerButton : public QToolButton
{
    Q_OBJECT

public:
    /// The name of an icon (of ui/Icons.h) and the looked-up tool tip. The table owns the button.
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
