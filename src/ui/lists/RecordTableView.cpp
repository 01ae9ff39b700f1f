// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/lists/RecordTableView.h"

#include "ui/Alerts.h"
#include "ui/OutlineStyle.h"
#include "ui/ReturnKey.h"
#include "ui/lists/RecordSelectionModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionHeader>

#include <algorithm>

namespace brinemark
{

namespace
{

constexpr int largestColumnWidth = 1000; ///< pixels

/// Adds margins at the sides of the texts of cells and headers, and reserves a place for the sort mark at the end of a
/// header, so that a column 17 pixels wider than its header's text shows text and mark.
class AirySides : public OutlineStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *header = qstyleoption_cast<const QStyleOptionHeaderV2 *>(option);
        if (element != CE_Header || !header || header->orientation != Qt::Horizontal) {
            OutlineStyle::drawControl(element, option, painter, widget);
            return;
        }
        constexpr int markWidth = 9;
        constexpr int markMargin = 2;
        painter->save();
        painter->setClipRect(header->rect, Qt::IntersectClip);
        drawControl(CE_HeaderSection, header, painter, widget);
        QStyleOptionHeaderV2 part = *header;
        const bool marked = header->sortIndicator != QStyleOptionHeader::None;
        const auto place = [&](const QRect &rect) { return visualRect(header->direction, header->rect, rect); };
        const QRect whole = header->rect;
        const int margin = pixelMetric(PM_HeaderMargin, option, widget);
        int atEnd = header->textAlignment & Qt::AlignRight ? margin : markMargin; // above right-aligned cells
        if (marked)
            atEnd = markWidth + markMargin;
        part.rect = place(whole.adjusted(margin, 0, -atEnd, 0));
        drawControl(CE_HeaderLabel, &part, painter, widget);
        if (marked) {
            constexpr int gap = 2; // between text and mark
            part.rect = place(
                {whole.right() + 1 - markMargin - markWidth + gap, whole.top() + 1, markWidth - gap, whole.height()});
            drawPrimitive(PE_IndicatorHeaderArrow, &part, painter, widget);
        }
        painter->restore();
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        constexpr int air = 6;
        const int own = OutlineStyle::pixelMetric(metric, option, widget);
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
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    viewport()->setAttribute(Qt::WA_Hover);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    // All rows have the same height, so that the view need not measure each of a hundred thousand rows.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMaximumSectionSize(largestColumnWidth);
    fitRowHeight();
}

RecordSelectionModel *RecordTableView::recordSelection() const
{
    return qobject_cast<RecordSelectionModel *>(selectionModel());
}

// ---- keys and the mouse

void RecordTableView::keyPressEvent(QKeyEvent *event)
{
    if (state() == EditingState) { // a key that the editor did not use; Return finishes the editing and nothing else
        event->setAccepted(isPlainReturn(*event));
        return;
    }
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const int key = event->key();
    event->accept();
    if (dropsKey(*event))
        return;
    if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && m_deletePressed) {
        m_deletePressed();
        return;
    }
    if (isPlainReturn(*event) && returnPressed) {
        if (!event->isAutoRepeat())
            returnPressed();
        return;
    }
    if (plain && (key == Qt::Key_F2 || key == Qt::Key_Space) && openCell && openCell(currentIndex()))
        return;
    if (plain && key == Qt::Key_Space && currentIndex().flags().testFlag(Qt::ItemIsEditable)) {
        edit(currentIndex()); // the base class would replace the text by a blank
        return;
    }
    RecordSelectionModel *selection = recordSelection();
    if (selection)
        selection->beginGesture();
    QTableView::keyPressEvent(event);
    if (selection)
        selection->endGesture();
}

/// Whether the key would type into, or delete, another record than the one that a dropped press was aimed at.
bool RecordTableView::dropsKey(const QKeyEvent &event)
{
    const int key = event.key();
    const bool isModifier = (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
    if (!m_pressDropped || isModifier)
        return false;
    const bool types = !event.text().isEmpty() && event.text().front().isPrint();
    if (types || key == Qt::Key_Delete || key == Qt::Key_Backspace) {
        beep();
        return true;
    }
    m_pressDropped = false;
    return false;
}

void RecordTableView::mousePressEvent(QMouseEvent *event)
{
    RecordSelectionModel *selection = recordSelection();
    if (selection)
        selection->beginGesture();
    QTableView::mousePressEvent(event);
    m_pressDropped = selection && selection->dropsGesture();
    if (selection && isEditingHeld()) // a sheet has opened and receives the release of the button
        selection->endGesture();
}

void RecordTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // After a dropped press another record is under the pointer: its editor or calendar must not open.
    if (m_pressDropped)
        event->accept();
    else
        QTableView::mouseDoubleClickEvent(event);
}

void RecordTableView::mouseReleaseEvent(QMouseEvent *event)
{
    RecordSelectionModel *selection = recordSelection();
    const QPersistentModelIndex cell = indexAt(event->position().toPoint());
    bool isClick = false;
    const auto watch =
        connect(this, &QTableView::clicked, this, [&](const QModelIndex &clicked) { isClick = clicked == cell; });
    QTableView::mouseReleaseEvent(event);
    disconnect(watch);
    if (selection)
        selection->endGesture();
    const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    if (isClick && plain && !m_pressDropped && cell.isValid() && openCell)
        openCell(cell);
}

void RecordTableView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!menuAsked) {
        QTableView::contextMenuEvent(event);
        return;
    }
    if (event->reason() == QContextMenuEvent::Mouse && m_pressDropped) {
        event->accept();
        return;
    }
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const QRect cell = visualRect(currentIndex()).intersected(viewport()->rect());
        place = viewport()->mapToGlobal(cell.isValid() ? cell.center() : viewport()->rect().center());
    }
    menuAsked(place);
    event->accept();
}

// ---- editing

QModelIndex RecordTableView::typableCellBeside(const QModelIndex &row, int visualColumn, int step) const
{
    const QHeaderView &header = *horizontalHeader();
    for (int visual = visualColumn + step; visual >= 0 && visual < header.count(); visual += step) {
        const QModelIndex cell = row.siblingAtColumn(header.logicalIndex(visual));
        if (!header.isSectionHidden(cell.column()) && cell.flags().testFlag(Qt::ItemIsEditable))
            return cell;
    }
    return {};
}

QModelIndex RecordTableView::firstTypableCell(int row) const
{
    return typableCellBeside(model()->index(row, 0), -1, 1);
}

void RecordTableView::editCell(const QModelIndex &cell)
{
    if (!cell.isValid())
        return;
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    scrollTo(cell);
    if (isEditingHeld())
        m_toEdit = cell;
    else
        edit(cell);
}

void RecordTableView::finishEditing()
{
    if (state() != EditingState)
        return;
    if (QWidget *editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void RecordTableView::holdEditing()
{
    ++m_holds;
    m_toEdit = QModelIndex();
    if (RecordSelectionModel *selection = recordSelection())
        selection->endGesture();
}

void RecordTableView::releaseEditing()
{
    if (m_holds == 0 || --m_holds > 0)
        return;
    window()->activateWindow();
    const QModelIndex cell = std::exchange(m_toEdit, QPersistentModelIndex());
    if (cell.isValid())
        editCell(cell);
}

void RecordTableView::commitData(QWidget *editor)
{
    // Storing the value can open a sheet, which takes the focus; losing the focus commits the editor a second time.
    if (m_committing)
        return;
    const QScopedValueRollback committing(m_committing, true);
    QTableView::commitData(editor);
}

void RecordTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (m_committing) // the caller of commitData() closes the editor afterwards
        return;
    int step = 0;
    if (hint == QAbstractItemDelegate::EditNextItem)
        step = 1;
    else if (hint == QAbstractItemDelegate::EditPreviousItem)
        step = -1;
    if (step == 0) {
        QTableView::closeEditor(editor, hint);
        return;
    }
    const QModelIndex from = currentIndex();
    const QPersistentModelIndex next = typableCellBeside(from, horizontalHeader()->visualIndex(from.column()), step);
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (next.isValid())
        editCell(next);
    else
        setFocus();
}

// ---- the look

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

#include "moc_RecordTableView.cpp"
