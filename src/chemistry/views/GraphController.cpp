// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/views/GraphController.h"

#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "chemistry/TargetCheck.h"
#include "chemistry/views/graph/GraphContentView.h"
#include "chemistry/views/graph/GraphDateForm.h"
#include "chemistry/views/graph/GraphLegend.h"
#include "chemistry/views/graph/GraphWindow.h"
#include "chemistry/views/graph/LegendEntry.h"
#include "chemistry/views/graph/ScaleSlider.h"
#include "chemistry/views/graph/TestDateCombo.h"
#include "model/Tank.h"
#include "ui/Alerts.h"
#include "ui/Sheets.h"
#include "ui/Shell.h"
#include "ui/SpinningIndicator.h"
#include "ui/graph/TwoDGraphView.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace brinemark
{

namespace
{

bool isRange(const QDateTime &start, const QDateTime &end)
{
    return start.isValid() && end.isValid() && start < end;
}

} // namespace

GraphController::GraphController() = default;

GraphController::~GraphController() = default;

void GraphController::makeWindow()
{
    m_dateContentView = new GraphDateForm(m_dates);
    m_graphContentView = new GraphContentView(m_dates);
    m_graphWindow = new GraphWindow(Shell::shared().mainWindow(), m_dateContentView, m_graphContentView);
    m_graphContentView->graphView().setDataSource(this);
    m_graphContentView->graphView().setDelegate(this);
    m_graphContentView->graphView().setWholeTickMarks(GraphAxis::X);

    connect(m_dateContentView, &GraphDateForm::drawRequested, this, &GraphController::graphAction);
    connect(m_dateContentView, &GraphDateForm::cancelled, this, &GraphController::cancelAction);
    connect(m_graphContentView, &GraphContentView::drawRequested, this, &GraphController::graphAction);
    connect(m_graphContentView, &GraphContentView::scaleChanged, this, &GraphController::scaleSliderAction);
    connect(m_graphContentView, &GraphContentView::saveRequested, this, &GraphController::saveGraph);
    connect(m_graphContentView, &GraphContentView::printRequested, this, &GraphController::printGraph);
    connect(m_graphContentView, &GraphContentView::closeRequested, this, &GraphController::cancelAction);
    connect(m_graphContentView, &GraphContentView::fitScaleChanged, this, &GraphController::restartScale);
    connect(&m_graphContentView->graphView(), &TwoDGraphView::zoomChanged, this, &GraphController::updatePaperHeading);
    connect(&m_graphContentView->legend(), &GraphLegend::lineShown, this, &GraphController::showLine);
    connect(&m_graphContentView->legend(), &GraphLegend::linePointedAt, this, &GraphController::showBand);
    connect(m_graphWindow, &QDialog::finished, this, &GraphController::closeGraphSheet);
}

// ---- the sheet

void GraphController::display()
{
    if (!m_graphWindow)
        makeWindow();
    if (m_graphWindow->isVisible())
        return;
    Shell &shell = Shell::shared();
    m_graphTank = shell.currentTank() ? shell.currentTank()->shared_from_this() : nullptr;
    m_dates.setTests(m_graphTank ? m_graphTank->conditionListArray() : Condition::Records());
    const int count = m_dates.rowCount();
    m_dateContentView->startDateCombo().showDates(count == 0 ? -1 : 0);
    m_dateContentView->endDateCombo().showDates(count - 1);
    m_graphWindow->setWindowTitle(m_graphTank ? formatText(text("GraphTitle"), {m_graphTank->name})
                                              : text("GraphTitleNoTank"));
    m_graphWindow->showDates();
    // A dialog has one default button; after an earlier drawing it is the one in the graph's layout.
    m_dateContentView->drawButton().setDefault(true);
    m_dateContentView->startDateCombo().setFocus();
    openSheet(shell.mainWindow(), m_graphWindow);
}

void GraphController::cancelAction()
{
    if (m_graphWindow)
        m_graphWindow->reject();
}

void GraphController::closeGraphSheet(int)
{
    showSeries({});
    m_dates.setTests({});
    m_graphTank.reset();
}

// ---- drawing

void GraphController::graphAction()
{
    if (!m_graphWindow)
        return;
    const bool again = m_graphWindow->isGraphShown();
    TestDateCombo &startCombo = again ? m_graphContentView->startDateComboSmall() : m_dateContentView->startDateCombo();
    TestDateCombo &endCombo = again ? m_graphContentView->endDateComboSmall() : m_dateContentView->endDateCombo();
    if (!isRange(startCombo.date(), endCombo.date())) {
        if (!wantsExchange(startCombo.date(), endCombo.date()))
            return;
        startCombo.exchangeWith(endCombo);
    }
    const QDateTime start = startCombo.date();
    const QDateTime end = endCombo.date();
    if (!again)
        copyDatesToGraphLayout();
    m_graphContentView->spinningIndicator().start();
    showSeries(m_graphTank ? ConditionSeries(*m_graphTank->condition(), start, end) : ConditionSeries());
    m_graphContentView->spinningIndicator().stop();
    if (again)
        return;
    m_graphWindow->showGraph();
    m_graphContentView->drawButton().setDefault(true);
    m_graphContentView->graphView().setFocus();
}

bool GraphController::wantsExchange(const QDateTime &start, const QDateTime &end)
{
    Alert alert{.title = text("DateRangeTitle"), .message = text("DateRangeMessage")};
    const bool reversed = isRange(end, start);
    if (reversed) {
        alert.defaultButton = text("GraphExchangeAndDraw");
        alert.alternateButton = text("CancelLabel");
    }
    beep();
    return runAlertPanel(m_graphWindow, alert) == AlertDefault && reversed && m_graphWindow;
}

void GraphController::copyDatesToGraphLayout()
{
    TestDateCombo &start = m_graphContentView->startDateComboSmall();
    TestDateCombo &end = m_graphContentView->endDateComboSmall();
    start.showDates(-1);
    end.showDates(-1);
    start.copyFrom(m_dateContentView->startDateCombo());
    end.copyFrom(m_dateContentView->endDateCombo());
}

void GraphController::showSeries(const ConditionSeries &series)
{
    m_series = series;
    TwoDGraphView &view = m_graphContentView->graphView();
    m_graphContentView->legend().showLines(series, m_graphTank.get());
    view.setHighlightedBand(std::nullopt);
    for (int line = 0; line < int(colorIdentifierArray().size()); ++line)
        view.setLineVisible(line, true);
    view.setNumberOfTickMarks(series.numberOfXTickMarks(), GraphAxis::X);
    {
        const QSignalBlocker blocker(m_graphContentView->fitScaleBox());
        m_graphContentView->fitScaleBox().setChecked(false);
    }
    restartScale();
    if (const QString why = whyEmpty(); !why.isEmpty()) {
        m_graphContentView->showSentence(why);
        return;
    }
    const QString first = localeDateText(graphArray().front()->date);
    m_graphContentView->showGraph(formatText(text("GraphHint"), {first}));
    updatePaperHeading();
    view.setPaperAxisName(formatText(text("GraphPaperAxis"), {first}));
}

QString GraphController::whyEmpty() const
{
    if (graphArray().empty())
        return text("GraphNoTests");
    if (colorIdentifierArray().empty())
        return text("GraphNoLines");
    const bool tested = std::any_of(colorIdentifierArray().begin(), colorIdentifierArray().end(),
                                    [this](Parameter parameter) { return m_series.isTested(parameter); });
    return tested ? QString() : text("GraphNothingTested");
}

void GraphController::showLine(int line, bool visible)
{
    m_graphContentView->graphView().setLineVisible(line, visible);
    if (m_graphContentView->fitScaleBox().isChecked())
        restartScale();
}

double GraphController::topOfScale() const
{
    double top = 0;
    if (m_graphContentView->fitScaleBox().isChecked()) {
        for (int line = 0; line < int(colorIdentifierArray().size()); ++line) {
            if (m_graphContentView->graphView().isLineVisible(line))
                top = std::max(top, m_series.largestValue(colorIdentifierArray()[std::size_t(line)]));
        }
    }
    return top > 0 ? top : m_series.maxYValue();
}

void GraphController::restartScale()
{
    m_maxYValue = topOfScale();
    m_graphContentView->scaleSlider().restart(float(m_maxYValue));
    TwoDGraphView &view = m_graphContentView->graphView();
    view.setNumberOfTickMarks(numberOfYTickMarks(m_maxYValue), GraphAxis::Y);
    view.reloadData();
}

void GraphController::scaleSliderAction()
{
    if (!m_graphWindow)
        return;
    const ScaleSlider &slider = m_graphContentView->scaleSlider();
    const double top = scaledMaxYValue(slider.maximumFloat(), slider.floatValue());
    if (top == m_maxYValue)
        return;
    m_maxYValue = top;
    m_graphContentView->graphView().reloadData();
}

void GraphController::showBand(int line)
{
    std::optional<GraphBand> shaded;
    if (line >= 0 && m_graphTank) {
        const Parameter parameter = colorIdentifierArray().at(std::size_t(line));
        const TankData &target = *m_graphTank->target(parameter);
        if (target.warningOn)
            shaded = {double(targetBand(target).low), double(targetBand(target).high), lineColour(parameter)};
    }
    m_graphContentView->graphView().setHighlightedBand(shaded);
}

// ---- data source and delegate of the graph view

int GraphController::numberOfLinesInTwoDGraphView(const TwoDGraphView &) const
{
    return int(colorIdentifierArray().size());
}

QList<QPointF> GraphController::dataForLineIndex(const TwoDGraphView &, int line) const
{
    return m_series.points(colorIdentifierArray().at(std::size_t(line)));
}

double GraphController::minimumValueForLineIndex(const TwoDGraphView &, int, GraphAxis) const
{
    return 0;
}

double GraphController::maximumValueForLineIndex(const TwoDGraphView &, int, GraphAxis axis) const
{
    return axis == GraphAxis::X ? maxXValue() : maxYValue();
}

GraphLineAttributes GraphController::attributesForLineIndex(const TwoDGraphView &, int line) const
{
    const Parameter parameter = colorIdentifierArray().at(std::size_t(line));
    return {lineColour(parameter), 2, GraphSymbol(2), text(traitsOf(parameter).targetNameKey)};
}

QString GraphController::labelForTickMarkIndex(const TwoDGraphView &view, int, GraphAxis axis,
                                               const QString &defaultLabel) const
{
    if (axis == GraphAxis::Y)
        return valueTickLabel(defaultLabel, view.tickDigits(axis));
    return view.hasWholeTickMarks(axis) ? dayTickLabel(defaultLabel) : dayFractionTickLabel(defaultLabel);
}

QString GraphController::stringForToolTip(const TwoDGraphView &, QPointF point, int line) const
{
    return m_series.toolTip(point, colorIdentifierArray().at(std::size_t(line)));
}

} // namespace brinemark

#include "moc_GraphController.cpp"
