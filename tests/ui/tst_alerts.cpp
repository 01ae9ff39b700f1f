// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/AlertDriver.h"
#include "support/TestProgram.h"
#include "ui/Alerts.h"
#include "ui/Sheets.h"

#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>

#include <memory>
#include <optional>
#include <vector>

using namespace brinemark;
using namespace brinemark::test;

static void press(const QString &what)
{
    AlertDialog *alert = shownAlert();
    QVERIFY(alert);
    if (what == QLatin1String("Return"))
        QTest::keyClick(alert, Qt::Key_Return);
    else if (what == QLatin1String("Escape"))
        QTest::keyClick(alert, Qt::Key_Escape);
    else if (what == QLatin1String("close"))
        alert->close();
    else
        QVERIFY(pressAlertButton(what.toLatin1()));
}

class AlertsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(100, 100, 600, 400);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(!shownAlert());
    }

    void nobodyIsThereToAnswer()
    {
        setUnattended(true);
        const auto attendedAgain = qScopeGuard([] { setUnattended(false); });
        QCOMPARE(runAlertPanel(m_window.get(), {.title = "Lose it?", .alternateButton = "Keep"}), AlertAlternate);
        std::optional<int> answer;
        beginAlertSheet(m_window.get(), {.title = "Save?", .alternateButton = "No", .otherButton = "Cancel"},
                        [&](int code) { answer = code; });
        QVERIFY(!shownAlert() && !answer); // answered later, as a person would
        QCoreApplication::processEvents();
        QCOMPARE(answer, std::optional<int>(AlertOther));
    }

    void answers_data()
    {
        // press: a button's name, or a key
        test::columns<QString, QString, QString, int>("alternate", "other", "press", "answer");
        const QString none;
        row("one: button", none, none, "defaultButton", 1);
        row("one: Escape", none, none, "Escape", 1);
        row("two: default", "Cancel", none, "defaultButton", 1);
        row("two: Escape", "Cancel", none, "Escape", 0);
        row("three: alternate", "Don't Save", "Cancel", "alternateButton", 0);
        row("three: other", "Don't Save", "Cancel", "otherButton", -1);
        row("three: close", "Don't Save", "Cancel", "close", -1);
    }

    void answers()
    {
        QFETCH(QString, press);
        const auto [alternate, other, answer] = fetch<QString, QString, int>("alternate", "other", "answer");
        const Alert alert{AlertStyle::Critical, "Save?", "It was changed.", "Save", alternate, other};

        std::vector<int> sheetAnswers;
        beginAlertSheet(m_window.get(), alert, [&](int code) { sheetAnswers.push_back(code); });
        QVERIFY(sheetAnswers.empty());
        QVERIFY(shownAlert()->button(AlertDefault)->width() >= 82);
        QCOMPARE(shownAlert()->windowModality(), Qt::WindowModal);
        ::press(press);
        QCOMPARE(sheetAnswers, std::vector<int>{answer});

        onNextAlert([&](AlertDialog &) { ::press(press); });
        QCOMPARE(runAlertPanel(m_window.get(), alert), answer);
    }

    void panelWhoseParentGoesIsCancelled()
    {
        onNextAlert([&](AlertDialog &) { m_window.reset(); });
        QCOMPARE(runAlertPanel(m_window.get(), {AlertStyle::Critical, "t", "m", "Yes", "No", "Cancel"}), -1);
    }

    void aQuestionBringsItsWindowBack()
    {
        m_window->showMinimized();
        beginAlertSheet(m_window.get(), {.title = "title"}, [](int) {});
        QTRY_VERIFY(!m_window->isMinimized());
        shownAlert()->accept();
        m_window->showMinimized();
        QTimer::singleShot(0, m_window.get(), [] { press("Return"); });
        runAlertPanel(m_window.get(), {.title = "title"});
        QVERIFY(!m_window->isMinimized());
    }

    void sheetsOfAWindowWaitTheirTurn()
    {
        QWidget elsewhere;
        elsewhere.show();
        QWidget part(m_window.get());
        QStringList log;
        const auto ask = [&](QWidget *window, const QString &title) {
            beginAlertSheet(window, {.title = title}, [&log, title](int) { log << title; });
        };
        ask(m_window.get(), "first");
        ask(&part, "second"); // the sheet belongs to the window around the part
        ask(m_window.get(), "third");
        ask(&elsewhere, "elsewhere");

        const auto shown = [](QWidget &window) {
            AlertDialog *shownThere = nullptr;
            for (AlertDialog *alert : window.findChildren<AlertDialog *>(Qt::FindDirectChildrenOnly)) {
                if (alert->isVisible())
                    shownThere = shownThere ? nullptr : alert; // one at a time
            }
            return shownThere;
        };
        QVERIFY(shown(elsewhere));
        for (const QString title : {"first", "second", "third"}) {
            QVERIFY(shown(*m_window));
            QCOMPARE(shown(*m_window)->title(), title);
            shown(*m_window)->accept();
        }
        QVERIFY(!shown(*m_window));
        QCOMPARE(log, QStringList({"first", "second", "third"}));
    }

    /// The window system may place a window after its sheet has opened.
    void sheetGoesWithItsWindow()
    {
        m_window->setGeometry(100, 50, 600, 300);
        beginAlertSheet(m_window.get(), {.title = QStringLiteral("?")});
        AlertDialog *sheet = shownAlert();
        QVERIFY(sheet);
        const auto offset = [&] { return sheet->frameGeometry().center() - m_window->frameGeometry().center(); };
        QVERIFY(offset().manhattanLength() <= 2);
        m_window->move(150, 250);
        m_window->resize(400, 500);
        QTRY_VERIFY(offset().manhattanLength() <= 2);
        sheet->move(0, 0); // by the user
        m_window->move(200, 250);
        QCoreApplication::processEvents();
        QCOMPARE(sheet->pos(), QPoint(0, 0));
    }

    void sheetAskedForByAnAnswerComesLast()
    {
        beginAlertSheet(m_window.get(), {.title = "first"},
                        [&](int) { beginAlertSheet(m_window.get(), {.title = "asked by the answer"}); });
        beginAlertSheet(m_window.get(), {.title = "second"});
        for (const QString title : {"first", "second", "asked by the answer"}) {
            QVERIFY(shownAlert());
            QCOMPARE(shownAlert()->title(), title);
            QVERIFY(pressAlertButton("defaultButton"));
        }
    }

    void deletedSheetGivesUpItsTurn()
    {
        auto first = std::make_unique<QDialog>();
        auto waiting = std::make_unique<QDialog>();
        QDialog last;
        openSheet(m_window.get(), first.get());
        openSheet(m_window.get(), waiting.get());
        openSheet(m_window.get(), &last);
        waiting.reset();
        QVERIFY(first->isVisible() && !last.isVisible());
        first.reset();
        QVERIFY(last.isVisible());
        last.reject();

        // A sheet can be used again.
        openSheet(m_window.get(), &last);
        QVERIFY(last.isVisible());
        last.reject();
    }

    void textsStandAsTheyAre()
    {
        const QString text = "<b>pH</b> & \"7,2\"\nnext line";
        beginAlertSheet(m_window.get(), {.title = text, .message = text});
        QCOMPARE(shownAlert()->title(), text);
        QCOMPARE(shownAlert()->message(), text);
        QCOMPARE(shownAlert()->accessibleName(), text);
    }

    void fitsTheScreen_data()
    {
        test::columns<QString, QString, bool>("title", "message", "scrolls");
        row("short", "Saved", "All is well.", false);
        row("path", "Not written", "/home/" + QString("averylongfoldername").repeated(20), false);
        row("50,000 characters", "Treatments", QString("words ").repeated(8334), true);
        row("50,000 without a space", "Treatments", QString(50000, 'x'), true);
        row("title without a space", QString(2000, 'x'), "m", false);
    }

    void fitsTheScreen()
    {
        const auto [title, message, scrolls] = fetch<QString, QString, bool>("title", "message", "scrolls");
        beginAlertSheet(m_window.get(), {.title = title, .message = message, .alternateButton = "Cancel"});
        AlertDialog *alert = shownAlert();
        QVERIFY(QTest::qWaitForWindowExposed(alert));
        const QRect screen = alert->screen()->availableGeometry();
        QVERIFY(screen.contains(alert->geometry()));
        QVERIFY(alert->width() <= 620);
        const auto *text = alert->findChild<QTextEdit *>("alertMessage");
        QCOMPARE(text->verticalScrollBar()->maximum() > 0, scrolls);
        QVERIFY(alert->rect().contains(
            QRect(alert->button(AlertDefault)->mapTo(alert, QPoint()), alert->button(AlertDefault)->size())));
        QVERIFY((alert->geometry().center() - m_window->geometry().center()).manhattanLength() <= 4 ||
                alert->height() > m_window->height());
    }

private:
    std::unique_ptr<QWidget> m_window;
};

BRINEMARK_TEST(QApplication, AlertsTest)
#include "tst_alerts.moc"
