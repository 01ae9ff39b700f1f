// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/lists/RecordCellDelegate.h"

#include <functional>

namespace brinemark
{

class SFCheckedFormatter;

/// Edits the cells of a table of numbers in a CheckedLineEdit. An empty number is stored as not tested.
class CheckedCellDelegate : public RecordCellDelegate
{
    Q_OBJECT

public:
    /// Returns the formatter of a cell, null for a cell that holds no number. The editor copies it.
    using FormatterOf = std::function<const SFCheckedFormatter *(const QModelIndex &)>;

    explicit CheckedCellDelegate(FormatterOf formatterOf, QObject *parent = nullptr);

protected:
    [[nodiscard]] QWidget *makeEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const override;
    void showValue(QWidget &editor, const QModelIndex &index) const override;
    [[nodiscard]] bool isEdited(const QWidget &editor) const override;
    /// A double within the formatter's range.
    [[nodiscard]] QVariant takeValue(QWidget &editor) const override;

private:
    FormatterOf m_formatterOf;
};

} // namespace brinemark
