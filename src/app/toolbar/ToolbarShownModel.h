// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace brinemark
{

/// The items of the toolbar from left to right, one per row. Only separators and spaces may occur more than once.
class ToolbarShownModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ToolbarShownModel(const QStringList &identifiers, QObject *parent = nullptr);

    [[nodiscard]] const QStringList &identifiers() const { return m_identifiers; }
    void setIdentifiers(const QStringList &identifiers);

    /// Inserts an item before a row, or at the end if the row is out of range, and returns its new row. A
    /// non-repeatable item that is shown already is moved instead. Returns -1 for an unknown identifier.
    int insert(int row, const QString &identifier);
    /// Moves the item in row `from` to before row `before` (the row count moves it to the end) and returns its new row,
    /// or -1 if a row is out of range.
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
    /// Emitted after every change of the list.
    void changed();
    /// Emitted after a drop, with the new row of the dropped item.
    void dropped(int row);

private:
    QStringList m_identifiers;
};

} // namespace brinemark
