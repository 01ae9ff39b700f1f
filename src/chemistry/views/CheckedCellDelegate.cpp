// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/CheckedCellDelegate.h"

#include "ui/CheckedLineEdit.h"

#include <QStyle>

#include <algorithm>
#include <utility>

namespace brinemark
{

CheckedCellDelegate::CheckedCellDelegate(FormatterOf formatterOf, QObject *parent)
    : RecordCellDelegate(parent)
    , m_formatterOf(std::move(formatterOf))
{
}

QWidget *CheckedCellDelegate::makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    const SFCheckedFormatter *formatter = m_formatterOf ? m_formatterOf(index) : nullptr;
    if (!formatter)
        return RecordCellDelegate::makeEditor(parent, option, index);
    auto *field = new CheckedLineEdit(*formatter, parent);
    field->setFrame(false);
    field->setAlignment(option.displayAlignment);
    // The typed text starts where the cell's own text does: a line edit has two pixels of its own.
    const QStyle *style = option.widget ? option.widget->style() : field->style();
    const int margin = std::max(0, style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1 - 2);
    field->setTextMargins(margin, 0, margin, 0);
    return field;
}

void CheckedCellDelegate::showValue(QWidget &editor, const QModelIndex &index) const
{
    auto *field = qobject_cast<CheckedLineEdit *>(&editor);
    if (!field) {
        RecordCellDelegate::showValue(editor, index);
        return;
    }
    field->setText(field->formatter().stringForObjectValue(index.data(Qt::EditRole)));
    field->selectAll();
}

bool CheckedCellDelegate::isEdited(const QWidget &editor) const
{
    const auto *field = qobject_cast<const CheckedLineEdit *>(&editor);
    return field ? field->hasEdit() : RecordCellDelegate::isEdited(editor);
}

QVariant CheckedCellDelegate::takeValue(QWidget &editor) const
{
    auto *field = qobject_cast<CheckedLineEdit *>(&editor);
    if (!field)
        return RecordCellDelegate::takeValue(editor);
    const double value = field->value();
    field->setValue(value);
    return value;
}

} // namespace brinemark

#include "moc_CheckedCellDelegate.cpp"
