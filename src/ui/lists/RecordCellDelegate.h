// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/TruncatingDelegate.h"

namespace brinemark
{

/// Edits the cells of a record table. An editor stores its value only when a person has edited it, and never an empty
/// one: passing over a cell or clearing it changes nothing and leaves no undo step. The editor is called "cellEditor"
/// and is accessible under its column's header. Its value is the editor's user property.
class RecordCellDelegate : public TruncatingDelegate
{
    Q_OBJECT

public:
    using TruncatingDelegate::TruncatingDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const final;
    /// Shows the value of Qt::EditRole, all of it selected. Keeps what is being typed when the model changes meanwhile.
    void setEditorData(QWidget *editor, const QModelIndex &index) const final;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const final;

protected:
    /// The bare editor of a cell; null for none.
    [[nodiscard]] virtual QWidget *makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                              const QModelIndex &index) const;
    /// Puts the value of the cell into the editor, which then counts as not edited.
    virtual void showValue(QWidget &editor, const QModelIndex &index) const;
    /// Whether a person has edited it since, be it to the same text.
    [[nodiscard]] virtual bool isEdited(const QWidget &editor) const;
    /// The value to store; invalid for an empty editor. The editor then counts as not edited.
    [[nodiscard]] virtual QVariant takeValue(QWidget &editor) const;
};

} // namespace brinemark
