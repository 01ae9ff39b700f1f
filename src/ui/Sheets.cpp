// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Sheets.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QScreen>

#include <algorithm>
#include <deque>

namespace brinemark
{

namespace
{

/// The sheets of one window in the order of their turn; the first one is shown. The queue is a child of the window.
class SheetQueue : public QObject
{
public:
    explicit SheetQueue(QObject *owner)
        : QObject(owner)
    {
        setObjectName(QLatin1String(name));
        if (owner->isWidgetType()) // a filter of the application object would see every event
            owner->installEventFilter(this);
    }

    static SheetQueue &of(QWidget *window)
    {
        QObject *owner = window ? static_cast<QObject *>(window->window()) : qApp;
        if (auto *queue = owner->findChild<QObject *>(QLatin1String(name), Qt::FindDirectChildrenOnly))
            return static_cast<SheetQueue &>(*queue);
        return *new SheetQueue(owner);
    }

    void add(QDialog *sheet)
    {
        // A sheet that is destroyed does not emit finished(), so both signals are needed. After destroyed() the pointer
        // is only compared, never dereferenced.
        connect(sheet, &QDialog::finished, this, [this, sheet] {
            disconnect(sheet, nullptr, this, nullptr);
            remove(sheet);
        });
        connect(sheet, &QObject::destroyed, this, [this, sheet] { remove(sheet); });
        m_sheets.push_back(sheet);
        if (m_sheets.size() == 1)
            openFirst();
    }

    /// The window system may place a window after its sheet has opened, above all at the start.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parent() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
            follow();
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr const char *name = "sheetQueue";
    static constexpr int frameTolerance = 48; ///< by how much a frame around the sheet may shift its middle, in pixels

    void openFirst()
    {
        QDialog *sheet = m_sheets.front();
        centreOver(qobject_cast<QWidget *>(parent()), sheet);
        m_middle = sheet->frameGeometry().center();
        sheet->open();
    }

    /// Keeps the open sheet over the middle of its window, unless the user has moved it.
    void follow()
    {
        auto *window = qobject_cast<QWidget *>(parent());
        if (m_sheets.empty() || !window || window->isMinimized())
            return;
        QDialog *sheet = m_sheets.front();
        if ((sheet->frameGeometry().center() - m_middle).manhattanLength() > frameTolerance)
            return;
        moveOver(window, sheet);
        m_middle = sheet->frameGeometry().center();
    }

    void remove(QDialog *sheet)
    {
        const bool wasOpen = !m_sheets.empty() && m_sheets.front() == sheet;
        std::erase(m_sheets, sheet);
        if (wasOpen && !m_sheets.empty())
            openFirst();
    }

    std::deque<QDialog *> m_sheets;
    QPoint m_middle; ///< where the middle of the open sheet was put
};

} // namespace

void openSheet(QWidget *window, QDialog *sheet)
{
    SheetQueue::of(window).add(sheet);
}

void centreOver(QWidget *window, QDialog *dialog)
{
    dialog->adjustSize();
    moveOver(window, dialog);
}

void moveOver(QWidget *window, QDialog *dialog)
{
    if (!window)
        return;
    QWidget *top = window->window();
    if (top->isMinimized()) // a question over a minimised window cannot be seen
        top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
    const QRect screen = top->screen()->availableGeometry();
    const QSize size = dialog->frameSize();
    QPoint corner = top->frameGeometry().center() - QPoint(size.width() / 2, size.height() / 2);
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() + 1 - size.width())));
    corner.setY(std::max(screen.top(), std::min(corner.y(), screen.bottom() + 1 - size.height())));
    dialog->move(corner);
}

} // namespace brinemark
