// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordCellDelegate.h"

#include <QLineEdit>
#include <QMetaProperty>

namespace brinemark
{

namespace
{

constexpr const char *shownValueProperty = "shownValue"; ///< the editor's value when nobody has edited it

QVariant valueOf(const QWidget &editor)
{
    return editor.metaObject()->userProperty().read(&editor);
}

/// The text field of an editor: itself, or the one inside a spin box or a combo box; null for other editors.
QLineEdit *textField(const QWidget &editor)
{
    auto *field = qobject_cast<QLineEdit *>(const_cast<QWidget *>(&editor));
    return field ? field : editor.findChild<QLineEdit *>();
}

void countAsNotEdited(QWidget &editor)
{
    if (QLineEdit *field = textField(editor))
        field->setModified(false);
    editor.setProperty(shownValueProperty, valueOf(editor));
}

} // namespace

QWidget *RecordCellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    QWidget *editor = makeEditor(parent, option, index);
    if (editor) {
        editor->setObjectName(QStringLiteral("cellEditor"));
        editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    }
    return editor;
}

void RecordCellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (!isEdited(*editor))
        showValue(*editor, index);
}

void RecordCellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (!isEdited(*editor))
        return;
    const QVariant value = takeValue(*editor);
    if (value.isValid())
        model->setData(index, value, Qt::EditRole);
}

QWidget *RecordCellDelegate::makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    return TruncatingDelegate::createEditor(parent, option, index);
}

void RecordCellDelegate::showValue(QWidget &editor, const QModelIndex &index) const
{
    TruncatingDelegate::setEditorData(&editor, index);
    if (QLineEdit *field = textField(editor))
        field->selectAll();
    countAsNotEdited(editor);
}

bool RecordCellDelegate::isEdited(const QWidget &editor) const
{
    const QLineEdit *field = textField(editor);
    const QVariant shown = editor.property(shownValueProperty);
    return shown.isValid() && ((field && field->isModified()) || valueOf(editor) != shown);
}

QVariant RecordCellDelegate::takeValue(QWidget &editor) const
{
    const QLineEdit *field = textField(editor);
    const QVariant value = valueOf(editor);
    const bool isEmpty = (field ? field->text() : value.toString()).trimmed().isEmpty();
    countAsNotEdited(editor);
    return isEmpty ? QVariant() : value;
}

} // namespace brinemark

#include "moc_RecordCellDelegate.cpp"
