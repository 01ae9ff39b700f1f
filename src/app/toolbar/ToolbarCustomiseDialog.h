// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/toolbar/ToolbarConfiguration.h"

#include <QDialog>

#include <functional>

class QAbstractItemModel;
class QComboBox;
class QListView;
class QPushButton;
class QVBoxLayout;

namespace brinemark
{

class ToolbarAvailableModel;
class ToolbarShownModel;

/// The sheet for rearranging the toolbar: the available items on the left, the shown items on the right. Items are
/// moved between them with the mouse, buttons or keys. Every change is applied at once, so there is no button to
/// confirm.
class ToolbarCustomiseDialog : public QDialog
{
    Q_OBJECT

public:
    using Apply = std::function<void(const ToolbarConfiguration &)>;

    ToolbarCustomiseDialog(const ToolbarConfiguration &configuration, Apply apply, QWidget *parent);

private:
    [[nodiscard]] QVBoxLayout *availableColumn();
    [[nodiscard]] QVBoxLayout *shownColumn();
    QListView *listView(const char *name, QAbstractItemModel *model, TextKey title);
    QPushButton *button(const char *name, TextKey caption, void (ToolbarCustomiseDialog::*action)());
    void addKey(QListView *list, const QKeySequence &key, void (ToolbarCustomiseDialog::*action)());

    void add();
    void remove();
    void moveUp();
    void moveDown();
    void restoreDefaults();
    void finish() { accept(); } // a void function without parameters, as button() expects
    void selectShown(int row);
    void enableButtons();
    void applyNow();

    Apply m_apply;
    ToolbarConfiguration m_configuration;
    ToolbarShownModel *m_shownModel;
    ToolbarAvailableModel *m_availableModel;
    QListView *m_available = nullptr;
    QListView *m_shown = nullptr;
    QComboBox *m_display = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_remove = nullptr;
    QPushButton *m_up = nullptr;
    QPushButton *m_down = nullptr;
};

} // namespace brinemark
