// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/TitleLine.h"

#include "ui/Colours.h"
#include "ui/ElidedLabel.h"
#include "ui/Spacing.h"

#include <QEvent>
#include <QHBoxLayout>

namespace brinemark
{

TitleLine::TitleLine(const QString &title, const QString &secondary, QWidget *parent)
    : QWidget(parent)
    , m_title(new ElidedLabel(title, this))
    , m_secondary(new ElidedLabel(secondary, this))
{
    m_title->setObjectName(QStringLiteral("viewTitle"));
    m_secondary->setObjectName(QStringLiteral("viewSecondary"));
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(spacing::content, spacing::section, spacing::content, spacing::section);
    line->setSpacing(spacing::group);
    line->addWidget(m_title, 0, Qt::AlignBottom);
    line->addWidget(m_secondary, 1, Qt::AlignBottom);
    m_title->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_secondary->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    applyLook();
}

QString TitleLine::title() const
{
    return m_title->text();
}

QString TitleLine::secondary() const
{
    return m_secondary->text();
}

void TitleLine::setTitle(const QString &title)
{
    m_title->setText(title);
}

void TitleLine::setSecondary(const QString &secondary)
{
    m_secondary->setText(secondary);
}

void TitleLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        applyLook();
}

void TitleLine::applyLook()
{
    constexpr qreal larger = 1.35;
    QFont titleFont = font();
    titleFont.setBold(true);
    if (titleFont.pointSizeF() > 0)
        titleFont.setPointSizeF(titleFont.pointSizeF() * larger);
    else // a font whose size is given in pixels
        titleFont.setPixelSize(int(titleFont.pixelSize() * larger));
    m_title->setFont(titleFont);

    // Align the base lines of the two texts, whose sizes differ.
    const int lift = QFontMetrics(titleFont).descent() - fontMetrics().descent();
    m_secondary->setContentsMargins(0, 0, 0, lift);
    m_secondary->setPalette(quietPalette(palette()));
}

} // namespace brinemark

#include "moc_TitleLine.cpp"
