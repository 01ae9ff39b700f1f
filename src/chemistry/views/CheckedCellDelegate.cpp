// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/CheckedCellDelegate.h"

#include "chemistry/views/CheckedLineEdit.h"

#include <QStyle>

#include <algorithm>
#include <utility>

namespace brinemark
{

CheckedCellDelegate::CheckedCellDelegate(FormatterOf formatterOf, QObject *parent)
    : TruncatingDelegate(parent)
    , m_formatterOf(std::move(formatterOf))
{
}

QWidget *CheckedCellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                           const QModelIndex &index) const
{
    QWidget *editor = nullptr;
    if (const SFCheckedFormatter *formatter = m_formatterOf ? m_formatterOf(index) : nullptr) {
        auto *field = new CheckedLineEdit(*formatter, parent);
        field->setFrame(false);
        field->setAlignment(option.displayAlignment);
        // What is typed stands where the cell's own text does; a line edit has two pixels of its own.
        const QStyle *style = option.widget ? option.widget->style() : field->style();
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1 - 2;
        field->setTextMargins(std::max(0, margin), 0, std::max(0, margin), 0);
        editor = field;
    } else {
        editor = TruncatingDelegate::createEditor(parent, option, index);
    }
    if (editor) {
        editor->setObjectName(QStringLiteral("cellEditor"));
        editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    }
    return editor;
}

void CheckedCellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *field = qobject_cast<CheckedLineEdit *>(editor);
    if (!field) {
        TruncatingDelegate::setEditorData(editor, index);
        return;
    }
    if (field->hasEdit())
        return; // the model changed meanwhile; what is being typed is not lost over it
    field->setText(field->formatter().stringForObjectValue(index.data(Qt::EditRole)));
    field->selectAll();
}

void CheckedCellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *field = qobject_cast<CheckedLineEdit *>(editor);
    if (!field) {
        TruncatingDelegate::setModelData(editor, model, index);
        return;
    }
    if (!field->hasEdit())
        return;
    const double value = field->value();
    field->setValue(value); // a second request finds an editor that nobody has edited since
    model->setData(index, value, Qt::EditRole);
}

} // namespace brinemark

#include "moc_CheckedCellDelegate.cpp"
