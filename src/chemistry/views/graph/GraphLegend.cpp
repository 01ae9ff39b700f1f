// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/GraphLegend.h"

#include "chemistry/ConditionSeries.h"
#include "chemistry/TargetCheck.h"
#include "chemistry/views/graph/LegendEntry.h"
#include "model/Tank.h"
#include "ui/Colours.h"
#include "ui/Spacing.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace brinemark
{

namespace
{

constexpr int widthOfNames = 168; ///< pixels

QString toolTipOf(const TankData &target)
{
    if (!target.warningOn)
        return text("GraphLegendToolTip");
    return text("GraphLegendToolTip") + u'\n' + targetRangeText(target);
}

} // namespace

GraphLegend::GraphLegend(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // only its entries take the focus
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAccessibleName(text("GraphLegend"));
    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_notTestedCaption = new QLabel(text("GraphNotTested"));
    m_notTestedCaption->setObjectName(QStringLiteral("notTestedCaption"));
    m_notTestedCaption->setTextFormat(Qt::PlainText);
    m_notTestedCaption->setWordWrap(true);
    m_notTestedCaption->setPalette(quietPalette(palette()));
    m_notTestedCaption->setContentsMargins(spacing::group, spacing::group, spacing::group, spacing::tight);
    m_column->addWidget(m_notTestedCaption);
    m_column->addStretch();
    setWidget(content);
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

void GraphLegend::showLines(const ConditionSeries &series, const Tank *tank)
{
    for (LegendEntry *entry : m_entries)
        delete entry;
    m_entries.clear();
    int testedCount = 0;
    for (const Parameter parameter : series.colorIdentifierArray()) {
        if (!tank)
            break;
        const bool tested = series.isTested(parameter);
        const int line = int(m_entries.size());
        auto *entry = new LegendEntry(parameter, tested, toolTipOf(*tank->target(parameter)));
        connect(entry, &LegendEntry::shown, this, [this, line](bool visible) { Q_EMIT lineShown(line, visible); });
        connect(entry, &LegendEntry::pointedAt, this, &GraphLegend::tellPointedAt);
        const int beforeStretch = m_column->count() - 1;
        m_column->insertWidget(tested ? testedCount++ : beforeStretch, entry);
        m_entries.push_back(entry);
    }
    m_notTestedCaption->setVisible(testedCount < int(m_entries.size()));
    setVisible(!m_entries.empty()); // gives the whole width to a sentence that replaces the graph
}

QSize GraphLegend::sizeHint() const
{
    return {widthOfNames + verticalScrollBar()->sizeHint().width(), widthOfNames};
}

void GraphLegend::tellPointedAt()
{
    // The pointer takes precedence over the focus, which may still be on an entry that was used before.
    const auto hovered =
        std::find_if(m_entries.begin(), m_entries.end(), [](const LegendEntry *entry) { return entry->isHovered(); });
    const auto focused =
        std::find_if(m_entries.begin(), m_entries.end(), [](const LegendEntry *entry) { return entry->isFocused(); });
    const auto pointed = hovered != m_entries.end() ? hovered : focused;
    Q_EMIT linePointedAt(pointed == m_entries.end() ? -1 : int(pointed - m_entries.begin()));
}

} // namespace brinemark

#include "moc_GraphLegend.cpp"
