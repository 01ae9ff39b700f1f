// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/graph/GraphContentView.h"

#include "base/text/Texts.h"
#include "chemistry/views/graph/GraphLegend.h"
#include "chemistry/views/graph/ScaleSlider.h"
#include "chemistry/views/graph/TestDateCombo.h"
#include "ui/CaptionForm.h"
#include "ui/Colours.h"
#include "ui/ElidedLabel.h"
#include "ui/EmptyState.h"
#include "ui/IconButton.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"
#include "ui/SpinningIndicator.h"
#include "ui/graph/TwoDGraphView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

namespace brinemark
{

GraphContentView::GraphContentView(TestDatesModel &dates)
    : m_startDateComboSmall(
          new TestDateCombo(dates, TestDateCombo::Bound::Start, QStringLiteral("startDateComboSmall")))
    , m_endDateComboSmall(new TestDateCombo(dates, TestDateCombo::Bound::End, QStringLiteral("endDateComboSmall")))
    , m_drawButton(new QPushButton(text("GraphDraw")))
    , m_spinningIndicator(new SpinningIndicator)
    , m_wholeGraphButton(makeIconButton("WholeGraph", text("GraphWhole"), QStringLiteral("wholeGraphButton")))
    , m_saveButton(makeIconButton("Export", text("GraphSave"), QStringLiteral("saveButton")))
    , m_printButton(makeIconButton("Print", text("GraphPrint"), QStringLiteral("printButton")))
    , m_scaleSlider(new ScaleSlider)
    , m_graphView(new TwoDGraphView)
    , m_emptyState(new EmptyState(icon("Graph"), QString()))
    , m_place(new QStackedWidget)
    , m_legend(new GraphLegend)
    , m_fitScaleBox(new QCheckBox(text("GraphFitScale")))
    , m_hint(new ElidedLabel)
{
    setObjectName(QStringLiteral("graphContentView"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(spacing::aroundContent);
    column->setSpacing(spacing::section);
    column->addLayout(makeTopRow());
    column->addLayout(makeGraphRow(), 1);
    column->addLayout(makeBottomRow());

    connect(m_drawButton, &QPushButton::clicked, this, &GraphContentView::drawRequested);
    connect(m_scaleSlider, &QSlider::valueChanged, this, &GraphContentView::scaleChanged);
    connect(m_fitScaleBox, &QCheckBox::toggled, this, &GraphContentView::fitScaleChanged);
    connect(m_wholeGraphButton, &QToolButton::clicked, m_graphView, &TwoDGraphView::resetZoom);
    connect(m_graphView, &TwoDGraphView::zoomChanged, this, &GraphContentView::enableButtons);
    connect(m_saveButton, &QToolButton::clicked, this, &GraphContentView::saveRequested);
    connect(m_printButton, &QToolButton::clicked, this, &GraphContentView::printRequested);
}

QHBoxLayout *GraphContentView::makeTopRow()
{
    m_drawButton->setObjectName(QStringLiteral("drawButtonSmall"));
    m_spinningIndicator->setObjectName(QStringLiteral("spinningIndicator"));
    m_spinningIndicator->setAccessibleName(text("GraphDrawing"));
    m_spinningIndicator->setToolTip(text("GraphDrawing"));
    const auto caption = [](const QString &words, TestDateCombo *combo) {
        auto *label = new QLabel(words);
        setCaptionOf(combo, label);
        combo->setAttribute(Qt::WA_MacSmallSize);
        return label;
    };
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing::group);
    row->addWidget(caption(text("GraphStartLabel"), m_startDateComboSmall));
    row->addWidget(m_startDateComboSmall);
    row->addSpacing(spacing::group);
    row->addWidget(caption(text("GraphEndLabel"), m_endDateComboSmall));
    row->addWidget(m_endDateComboSmall);
    QToolButton *swap = makeIconButton("Swap", text("GraphSwapToolTip"), QStringLiteral("swapButtonSmall"));
    connect(swap, &QToolButton::clicked, this, [this] { m_startDateComboSmall->exchangeWith(*m_endDateComboSmall); });
    row->addWidget(swap);
    row->addSpacing(spacing::group);
    row->addWidget(m_drawButton);
    row->addWidget(m_spinningIndicator);
    row->addStretch();
    row->addWidget(m_wholeGraphButton);
    row->addWidget(m_saveButton);
    row->addWidget(m_printButton);
    return row;
}

QHBoxLayout *GraphContentView::makeGraphRow()
{
    m_scaleSlider->setObjectName(QStringLiteral("scaleSlider"));
    m_scaleSlider->setToolTip(text("GraphScaleToolTip"));
    m_scaleSlider->setAccessibleName(text("GraphScale"));
    m_graphView->setObjectName(QStringLiteral("graphView"));
    m_legend->setObjectName(QStringLiteral("graphLegend"));
    m_place->addWidget(m_graphView);
    m_place->addWidget(m_emptyState);
    m_fitScaleBox->setObjectName(QStringLiteral("fitScaleBox"));
    m_fitScaleBox->setToolTip(text("GraphFitScaleToolTip"));
    auto *legend = new QVBoxLayout;
    legend->setSpacing(spacing::group);
    legend->addWidget(m_legend);
    auto *belowLegend = new QHBoxLayout;
    belowLegend->setContentsMargins(spacing::group, 0, spacing::group, 0); // as the legend's entries have
    belowLegend->addWidget(m_fitScaleBox);
    legend->addLayout(belowLegend);
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing::group);
    row->addWidget(m_scaleSlider);
    row->addWidget(m_place, 1);
    row->addLayout(legend);
    return row;
}

QHBoxLayout *GraphContentView::makeBottomRow()
{
    m_hint->setObjectName(QStringLiteral("graphHint"));
    m_hint->setPalette(quietPalette(palette()));
    auto *close = new QPushButton(text("GraphClose"));
    close->setObjectName(QStringLiteral("closeButton"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &GraphContentView::closeRequested);
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing::content);
    row->addWidget(m_hint, 1);
    row->addWidget(close);
    return row;
}

void GraphContentView::showGraph(const QString &hint)
{
    m_hint->setText(hint);
    showPart(m_graphView);
}

void GraphContentView::showSentence(const QString &whyEmpty)
{
    m_hint->clear();
    m_emptyState->setSentence(whyEmpty);
    showPart(m_emptyState);
}

void GraphContentView::showPart(QWidget *part)
{
    m_place->setCurrentWidget(part);
    m_scaleSlider->setVisible(part == m_graphView);
    m_fitScaleBox->setVisible(part == m_graphView);
    enableButtons();
}

void GraphContentView::enableButtons()
{
    const bool drawn = m_place->currentWidget() == m_graphView;
    m_wholeGraphButton->setEnabled(drawn && m_graphView->isZoomed());
    m_saveButton->setEnabled(drawn);
    m_printButton->setEnabled(drawn);
}

} // namespace brinemark

#include "moc_GraphContentView.cpp"
