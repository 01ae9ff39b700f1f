// SPDX-License-Identifier: GPL-3.0-or-later

// Drawing a graph of 16 lines x 10,000 points at 1000 x 600 pixels. Run it with QT_QPA_PLATFORM=offscreen.
//
// The target is 50 ms for a change of the view at a device pixel ratio of 1, including decimation, labels, axes and
// lines. "noise" is the worst case, with points far apart in every pixel column; "waves" resembles real measurements.
// Both are drawn on a white and on a dark background, because the outlines of the lines depend on it.

#include "ui/graph/Decimate.h"
#include "ui/graph/TwoDGraphView.h"

#include <QApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <string>

using namespace brinemark;

namespace
{

constexpr int lineCount = 16;
constexpr int pointCount = 10000;

enum class Shape { Waves, Noise };

QList<QPointF> pointsOf(Shape shape, int line)
{
    std::mt19937 random(unsigned(line) + 1);
    std::uniform_real_distribution<double> spread(0, 1);
    QList<QPointF> points;
    for (int i = 0; i < pointCount; ++i) {
        const double x = 100.0 * i / (pointCount - 1);
        const double wave = line + 2 * std::sin(x / 5 + line) + spread(random);
        points.append(QPointF(x, shape == Shape::Waves ? wave : 20 * spread(random)));
    }
    return points;
}

class ManyPoints : public TwoDGraphDataSource, public TwoDGraphDelegate
{
public:
    explicit ManyPoints(Shape shape)
    {
        for (int i = 0; i < lineCount; ++i)
            m_lines.append(pointsOf(shape, i));
    }
    int numberOfLinesInTwoDGraphView(const TwoDGraphView &) const override { return lineCount; }
    QList<QPointF> dataForLineIndex(const TwoDGraphView &, int line) const override { return m_lines[line]; }
    double minimumValueForLineIndex(const TwoDGraphView &, int, GraphAxis) const override { return 0; }
    double maximumValueForLineIndex(const TwoDGraphView &, int, GraphAxis axis) const override
    {
        return axis == GraphAxis::X ? 100 : 20;
    }
    GraphLineAttributes attributesForLineIndex(const TwoDGraphView &, int line) const override
    {
        return {QColor::fromHsv(line * 360 / lineCount, 200, 220), 2, GraphSymbol::Circle};
    }
    QString labelForTickMarkIndex(const TwoDGraphView &, int, GraphAxis, const QString &label) const override
    {
        return label;
    }
    QString stringForToolTip(const TwoDGraphView &, QPointF, int) const override { return {}; }

private:
    QList<QList<QPointF>> m_lines;
};

/// Measures one change of the visible range and the painting that follows.
void draw(benchmark::State &state, Shape shape, bool dark, double devicePixelRatio)
{
    const ManyPoints points(shape);
    TwoDGraphView view;
    view.setPalette(QPalette(dark ? QColor(0x2a, 0x2a, 0x2a) : QColor(Qt::white)));
    view.resize(1000, 600);
    view.setDataSource(&points);
    view.setDelegate(&points);
    view.setNumberOfTickMarks(20, GraphAxis::Y);
    view.setNumberOfTickMarks(12, GraphAxis::X);
    view.reloadData();
    QImage image(view.size() * devicePixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    bool visible = false;
    for (auto iteration : state) {
        view.setHighlightedBand(visible ? std::optional(GraphBand{2, 4, Qt::darkGreen}) : std::nullopt);
        visible = !visible;
        view.QWidget::render(&image);
    }
}

void decimate(benchmark::State &state)
{
    const QList<QPointF> points = pointsOf(Shape::Noise, 1);
    for (auto iteration : state)
        benchmark::DoNotOptimize(decimated(points, 0, 100, 950));
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const double ratio = application.devicePixelRatio();
    const auto add = [ratio](const char *name, Shape shape, bool dark) {
        benchmark::RegisterBenchmark((name + QString::asprintf("/ratio:%g", ratio).toStdString()).c_str(), draw, shape,
                                     dark, ratio)
            ->Unit(benchmark::kMillisecond);
    };
    add("waves/light", Shape::Waves, false);
    add("waves/dark", Shape::Waves, true);
    add("noise/light", Shape::Noise, false);
    add("noise/dark", Shape::Noise, true);
    benchmark::RegisterBenchmark("decimate/10000", decimate)->Unit(benchmark::kMicrosecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
