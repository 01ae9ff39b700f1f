// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/HelpWindow.h"

#include "base/text/Texts.h"
#include "ui/Colours.h"
#include "ui/Desktop.h"
#include "ui/HelpBook.h"
#include "ui/IconButton.h"
#include "ui/Icons.h"
#include "ui/Spacing.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

namespace brinemark
{

namespace
{

/// Reads the pages through the book, which puts in the words of the user's language.
class HelpBrowser : public QTextBrowser
{
public:
    QVariant loadResource(int type, const QUrl &url) override
    {
        return type == QTextDocument::HtmlResource ? helpbook::page(url.fileName())
                                                   : QTextBrowser::loadResource(type, url);
    }
};

/// Takes the help key before the shortcuts do: those of a window also act in its panels.
class HelpKey : public QObject
{
public:
    HelpKey(QWidget *window, QString anchor)
        : QObject(window)
        , m_anchor(std::move(anchor))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        // Sent before the key press, which fields of file panels keep to themselves.
        if (event->type() != QEvent::ShortcutOverride ||
            !static_cast<QKeyEvent *>(event)->matches(QKeySequence::HelpContents))
            return false;
        event->accept();
        QMetaObject::invokeMethod(
            this, [this] { showHelp(m_anchor); }, Qt::QueuedConnection);
        return true;
    }

private:
    QString m_anchor;
};

} // namespace

void showHelp(const QString &anchor)
{
    HelpWindow::sharedInstance().showAnchor(anchor);
}

void showHelpOnKey(QWidget *window, const QString &anchor)
{
    new HelpKey(window, anchor);
}

HelpWindow::HelpWindow()
    : m_browser(new HelpBrowser)
    , m_findField(new QLineEdit)
    , m_findResult(new QLabel)
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(text("HelpTitle"));
    setWindowIcon(icon("Help"));
    resize(720, 560);

    m_browser->setObjectName(QStringLiteral("helpBrowser"));
    m_browser->setAccessibleName(text("HelpTitle"));
    m_browser->setOpenLinks(false); // web and mail addresses are opened through ui/Desktop.h
    m_browser->setFrameShape(QFrame::NoFrame);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
        setWindowTitle(fillPlaceholders(text("HelpPageTitle"), {m_browser->documentTitle()}));
        markMatches();
    });

    m_findField->setObjectName(QStringLiteral("helpFind"));
    m_findField->setAccessibleName(text("HelpFind"));
    m_findField->setPlaceholderText(text("HelpFind"));
    m_findField->setClearButtonEnabled(true);
    m_findField->setFixedWidth(220);
    connect(m_findField, &QLineEdit::textEdited, this, &HelpWindow::findFromStart);
    connect(m_findField, &QLineEdit::textChanged, this, &HelpWindow::markMatches);
    connect(m_findField, &QLineEdit::returnPressed, this, [this] { find(false); });
    m_findResult->setObjectName(QStringLiteral("helpFindResult"));

    buildButtons();
    applyStyle();
}

void HelpWindow::buildButtons()
{
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(spacing::aroundGroup);
    bar->setSpacing(spacing::tight);
    const auto add = [&](const char *name, const char *iconName, const QString &title, const QKeySequence &shortcut) {
        QToolButton *button = makeIconButton(iconName, title, QLatin1String(name));
        button->setIconSize(QSize(20, 20));
        button->setToolTip(QStringLiteral("%1 (%2)").arg(title, shortcut.toString(QKeySequence::NativeText)));
        button->setShortcut(shortcut);
        bar->addWidget(button);
        return button;
    };
    QToolButton *back = add("helpBack", "Back", text("HelpBack"), QKeySequence(Qt::ALT | Qt::Key_Left));
    QToolButton *forward = add("helpForward", "Forward", text("HelpForward"), QKeySequence(Qt::ALT | Qt::Key_Right));
    QToolButton *home = add("helpHome", "Home", text("HelpHome"), QKeySequence(Qt::ALT | Qt::Key_Home));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, m_browser, &QTextBrowser::forward);
    connect(home, &QToolButton::clicked, this, [this] { m_browser->setSource(helpbook::urlOfAnchor({})); });
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    bar->addStretch();
    bar->addWidget(m_findResult);
    bar->addSpacing(spacing::tight);
    bar->addWidget(m_findField);

    const auto onKeys = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    onKeys(QKeySequence::Find, [this] {
        m_findField->setFocus(Qt::ShortcutFocusReason);
        m_findField->selectAll();
    });
    onKeys(QKeySequence(Qt::Key_F3), [this] { find(false); });
    onKeys(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find(true); });
    onKeys(QKeySequence(Qt::Key_Escape), [this] { close(); });

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(bar);
    rows->addWidget(m_browser);
    m_browser->setFocus();
}

void HelpWindow::showAnchor(const QString &anchor)
{
    show(); // shown before it scrolls: the anchor's position depends on the window's real width
    m_browser->setSource(helpbook::urlOfAnchor(anchor));
    raise();
    activateWindow();
}

void HelpWindow::follow(const QUrl &url)
{
    if (url.isRelative() || url.scheme() == QLatin1String("qrc"))
        m_browser->setSource(m_browser->source().resolved(url));
    else
        desktop::openUrl(url);
}

void HelpWindow::findFromStart()
{
    // Search from the start of the present match, so that typing another letter extends it where possible.
    QTextCursor cursor = m_browser->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_browser->setTextCursor(cursor);
    if (!m_findField->text().isEmpty())
        find(false);
}

void HelpWindow::find(bool backward)
{
    const QString wanted = m_findField->text();
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (wanted.isEmpty() || m_browser->find(wanted, flags))
        return;
    const QTextCursor before = m_browser->textCursor();
    m_browser->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (!m_browser->find(wanted, flags))
        m_browser->setTextCursor(before);
}

void HelpWindow::markMatches()
{
    const QString wanted = m_findField->text();
    QList<QTextEdit::ExtraSelection> marks;
    QColor tint = palette().color(QPalette::Highlight);
    tint.setAlpha(70);
    QTextCursor cursor(m_browser->document());
    while (!wanted.isEmpty() && !(cursor = m_browser->document()->find(wanted, cursor)).isNull()) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = cursor;
        mark.format.setBackground(tint);
        marks.append(mark);
    }
    m_browser->setExtraSelections(marks);
    if (wanted.isEmpty())
        m_findResult->clear();
    else if (marks.isEmpty())
        m_findResult->setText(text("HelpFindNone"));
    else
        m_findResult->setText(fillPlaceholders(text("HelpFindCount"), {QString::number(marks.size())}));
}

void HelpWindow::applyStyle()
{
    // Show the match in the active highlight colour even while the search field has the focus.
    QPalette shown = palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        shown.setColor(QPalette::Inactive, role, shown.color(QPalette::Active, role));
    m_browser->setPalette(shown);
    m_findResult->setPalette(quietPalette(palette()));

    const QString link = colour(ColourRole::Accent, palette()).name();
    m_browser->document()->setDocumentMargin(24);
    m_browser->document()->setIndentWidth(28);
    m_browser->document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1; text-decoration: none; } p, ul, ol { margin-top: 0; margin-bottom: 8px; }"
                       "li { margin-bottom: 4px; } h1 { font-size: x-large; margin-top: 0; margin-bottom: 12px; }"
                       "h2 { font-size: large; margin-top: 16px; margin-bottom: 8px; }"
                       "table { margin-bottom: 8px; } td { padding: 3px 16px 3px 0; } th { padding: 10px 16px 3px 0; }")
            .arg(link));
}

void HelpWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    // A page takes its colours from the style sheet when it is loaded, so load it again and restore the scroll
    // position.
    applyStyle();
    if (m_browser->source().isEmpty())
        return;
    const int place = m_browser->verticalScrollBar()->value();
    m_browser->reload();
    m_browser->verticalScrollBar()->setValue(place);
}

} // namespace brinemark

#include "moc_HelpWindow.cpp"
