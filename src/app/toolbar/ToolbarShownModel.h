// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace brinemark
{

/// The items of the toolbar from left to right, one a row, with the rule that only separators and spaces repeat.
class ToolbarShownModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ToolbarShownModel(const QStringList &identifiers, QObject *parent = nullptr);

    [[nodiscard]] const QStringList &identifiers() const { return m_identifiers; }
    void setIdentifiers(const QStringList &identifiers);

    /// Puts an item before a row (or at the end for a row out of range) and answers its row. A non-repeatable item that
    /// is shown already is moved there. Answers -1 for an unknown identifier.
    int insert(int row, const QString &identifier);
    /// Moves the item of row `from` before row `before` (the count: to the end) and answers its new row.
    int move(int from, int before);
    void remove(int row);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

Q_SIGNALS:
    /// After every change of the list, however made.
    void changed();
    /// An item was dropped here and now stands in this row.
    void dropped(int row);

private:
    QStringList m_identifiers;
};

} // namespace brinemark
