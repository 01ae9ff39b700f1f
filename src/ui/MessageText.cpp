// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/MessageText.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace brinemark
{

namespace
{

/// Joins number and unit by a blank and a mark at which no line breaks.
QString withUnbrokenUnits(QString text)
{
    static const QRegularExpression concentration(QStringLiteral("(\\d) mg/l"));
    return text.replace(concentration, QStringLiteral("\\1\u00A0mg/\u2060l"));
}

} // namespace

MessageText::MessageText(const QString &text, double shareOfScreen, QWidget *parent)
    : QTextEdit(parent)
    , m_text(text)
    , m_shareOfScreen(shareOfScreen)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setPlainText(withUnbrokenUnits(text));
}

QSize MessageText::sizeHint() const
{
    // Measured on a copy, because the document itself is laid out to the widget's current width.
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setDefaultFont(font());
    measured->setTextWidth(readableWidth);
    const int height = int(std::ceil(measured->size().height()));
    return {readableWidth, std::min(height, int(screen()->availableGeometry().height() * m_shareOfScreen))};
}

QSize MessageText::minimumSizeHint() const
{
    return sizeHint();
}

void MessageText::keyPressEvent(QKeyEvent *event)
{
    // Leave Return and Escape to the dialog.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

} // namespace brinemark

#include "moc_MessageText.cpp"
