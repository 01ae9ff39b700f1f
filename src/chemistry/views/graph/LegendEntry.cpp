// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/LegendEntry.h"

#include "chemistry/views/graph/ColourSwatch.h"
#include "ui/Spacing.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QMouseEvent>

namespace brinemark
{

LegendEntry::LegendEntry(Parameter parameter, bool tested, const QString &toolTip)
    : m_box(new QCheckBox(text(traitsOf(parameter).targetNameKey)))
    , m_swatch(new ColourSwatch(lineColour(parameter)))
{
    const QString name = traitsOf(parameter).identifier.toString().toLower();
    m_swatch->setObjectName(name + QStringLiteral("View"));
    m_swatch->setFilled(tested);
    m_box->setObjectName(name + QStringLiteral("Box"));
    m_box->setChecked(tested);
    m_box->setEnabled(tested);
    m_box->setFocusPolicy(Qt::TabFocus); // a click must not leave the focus here, which would keep the line highlighted
    m_box->installEventFilter(this);
    setToolTip(toolTip);

    m_box->setAccessibleDescription(tested ? toolTip : text("GraphNotTested"));

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(spacing::group, spacing::tight, spacing::group, spacing::tight);
    row->setSpacing(spacing::group);
    row->addWidget(m_swatch);
    row->addWidget(m_box, 1);

    connect(m_box, &QCheckBox::toggled, this, [this](bool visible) {
        m_swatch->setFilled(visible);
        Q_EMIT shown(visible);
    });
}

void LegendEntry::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    m_hovered = true;
    Q_EMIT pointedAt();
}

void LegendEntry::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    m_hovered = false;
    Q_EMIT pointedAt();
}

void LegendEntry::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_box->click();
}

bool LegendEntry::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        m_focused = event->type() == QEvent::FocusIn;
        Q_EMIT pointedAt();
    }
    return QWidget::eventFilter(object, event);
}

QColor lineColour(Parameter parameter)
{
    const std::optional<LineColour> &colour = traitsOf(parameter).lineColour;
    return colour ? QColor::fromRgbF(colour->red, colour->green, colour->blue) : QColor();
}

} // namespace brinemark

#include "moc_LegendEntry.cpp"
