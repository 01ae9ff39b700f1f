// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/MainViewController.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"

class QLabel;
class QModelIndex;
class QPushButton;
class QStackedWidget;

namespace brinemark
{

class EmptyState;
class RecordTableView;
class TargetTableModel;
class TitleLine;

/// The view of a tank: name, size, type and the table of its seventeen targets. The view's object name is "tankView",
/// the table's "conditionTableView", the button's "editButton".
class TankDataController : public MainViewController, public Shared<TankDataController>
{
    Q_OBJECT

public:
    ~TankDataController() override;

    QWidget *view() override;
    void setKeyViewWithTankList(QWidget *tankTree, QWidget *helpButton) override;
    void updateDisplay() override { display(); }

    void display(); ///< fills the view from the current tank
    /// Opens the tank editor, at the selected target if there is one.
    void editAction();

private:
    friend class Shared<TankDataController>;
    TankDataController();

    void makeView();
    QWidget *makeContent();
    void makeTable();
    void edit(const QModelIndex &row);

    TargetTableModel *m_model;
    TitleLine *m_titleLine = nullptr;
    QLabel *m_nameField = nullptr;
    QLabel *m_sizeField = nullptr;
    QLabel *m_typeField = nullptr;
    RecordTableView *m_table = nullptr;
    QPushButton *m_editButton = nullptr;
    QStackedWidget *m_pages = nullptr;
    EmptyState *m_emptyState = nullptr;
    OwnedWidget<QWidget> m_view;
};

} // namespace brinemark
