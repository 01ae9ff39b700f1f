// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QCheckBox;
class QHBoxLayout;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace brinemark
{

class ElidedLabel;
class EmptyState;
class GraphLegend;
class ScaleSlider;
class SpinningIndicator;
class TestDateCombo;
class TestDatesModel;
class TwoDGraphView;

/// The graph with its controls and legend. Object names: itself "graphContentView", "startDateComboSmall",
/// "endDateComboSmall", "swapButtonSmall", "drawButtonSmall", "spinningIndicator", "wholeGraphButton", "saveButton",
/// "printButton", "scaleSlider", "graphView", "graphLegend", "fitScaleBox", "closeButton".
class GraphContentView : public QWidget
{
    Q_OBJECT

public:
    explicit GraphContentView(TestDatesModel &dates);

    [[nodiscard]] TestDateCombo &startDateComboSmall() const { return *m_startDateComboSmall; }
    [[nodiscard]] TestDateCombo &endDateComboSmall() const { return *m_endDateComboSmall; }
    [[nodiscard]] SpinningIndicator &spinningIndicator() const { return *m_spinningIndicator; }
    [[nodiscard]] ScaleSlider &scaleSlider() const { return *m_scaleSlider; }
    [[nodiscard]] QCheckBox &fitScaleBox() const { return *m_fitScaleBox; }
    [[nodiscard]] TwoDGraphView &graphView() const { return *m_graphView; }
    [[nodiscard]] GraphLegend &legend() const { return *m_legend; }
    [[nodiscard]] QPushButton &drawButton() const { return *m_drawButton; }

    /// Shows the graph, with a hint below it.
    void showGraph(const QString &hint);

    /// Shows, instead of the graph, a sentence that says why there is no graph.
    void showSentence(const QString &whyEmpty);

Q_SIGNALS:
    void drawRequested();
    void scaleChanged();
    void fitScaleChanged();
    void saveRequested();
    void printRequested();
    void closeRequested();

private:
    [[nodiscard]] QHBoxLayout *makeTopRow();
    [[nodiscard]] QHBoxLayout *makeGraphRow();
    [[nodiscard]] QHBoxLayout *makeBottomRow();
    void showPart(QWidget *part);
    void enableButtons();

    TestDateCombo *m_startDateComboSmall;
    TestDateCombo *m_endDateComboSmall;
    QPushButton *m_drawButton;
    SpinningIndicator *m_spinningIndicator;
    QToolButton *m_wholeGraphButton;
    QToolButton *m_saveButton;
    QToolButton *m_printButton;
    ScaleSlider *m_scaleSlider;
    TwoDGraphView *m_graphView;
    EmptyState *m_emptyState;
    QStackedWidget *m_place; ///< contains the graph and the sentence, one of them visible
    GraphLegend *m_legend;
    QCheckBox *m_fitScaleBox;
    ElidedLabel *m_hint;
};

} // namespace brinemark
