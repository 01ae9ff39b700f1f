#include "ui/MessageText.h"

#include <QKeyEvent>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace brinemark
{

MessageText::MessageText(const QString &text, QWidget *parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setPlainText(text);
}

QSize MessageText::sizeHint() const
{
    // Measured on a copy: the document itself follows the widget's present width.
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setDefaultFont(font());
    measured->setTextWidth(readableWidth);
    const int height = int(std::ceil(measured->size().height()));
    return {readableWidth, std::min(height, maximumTextHeight())};
}

QSize MessageText::minimumSizeHint() const
{
    return sizeHint();
}

int MessageText::maximumTextHeight() const
{
    // What stands around the text, window frame included, fits into the rest of the screen.
    return screen()->availableGeometry().height() / 2;
}

void MessageText::keyPressEvent(QKeyEvent *event)
{
    // Return and Escape are the dialog's.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

} // namespace brinemark
