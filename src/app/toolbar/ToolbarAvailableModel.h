// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractListModel>
#include <QStringList>

namespace brinemark
{

class ToolbarShownModel;

/// The items that can still be added to the toolbar: all allowed items except the non-repeatable ones that are shown.
/// It follows changes of `shown`, which must outlive it. Dropping a shown item here removes it from the toolbar.
class ToolbarAvailableModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ToolbarAvailableModel(ToolbarShownModel *shown, QObject *parent = nullptr);

    [[nodiscard]] const QStringList &identifiers() const { return m_identifiers; }

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

private:
    void follow();

    ToolbarShownModel *m_shown;
    QStringList m_identifiers;
};

} // namespace brinemark
