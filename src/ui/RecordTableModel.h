#pragma once

#include "base/text/Texts.h"
#include "model/ContainerKind.h"
#include "model/Record.h"

#include <QAbstractTableModel>

#include <memory>
#include <span>
#include <vector>

namespace brinemark
{

class Container;
class Tank;

/// How a column shows and, later on, takes its values.
enum class ColumnKind { Date, Number, Text, Flag, Amount };

/// A column of a journal table, described once in a constexpr table of its list controller.
struct RecordColumn {
    QStringView identifier; ///< the record's key, which is also what the container sorts by
    TextKey header;
    ColumnKind kind = ColumnKind::Text;
    int decimals = 0; ///< of a number
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
    int width = 0;                                  ///< pixels to begin with; 0 for as wide as the header's text
    QString (*shownText)(const Record &) = nullptr; ///< for what is not simply the value of the key
};

/// The records of one container of a tank as table rows, in the order in which they stand there. Nothing is kept for a
/// row: a cell's text is made when it is asked for. Whoever changes the container says so through one of the operations
/// below.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit RecordTableModel(ContainerKind kind, QObject *parent = nullptr);

    /// Shows another tank, or none (null), and these columns; they are copied.
    void setTank(Tank *tank, std::span<const RecordColumn> columns);
    void setColumns(std::span<const RecordColumn> columns); ///< takes the selection away

    [[nodiscard]] Container *container() const;                    ///< null without a tank, and after the tank is gone
    [[nodiscard]] std::shared_ptr<Record> recordAt(int row) const; ///< null out of range
    [[nodiscard]] const std::vector<RecordColumn> &columns() const { return m_columns; }
    [[nodiscard]] int columnOf(QStringView identifier) const; ///< -1 when it is not shown

    int append(std::shared_ptr<Record> record); ///< answers its row, or -1 without a tank
    void remove(const std::vector<std::shared_ptr<Record>> &records);
    void sortContainer(); ///< by its own identifier and direction; selections follow their records
    void refresh();       ///< shows what the container holds now

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString cellText(const Record &record, const RecordColumn &column) const;

    ContainerKind m_kind;
    std::weak_ptr<Tank> m_tank;
    std::vector<RecordColumn> m_columns;
    int m_rowCount = 0; ///< as last told to the views
};

} // namespace brinemark
