// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace brinemark
{

/// Shows a cell on one line that is cut off with an ellipsis; the tool tip of a cut-off cell shows the whole text. When
/// the model provides a CellMark for a cell, it is drawn beside the text.
class TruncatingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] bool isTruncated(const QStyleOptionViewItem &option, const QModelIndex &index) const;
    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;
};

/// `text` as a tool tip that wraps its lines, shows characters such as "<" literally and is cut off where it would fill
/// the screen.
[[nodiscard]] QString wholeTextToolTip(const QString &text);

} // namespace brinemark
