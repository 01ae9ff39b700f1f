// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/TruncatingDelegate.h"

#include "ui/lists/CellMark.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace brinemark
{

bool TruncatingDelegate::isTruncated(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    // A text of several lines is shown on one line, so it is never shown in full.
    return index.data(Qt::DisplayRole).toString().trimmed().contains(QLatin1Char('\n')) ||
           style->sizeFromContents(QStyle::CT_ItemViewItem, &cell, {}, cell.widget).width() > option.rect.width();
}

QString TruncatingDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    QString shown = QStyledItemDelegate::displayText(value, locale);
    return shown.replace(QChar::LineSeparator, QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

void TruncatingDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features &= ~QStyleOptionViewItem::WrapText; // even when the view asks for wrapping
}

void TruncatingDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QVariant mark = index.data(CellMarkRole);
    if (!mark.isValid())
        return;
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    paintCellMark(painter, cell, mark.value<CellMark>());
}

bool TruncatingDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                   const QModelIndex &index)
{
    const bool ownTip = index.data(Qt::ToolTipRole).isValid();
    if (!event || !view || event->type() != QEvent::ToolTip || ownTip || !isTruncated(option, index))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QVariant value = index.data(Qt::DisplayRole);
    const QString whole = QStyledItemDelegate::displayText(value, option.locale);
    QToolTip::showText(event->globalPos(), wholeTextToolTip(whole), view->viewport(), option.rect);
    return true;
}

QString wholeTextToolTip(const QString &text)
{
    constexpr qsizetype longest = 2000;
    QString shown = text;
    shown.replace(QChar::LineSeparator, QLatin1Char('\n'));
    if (shown.size() > longest)
        shown = shown.left(longest) + QStringLiteral("\u2026");
    return Qt::convertFromPlainText(shown, Qt::WhiteSpaceNormal);
}

} // namespace brinemark

#include "moc_TruncatingDelegate.cpp"
