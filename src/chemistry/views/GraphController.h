// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "chemistry/ConditionSeries.h"
#include "chemistry/views/graph/TestDatesModel.h"
#include "ui/OwnedWidget.h"
#include "ui/Shared.h"
#include "ui/graph/TwoDGraph.h"

#include <QObject>

#include <memory>

namespace brinemark
{

class GraphContentView;
class GraphDateForm;
class GraphWindow;
class Tank;
class TestDateCombo;

/// The graph of the current tank's water tests, in a sheet of the main window: first a form for the range of dates
/// (GraphDateForm), then the graph (GraphContentView). The object names of the controls are in those two files.
class GraphController final : public QObject,
                              public Shared<GraphController>,
                              public TwoDGraphDataSource,
                              public TwoDGraphDelegate
{
    Q_OBJECT

public:
    ~GraphController() override;

    /// Opens the sheet with the form. The list of water tests must have stored its column layout, which determines the
    /// lines.
    void display();

    /// Draws the chosen range. Beeps, shows a message and leaves an earlier graph standing when a date is missing or
    /// the start is not before the end; for a start after the end, the message offers to exchange the dates and draw.
    void graphAction();
    void cancelAction();
    void scaleSliderAction();

    [[nodiscard]] Tank *graphTank() const { return m_graphTank.get(); }
    [[nodiscard]] const Condition::Records &graphArray() const { return m_series.graphArray(); }
    [[nodiscard]] const std::vector<Parameter> &colorIdentifierArray() const { return m_series.colorIdentifierArray(); }
    [[nodiscard]] double maxYValue() const { return m_maxYValue; }
    [[nodiscard]] double maxXValue() const { return double(m_series.maxXValue()); }

    [[nodiscard]] int numberOfLinesInTwoDGraphView(const TwoDGraphView &view) const override;
    [[nodiscard]] QList<QPointF> dataForLineIndex(const TwoDGraphView &view, int line) const override;
    [[nodiscard]] double minimumValueForLineIndex(const TwoDGraphView &view, int line, GraphAxis axis) const override;
    [[nodiscard]] double maximumValueForLineIndex(const TwoDGraphView &view, int line, GraphAxis axis) const override;
    [[nodiscard]] GraphLineAttributes attributesForLineIndex(const TwoDGraphView &view, int line) const override;
    [[nodiscard]] QString labelForTickMarkIndex(const TwoDGraphView &view, int index, GraphAxis axis,
                                                const QString &defaultLabel) const override;
    [[nodiscard]] QString stringForToolTip(const TwoDGraphView &view, QPointF point, int line) const override;

private:
    friend class Shared<GraphController>;
    GraphController();

    void makeWindow();
    void closeGraphSheet(int returnCode);
    void showSeries(const ConditionSeries &series);
    /// Beeps and says that this is no range of dates. True when the dates are reversed and the user wants to exchange
    /// them.
    [[nodiscard]] bool wantsExchange(const QDateTime &start, const QDateTime &end);
    void copyDatesToGraphLayout();
    void showLine(int line, bool visible);
    /// The top of the Y axis before the scale slider reduces it: that of the series or, when the scale is to fit the
    /// visible lines, their largest value.
    [[nodiscard]] double topOfScale() const;
    void restartScale();
    void showBand(int line);
    void saveGraph();
    void printGraph();
    void updatePaperHeading(); ///< the heading states the dates that are visible
    [[nodiscard]] QString whyEmpty() const;

    TestDatesModel m_dates;
    GraphDateForm *m_dateContentView = nullptr;
    GraphContentView *m_graphContentView = nullptr;

    std::shared_ptr<Tank> m_graphTank; ///< kept alive while the sheet shows it, even when its file is closed
    ConditionSeries m_series;
    /// Top of the Y axis: the maximum of the series, or of its visible lines, reduced by the scale slider.
    double m_maxYValue = 0;
    OwnedWidget<GraphWindow> m_graphWindow;
};

} // namespace brinemark
