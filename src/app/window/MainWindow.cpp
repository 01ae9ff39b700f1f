// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/MainWindow.h"

#include "app/menus/MainMenuBar.h"
#include "app/toolbar/MainToolBar.h"
#include "app/tree/TankOutlineView.h"
#include "base/Log.h"
#include "base/PreferenceKeys.h"
#include "base/Preferences.h"
#include "base/text/Texts.h"
#include "ui/IconButton.h"
#include "ui/Spacing.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

namespace brinemark
{

namespace
{

constexpr QSize openingSize(1080, 720);
constexpr QSize roomForFrame(16, 48); ///< borders and title bar of the window system
constexpr int openingTreeWidth = 220;
constexpr int smallestTreeWidth = 142;
constexpr int smallestMainViewWidth = 320;

QString droppedFile(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 && urls.first().isLocalFile() ? urls.first().toLocalFile() : QString();
}

/// After a move the source may delete its file, which is the one that the program has opened.
void acceptAsCopy(QDropEvent &event)
{
    if (!event.possibleActions().testFlag(Qt::CopyAction))
        return;
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

MainWindow::MainWindow(TankOutlineView *tankList)
    : m_menus(new MainMenuBar(this))
    , m_toolbar(new MainToolBar(
          [this](const QString &identifier) {
              if (toolbarItemChosen)
                  toolbarItemChosen(identifier);
          },
          this))
    , m_splitView(new QSplitter(Qt::Horizontal))
    , m_tankListView(new QWidget)
    , m_mainView(new QStackedWidget)
{
    setObjectName(QStringLiteral("mainWindow"));
    setMenuBar(m_menus);
    addToolBar(m_toolbar);
    // No context menu, so that the toolbar can be hidden only by its own command.
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(true);

    m_newButton = makeIconButton("New", text("TreeNewToolTip"), QStringLiteral("newButton"));
    m_newButton->setPopupMode(QToolButton::InstantPopup);
    m_deleteButton = makeIconButton("Remove", text("ToolbarDeleteToolTip"), QStringLiteral("deleteButton"));
    m_helpButton = makeIconButton("Help", text("HelpButtonToolTip"), QStringLiteral("helpButton"));
    auto *foot = new QHBoxLayout;
    foot->setContentsMargins(spacing::tight, spacing::tight, spacing::tight, spacing::tight);
    foot->setSpacing(spacing::tight);
    foot->addWidget(m_newButton);
    foot->addWidget(m_deleteButton);
    foot->addStretch();
    foot->addWidget(m_helpButton);

    auto *left = new QVBoxLayout(m_tankListView);
    left->setContentsMargins(0, 0, 0, 0);
    left->setSpacing(0);
    left->addWidget(tankList, 1);
    left->addLayout(foot);

    m_tankListView->setMinimumWidth(smallestTreeWidth);
    m_mainView->setMinimumWidth(smallestMainViewWidth);
    m_mainView->setObjectName(QStringLiteral("mainView"));
    m_splitView->setObjectName(QStringLiteral("splitView"));
    m_splitView->setChildrenCollapsible(false);
    m_splitView->setHandleWidth(1);
    m_splitView->addWidget(m_tankListView);
    m_splitView->addWidget(m_mainView);
    m_splitView->setStretchFactor(0, 0);
    m_splitView->setStretchFactor(1, 1);
    setCentralWidget(m_splitView);

    resize(openingSize);
    m_splitView->setSizes({openingTreeWidth, openingSize.width() - openingTreeWidth});
}

void MainWindow::storeWidths() const
{
    Preferences &preferences = Preferences::shared();
    preferences.set(preference::mainViewWidth, QString::number(m_mainView->width()));
    preferences.set(preference::tankListViewWidth, QString::number(m_tankListView->width()));
    preferences.set(preference::mainWindowGeometry, QString::fromLatin1(saveGeometry().toBase64()));
}

void MainWindow::restoreWidths()
{
    const Preferences &preferences = Preferences::shared();
    const QRect room = screen()->availableGeometry();
    resize(openingSize.boundedTo(room.size() - roomForFrame));
    const bool restored = restoreGeometry(
        QByteArray::fromBase64(preferences.value(preference::mainWindowGeometry, QString()).toLatin1()));
    const std::optional<QString> mainWidth = preferences.value(preference::mainViewWidth);
    if (!mainWidth)
        return;
    const int treeWidth = preferences.value(preference::tankListViewWidth, QString()).toInt();
    // Size the window for both stored pane widths, as far as the current screen allows.
    const int together = qBound(0, treeWidth, maximumWidth()) + qBound(0, mainWidth->toInt(), maximumWidth());
    if (!restored)
        resize(qMin(together + m_splitView->handleWidth(), room.width()), height());
    m_splitView->setSizes({treeWidth, mainWidth->toInt()});
}

bool MainWindow::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::Paint && !m_painted) {
        m_painted = true;
        qCDebug(logApp) << "the main window is on screen"; // the start-up benchmark waits for this line
    }
    return handled;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    if (closeRequested)
        closeRequested();
}

/// Modal windows keep clicks and keys from this window, but not drops: one would close the file under an open editor.
static bool isBehindSheet()
{
    return QApplication::activeModalWidget() != nullptr;
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QString path = isBehindSheet() ? QString() : droppedFile(*event);
    if (!path.isEmpty() && takesDroppedFile && takesDroppedFile(path))
        acceptAsCopy(*event);
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QString path = isBehindSheet() ? QString() : droppedFile(*event);
    if (path.isEmpty() || !takesDroppedFile || !takesDroppedFile(path))
        return;
    acceptAsCopy(*event);
    // The source of the drag waits for the end of the drop, but opening the file may ask a question.
    QMetaObject::invokeMethod(
        this, [this, path] { openDroppedFile(path); }, Qt::QueuedConnection);
}

} // namespace brinemark

#include "moc_MainWindow.cpp"
