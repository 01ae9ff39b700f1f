// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/calendar/CalendarController.h"

#include "ui/calendar/CalendarPopup.h"
#include "ui/calendar/FadeOut.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSplitterHandle>

#include <algorithm>
#include <utility>

namespace brinemark
{

namespace
{

QRect onScreen(const QWidget &widget, const QRect &area)
{
    return {widget.mapToGlobal(area.topLeft()), area.size()};
}

bool isAt(const QWidget *widget, QPoint globalPoint)
{
    return widget && widget->isVisible() && onScreen(*widget, widget->rect()).contains(globalPoint);
}

} // namespace

QRect calendar::placeAt(const QRect &cell, QSize size, const QRect &screen, Qt::LayoutDirection direction)
{
    const int below = screen.bottom() - cell.bottom();
    const int above = cell.top() - screen.top();
    QRect place({}, size);
    if (below >= size.height() || below >= above)
        place.moveTop(cell.bottom() + 1);
    else
        place.moveBottom(cell.top() - 1);
    if (direction == Qt::RightToLeft)
        place.moveRight(cell.right());
    else
        place.moveLeft(cell.left());
    // Right and bottom first, so that the top left corner stays visible on a screen that is too small.
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place;
}

CalendarController::CalendarController() = default;

CalendarController::~CalendarController() = default;

void CalendarController::setCalendar(std::function<void(const QDateTime &)> target, QTableView *table,
                                     const QString &columnIdentifier, const QRect &cell, const QDateTime &date)
{
    const QPointer<QTableView> safeTable = table;
    closeAndSave(true, false); // the target of the calendar that is open may run any code, even destroy `table`
    if (!safeTable || !table->model())
        return;
    m_target = std::move(target);
    m_table = table;
    m_model = table->model();
    m_columnIdentifier = columnIdentifier;
    m_cell = onScreen(*table->viewport(), cell);

    m_popup = new CalendarPopup(date, table);
    watchTable();
    const QScreen *screen = QGuiApplication::screenAt(m_cell.center());
    m_popup->ensurePolished();
    m_popup->setGeometry(calendar::placeAt(m_cell, m_popup->sizeHint(),
                                           (screen ? screen : table->screen())->availableGeometry(),
                                           table->layoutDirection()));
    m_popup->show();
}

bool CalendarController::isOpen() const
{
    return m_popup != nullptr;
}

QTableView *CalendarController::table() const
{
    return qobject_cast<QTableView *>(m_table.data());
}

void CalendarController::watchTable()
{
    m_watch = std::make_unique<QObject>();
    QObject *watch = m_watch.get();
    const auto abandon = [this] { closeAndSave(false, false); };
    connect(m_popup, &CalendarPopup::finished, watch, [this](bool save) { closeAndSave(save, true); });
    connect(m_popup, &CalendarPopup::left, watch, [this](QPoint globalPoint) { leave(globalPoint); });
    connect(m_table, &QObject::destroyed, watch, abandon);
    connect(m_model, &QAbstractItemModel::modelReset, watch, abandon);
    connect(m_model, &QAbstractItemModel::layoutChanged, watch, abandon);
    connect(m_model, &QAbstractItemModel::rowsInserted, watch, abandon);
    connect(m_model, &QAbstractItemModel::rowsRemoved, watch, abandon);
    connect(m_model, &QAbstractItemModel::rowsMoved, watch, abandon);
    connect(m_model, &QObject::destroyed, watch, abandon);
    m_table->installEventFilter(this);
    m_table->window()->installEventFilter(this);
}

void CalendarController::closeAndSave(bool save, bool fade)
{
    const auto target = std::exchange(m_target, {});
    const QPointer<CalendarPopup> popup = m_popup.release();
    const QPointer<QWidget> widget = std::exchange(m_table, {});
    const QPointer<QAbstractItemModel> model = std::exchange(m_model, {});
    m_columnIdentifier.clear();
    m_watch.reset();
    if (widget) {
        widget->removeEventFilter(this);
        widget->window()->removeEventFilter(this);
    }
    if (!popup)
        return;

    auto *table = qobject_cast<QTableView *>(widget.data());
    const bool isInPlace = table && model && table->model() == model;
    const QDateTime chosen = save && isInPlace && popup->isChanged() ? popup->date() : QDateTime();
    popup->disconnect();
    if (fade && isInPlace)
        fadeOut(*popup, table);
    popup->hide();
    popup->deleteLater(); // deferred, because this may run inside one of its event handlers
    if (chosen.isValid() && target)
        target(chosen);
}

void CalendarController::leave(QPoint globalPoint)
{
    if (!m_popup || !table())
        return;
    const QWidget *window = m_table->window();
    const QWidget *pressed = window->childAt(window->mapFromGlobal(globalPoint));
    const bool onFrame =
        window->frameGeometry().contains(globalPoint) && !window->geometry().contains(globalPoint);
    // Each of these moves or resizes what the calendar belongs to.
    if (onFrame || isAt(table()->horizontalHeader(), globalPoint) || qobject_cast<const QSplitterHandle *>(pressed)) {
        closeAndSave(false, false);
        return;
    }
    // Some window systems pass the press on to the widget below. On the cell itself it would open the calendar again.
    m_popup->setAttribute(Qt::WA_NoMouseReplay, m_cell.contains(globalPoint));
    closeAndSave(true, true);
}

bool CalendarController::eventFilter(QObject *watched, QEvent *event)
{
    const bool hidden = event->type() == QEvent::Hide && watched == m_table;
    const bool resized = event->type() == QEvent::Resize && m_table && watched == m_table->window();
    if (hidden || resized)
        closeAndSave(false, false);
    return QObject::eventFilter(watched, event);
}

} // namespace brinemark

#include "moc_CalendarController.cpp"
