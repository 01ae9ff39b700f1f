// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/TruncatingDelegate.h"

#include <functional>

namespace brinemark
{

class SFCheckedFormatter;

/// Edits the cells of a table of numbers in a CheckedLineEdit. The editor, of whatever kind, is called "cellEditor" and
/// is accessible under its column's header.
class CheckedCellDelegate : public TruncatingDelegate
{
    Q_OBJECT

public:
    /// The formatter of a cell; null for cells that are edited as the base class does. It is copied.
    using FormatterOf = std::function<const SFCheckedFormatter *(const QModelIndex &)>;

    explicit CheckedCellDelegate(FormatterOf formatterOf, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Shows the number of Qt::EditRole, all of it selected.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Stores the editor's number, a double within the formatter's range, under Qt::EditRole; nothing when nobody has
    /// edited it.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

private:
    FormatterOf m_formatterOf;
};

} // namespace brinemark
