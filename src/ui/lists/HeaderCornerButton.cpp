// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/HeaderCornerButton.h"

#include "ui/Icons.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>
#include <QTableView>

namespace brinemark
{

HeaderCornerButton::HeaderCornerButton(QTableView &table, const char *iconName, const QString &toolTip)
    : m_table(table)
{
    setIcon(brinemark::icon(iconName));
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    table.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    table.addScrollBarWidget(this, Qt::AlignTop);
    table.horizontalHeader()->installEventFilter(this);
}

QSize HeaderCornerButton::sizeHint() const
{
    return {m_table.verticalScrollBar()->sizeHint().width(), m_table.horizontalHeader()->sizeHint().height()};
}

bool HeaderCornerButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && height() != m_table.horizontalHeader()->height())
        setFixedHeight(m_table.horizontalHeader()->height());
    return QToolButton::eventFilter(watched, event);
}

void HeaderCornerButton::paintEvent(QPaintEvent *)
{
    // Drawn as a section of the header, so that button and header look like one bar.
    QPainter painter(this);
    QStyleOptionHeader section;
    section.initFrom(this);
    section.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    section.orientation = Qt::Horizontal;
    section.position = QStyleOptionHeader::End;
    style()->drawControl(QStyle::CE_HeaderSection, &section, &painter, this);
    const int side = std::min({width() - 2, height() - 2, 16});
    const QRect place(QPoint((width() - side) / 2, (height() - side) / 2), QSize(side, side));
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

} // namespace brinemark

#include "moc_HeaderCornerButton.cpp"
