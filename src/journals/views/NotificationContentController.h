// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ScheduleData.h"
#include "ui/OwnedWidget.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QAction;
class QCheckBox;
class QMenu;
class QToolButton;
class QWidget;

namespace brinemark
{

/// One row of the overdue notice, and its item in the dock menu. Object names: the row "notificationView", its controls
/// "noteComplete" and "linkButton".
class NotificationContentController : public QObject
{
    Q_OBJECT

public:
    explicit NotificationContentController(std::shared_ptr<ScheduleData> data);
    ~NotificationContentController() override;

    [[nodiscard]] const ScheduleData &data() const { return *m_data; }
    /// Created on first use; deleted by its parent widget or with this controller.
    [[nodiscard]] QWidget *contentView();

    void addToDockMenu(QMenu &menu);

    void scheduleDataChecked(); ///< updates the row and the dock item to show whether the record is done
    void scheduleDataDeleted(); ///< disables the row and removes the dock item, because the record is being deleted

private:
    void setComplete(bool complete);
    void gotoDataAction();

    std::shared_ptr<ScheduleData> m_data;
    bool m_deleted = false;
    QPointer<QCheckBox> m_noteComplete;
    QPointer<QToolButton> m_linkButton;
    QPointer<QAction> m_dockItem;
    OwnedWidget<QWidget> m_contentView;
};

} // namespace brinemark
