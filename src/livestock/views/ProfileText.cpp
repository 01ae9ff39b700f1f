// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/views/ProfileText.h"

#include "base/TableChecks.h"
#include "ui/Colours.h"
#include "ui/TruncatingDelegate.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>

#include <array>

namespace brinemark
{

namespace
{

struct StyleRow {
    ProfileStyle style;
    int points;
    bool bold;
};
constexpr std::array styleRows{
    StyleRow{ProfileStyle::Header, 15, true},
    StyleRow{ProfileStyle::SubHeader, 11, false},
    StyleRow{ProfileStyle::Label, 11, true},
    StyleRow{ProfileStyle::Normal, 11, false},
};
static_assert(rowsFollow<ProfileStyle>(styleRows, &StyleRow::style), "styleRows needs one row for each ProfileStyle");

constexpr double paragraphSpacing = 2;     // points
constexpr qsizetype mostCharacters = 2000; // of a line: more than any screen shows, and quick to measure
constexpr int wholeValueProperty = QTextFormat::UserProperty;

/// Tabs would move the text to other stops.
QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (character.isSpace())
            character = u' ';
    }
    return text;
}

int widthOf(const QString &text, const QTextCharFormat &format)
{
    return QFontMetrics(format.font()).horizontalAdvance(onOneLine(text.left(mostCharacters)));
}

/// The part of a fragment between two positions of the document; the whole value of one that was cut off and lies
/// between them entirely.
QString selectedText(const QTextFragment &fragment, int start, int end)
{
    const int from = std::max(start, fragment.position());
    const int to = std::min(end, fragment.position() + fragment.length());
    const QVariant whole = fragment.charFormat().property(wholeValueProperty);
    if (whole.isValid() && to - from == fragment.length())
        return whole.toString();
    return from < to ? fragment.text().mid(from - fragment.position(), to - from) : QString();
}

} // namespace

ProfileText::ProfileText(QWidget *parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setFrameShape(NoFrame);
    viewport()->setAutoFillBackground(false);
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
}

void ProfileText::clearColumns()
{
    m_entries.clear();
}

void ProfileText::addFirstColumn(const QString &value, const QString &label, ProfileStyle style, bool newLine,
                                 bool toolTip)
{
    m_entries.push_back({label, value, style, false, newLine, toolTip});
}

void ProfileText::addSecondColumn(const QString &value, const QString &label, ProfileStyle style)
{
    m_entries.push_back({label, value, style, true, true, true});
}

QTextCharFormat ProfileText::attributes(ProfileStyle style) const
{
    const StyleRow &row = styleRows[std::size_t(style)];
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSize(row.points);
    font.setBold(row.bold);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(style == ProfileStyle::Label ? colour(ColourRole::SecondaryText, palette())
                                                      : palette().color(QPalette::Text));
    return format;
}

QTextBlockFormat ProfileText::tabStopAttributes() const
{
    QTextBlockFormat format;
    format.setTabPositions({{qreal(m_stops.firstCaption), QTextOption::RightTab},
                            {qreal(m_stops.firstValue), QTextOption::LeftTab},
                            {qreal(m_stops.secondCaption), QTextOption::RightTab},
                            {qreal(m_stops.secondValue), QTextOption::LeftTab}});
    format.setBottomMargin(paragraphSpacing * logicalDpiY() / 72);
    format.setNonBreakableLines(true);
    return format;
}

ProfileWidths ProfileText::widths() const
{
    const QTextCharFormat label = attributes(ProfileStyle::Label);
    ProfileWidths widest;
    for (const Entry &entry : m_entries) {
        if (entry.label.isEmpty())
            continue;
        int &caption = entry.second ? widest.secondCaption : widest.firstCaption;
        caption = std::max(caption, widthOf(entry.label, label));
        if (!entry.second && entry.newLine)
            continue;
        int &value = entry.second ? widest.secondValue : widest.firstValue;
        value = std::max(value, widthOf(entry.value, attributes(entry.style)) + 1);
    }
    return widest;
}

int ProfileText::roomFor(const Entry &entry) const
{
    const int line = viewport()->width();
    if (entry.label.isEmpty())
        return line;
    if (entry.second)
        return line - m_stops.secondValue;
    return entry.newLine ? line - m_stops.firstValue : m_stops.firstRoom;
}

void ProfileText::insert(QTextCursor &cursor, const Entry &entry) const
{
    const QTextCharFormat label = attributes(ProfileStyle::Label);
    QTextCharFormat format = attributes(entry.style);
    if (!entry.label.isEmpty())
        cursor.insertText(u'\t' + entry.label + u'\t', label);
    if (entry.toolTip && !entry.value.isEmpty())
        format.setToolTip(entry.value);
    const QStringList lines = entry.label.isEmpty() ? entry.value.split(u'\n') : QStringList(entry.value);
    for (const QString &line : lines) {
        if (&line != &lines.front())
            cursor.insertBlock();
        const QFontMetrics metrics(format.font());
        const QString shown =
            metrics.elidedText(onOneLine(line.left(mostCharacters)), Qt::ElideRight, std::max(0, roomFor(entry)));
        QTextCharFormat lineFormat = format;
        if (shown != line) {
            lineFormat.setProperty(wholeValueProperty, line);
            if (!entry.toolTip)
                lineFormat.setToolTip(line);
        }
        cursor.insertText(shown, lineFormat);
    }
    if (entry.newLine)
        cursor.insertBlock();
}

void ProfileText::showColumns()
{
    m_laidOutWidth = viewport()->width();
    m_stops = profileTabStops(widths(), m_laidOutWidth, logicalDpiX() / 72.0);
    const int scrolled = verticalScrollBar()->value();
    const QTextCursor selection = textCursor();
    const int anchor = selection.anchor();
    const int position = selection.position();

    document()->clear();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.setBlockFormat(tabStopAttributes());
    for (const Entry &entry : m_entries)
        insert(cursor, entry);
    cursor.endEditBlock();

    const int last = document()->characterCount() - 1;
    cursor.setPosition(std::min(anchor, last));
    cursor.setPosition(std::min(position, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(scrolled);
}

void ProfileText::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    if (viewport()->width() != m_laidOutWidth)
        showColumns();
}

void ProfileText::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationFontChange)
        showColumns();
}

bool ProfileText::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTextEdit::viewportEvent(event);
    // The toolkit would read the value as markup.
    const auto *help = static_cast<QHelpEvent *>(event);
    const QPointF position = help->pos() + QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QString whole = document()->documentLayout()->formatAt(position).toCharFormat().toolTip();
    if (whole.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), wholeTextToolTip(whole), viewport());
    return true;
}

QMimeData *ProfileText::createMimeDataFromSelection() const
{
    const QTextCursor selection = textCursor();
    const int end = selection.selectionEnd();
    QStringList lines;
    QTextBlock block = document()->findBlock(selection.selectionStart());
    for (; block.isValid() && block.position() < end; block = block.next()) {
        QString line;
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            line += selectedText(fragment.fragment(), selection.selectionStart(), end);
        // The tab before the first caption is there for its alignment only.
        lines += line.startsWith(u'\t') ? line.mid(1) : line;
    }
    auto *data = new QMimeData;
    data->setText(lines.join(u'\n'));
    return data;
}

} // namespace brinemark

#include "moc_ProfileText.cpp"
