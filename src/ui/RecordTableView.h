#pragma once

#include <QTableView>

#include <functional>

namespace brinemark
{

/// The look and the keys of the program's record tables: whole rows are selected, the delete key asks to delete them.
class RecordTableView : public QTableView
{
    Q_OBJECT

public:
    explicit RecordTableView(std::function<void()> deletePressed = {}, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fitRowHeight();

    std::function<void()> m_deletePressed;
};

} // namespace brinemark
