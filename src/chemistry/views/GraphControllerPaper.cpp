// SPDX-License-Identifier: GPL-3.0-or-later

// Saving and printing the graph of a GraphController.

#include "base/saving/SafeFile.h"
#include "base/text/DateText.h"
#include "base/text/Texts.h"
#include "chemistry/views/GraphController.h"
#include "chemistry/views/graph/GraphContentView.h"
#include "chemistry/views/graph/GraphWindow.h"
#include "model/Tank.h"
#include "ui/Alerts.h"
#include "ui/PrintSheet.h"
#include "ui/SavePanel.h"
#include "ui/graph/TwoDGraphView.h"

#include <QFileInfo>

namespace brinemark
{

void GraphController::saveGraph()
{
    const QString pdf = QStringLiteral("pdf");
    const SavePanelOptions options{
        .objectName = QStringLiteral("graphSavePanel"),
        .message = text("GraphSaveMessage"),
        .proposedName = formatText(text("GraphSaveName"), {m_graphTank ? m_graphTank->name : QString()}),
        .kinds = {{QStringLiteral("png"), text("GraphPngFilter")}, {pdf, text("GraphPdfFilter")}}};
    beginSavePanel(m_graphWindow, options, [this, pdf](const QString &path) {
        if (path.isEmpty() || !m_graphWindow)
            return;
        const TwoDGraphView &view = m_graphContentView->graphView();
        const bool isPdf = QFileInfo(path).suffix().compare(pdf, Qt::CaseInsensitive) == 0;
        const WriteResult saved = isPdf ? view.savePdf(path) : view.saveImage(path);
        if (!saved)
            beginAlertSheet(
                m_graphWindow,
                {.style = AlertStyle::Critical, .title = text("GraphSaveErrorTitle"), .message = saveErrorText(saved)});
    });
}

void GraphController::printGraph()
{
    TwoDGraphView &view = m_graphContentView->graphView();
    openPrintSheet(m_graphWindow, QPageLayout::Landscape, &view,
                   [&view](QPrinter &printer) { return view.print(printer); });
}

void GraphController::updatePaperHeading()
{
    if (graphArray().empty() || !m_graphTank)
        return;
    TwoDGraphView &view = m_graphContentView->graphView();
    const GraphRange visible = view.visibleRange(GraphAxis::X);
    view.setPaperHeading({formatText(text("GraphPaperTitle"), {m_graphTank->name}),
                          fillPlaceholders(text("GraphPaperDates"), {localeDateText(m_series.dateAt(visible.min)),
                                                                     localeDateText(m_series.dateAt(visible.max))})});
}

} // namespace brinemark
