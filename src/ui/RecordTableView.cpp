#include "ui/RecordTableView.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProxyStyle>

#include <algorithm>

namespace brinemark
{

namespace
{

/// Gives the texts of cells and headers some air at their sides.
class AirySides : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        constexpr int air = 6;
        const int own = QProxyStyle::pixelMetric(metric, option, widget);
        return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? std::max(own, air) : own;
    }
};

} // namespace

RecordTableView::RecordTableView(std::function<void()> deletePressed, QWidget *parent)
    : QTableView(parent)
    , m_deletePressed(std::move(deletePressed))
{
    auto *airy = new AirySides;
    airy->setParent(this);
    setStyle(airy);
    horizontalHeader()->setStyle(airy);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setFrameShape(QFrame::NoFrame);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    // All rows are alike, so that a hundred thousand of them need no measuring.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMaximumSectionSize(1000);
    fitRowHeight();
}

void RecordTableView::keyPressEvent(QKeyEvent *event)
{
    if ((event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) && m_deletePressed) {
        m_deletePressed();
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void RecordTableView::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitRowHeight();
}

void RecordTableView::fitRowHeight()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

} // namespace brinemark
