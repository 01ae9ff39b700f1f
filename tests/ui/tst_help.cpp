// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/PanelDriver.h"
#include "support/TestProgram.h"
#include "ui/Desktop.h"
#include "ui/HelpBook.h"
#include "ui/HelpWindow.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTextBrowser>
#include <QToolButton>

using namespace brinemark;
using brinemark::test::row;

namespace
{

const QStringList languages{QStringLiteral("en"), QStringLiteral("de")};

QStringList pagesOf(const QString &language)
{
    return QDir(QStringLiteral(":/help/") + language).entryList({QStringLiteral("*.html")}, QDir::Files);
}

QString contentOf(const QString &language, const QString &page)
{
    QFile file(QStringLiteral(":/help/%1/%2").arg(language, page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList captured(const QString &content, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(content);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QStringList anchorsOf(const QString &content)
{
    return captured(content, "(?:id|name)=\"([^\"]*)\"");
}
QStringList linksOf(const QString &content)
{
    return captured(content, "href=\"([^\"]*)\"");
}

QWidget *window()
{
    return brinemark::test::shownWindow<QWidget>("helpWindow");
}

template <class T>
T *part(const char *name)
{
    return window()->findChild<T *>(QLatin1String(name));
}

QString shownPage()
{
    return part<QTextBrowser>("helpBrowser")->source().fileName();
}

} // namespace

class TestHelp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setTextLanguages({QStringLiteral("en")}); }

    void cleanup()
    {
        HelpWindow::destroyShared();
        QVERIFY(!window());
        desktop::setUrlHandler({});
    }

    void everyPageIsWholeAndEveryLinkResolves()
    {
        for (const QString &language : languages) {
            for (const QString &page : pagesOf(language)) {
                const QString content = contentOf(language, page);
                QVERIFY(content.contains(QLatin1String("<html lang=\"%1\">").arg(language)));
                QVERIFY(!captured(content, "<title>([^<]+)</title>").isEmpty());
                QVERIFY(!content.contains(QRegularExpression(QStringLiteral("style=|color|<font"))));
                for (const QString &text : linksOf(content)) {
                    const QUrl link(text);
                    const QString target = link.path().isEmpty() ? page : link.path();
                    const bool found =
                        !link.isRelative() ||
                        (pagesOf(language).contains(target) &&
                         (!link.hasFragment() || anchorsOf(contentOf(language, target)).contains(link.fragment())));
                    QVERIFY2(found, qPrintable(page + QStringLiteral(": ") + link.toString()));
                }
            }
        }
    }

    void bothLanguagesHaveTheSamePagesAnchorsAndLinks()
    {
        QVERIFY(pagesOf(languages.first()).size() >= 12);
        QCOMPARE(pagesOf(languages.last()), pagesOf(languages.first()));
        QSet<QString> seen;
        for (const QString &page : pagesOf(languages.first())) {
            const QString english = contentOf(languages.first(), page);
            const QString german = contentOf(languages.last(), page);
            QCOMPARE(anchorsOf(german), anchorsOf(english));
            QCOMPARE(linksOf(german), linksOf(english));
            for (const QString &anchor : anchorsOf(english)) {
                QVERIFY2(!seen.contains(anchor), qPrintable(anchor)); // an anchor belongs to one page
                seen.insert(anchor);
            }
        }
    }

    /// What the pages print in bold are names of menus, buttons and fields, as the program has them in that language.
    void namesThingsAsTheProgramDoes_data()
    {
        test::columns<QStringList>("tables"); // of texts, from the most general one
        for (const QStringList &tables : {QStringList{"en"}, QStringList{"en", "en_US"}, QStringList{"de"}})
            row(qPrintable(tables.last()), tables);
    }

    void namesThingsAsTheProgramDoes()
    {
        QFETCH(QStringList, tables);
        const auto plain = [](QString name) {
            name.replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&").remove('&').remove(u'\u2026');
            return (name.endsWith(':') ? name.chopped(1) : name).simplified();
        };
        QHash<QString, QString> names; // by key
        for (const QString &table : std::as_const(tables)) {
            QFile file(QStringLiteral(BRINEMARK_SOURCE_DIR "/resources/texts/brinemark_%1.ts").arg(table));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString content = QString::fromUtf8(file.readAll());
            const QStringList keys = captured(content, "<source>([^<]*)</source>");
            const QStringList texts = captured(content, "<translation>([^<]*)</translation>");
            QCOMPARE(keys.size(), texts.size());
            for (qsizetype i = 0; i < keys.size(); ++i)
                names.insert(keys[i], plain(texts[i]));
        }
        const QStringList all = names.values();
        setTextLanguages({tables.last()});
        for (const QString &page : pagesOf(tables.first())) {
            for (const QString &bold : captured(helpbook::page(page), "<b>([^<]*)</b>")) {
                if (bold.endsWith('.') || bold == u"xml") // sentences, and the ending of the files
                    continue;
                for (const QString &part : bold.simplified().split(QStringLiteral(" &gt; ")))
                    QVERIFY2(all.contains(plain(part)), qPrintable(page + QStringLiteral(": ") + part));
            }
        }
    }

    void everyPageCanBeReachedFromTheStart()
    {
        QStringList open{QStringLiteral("start.html")};
        QSet<QString> reached;
        while (!open.isEmpty()) {
            const QString page = open.takeFirst();
            if (reached.contains(page))
                continue;
            reached.insert(page);
            for (const QString &link : linksOf(contentOf(QStringLiteral("en"), page)))
                if (QUrl(link).isRelative() && !QUrl(link).path().isEmpty())
                    open.append(QUrl(link).path());
        }
        QCOMPARE(reached.size(), pagesOf(QStringLiteral("en")).size());
    }

    void opensAtAnAnchor()
    {
        const QString start = "start.html";
        for (const auto &[anchor, page] : {std::pair("conditions", QString("conditions.html")),
                                           std::pair("kraken", start), std::pair("targets", QString("conditions.html")),
                                           std::pair("../de/conditions", start), std::pair("", start)}) {
            showHelp(QLatin1String(anchor));
            QVERIFY(window()->isVisible());
            QCOMPARE(shownPage(), page);
            if (qstrcmp(anchor, "targets") == 0)
                QTRY_VERIFY(part<QTextBrowser>("helpBrowser")->verticalScrollBar()->value() > 100);
        }
    }

    void oneWindowInTheUsersLanguage()
    {
        setTextLanguages({QStringLiteral("de_AT")});
        showHelp();
        QWidget *first = window();
        QCOMPARE(part<QTextBrowser>("helpBrowser")->source().path(), QStringLiteral("/help/de/start.html"));
        setTextLanguages({QStringLiteral("en_US")});
        showHelp(QStringLiteral("converter"));
        const QString american = part<QTextBrowser>("helpBrowser")->toPlainText();
        QVERIFY(american.contains("in centimeters they give liters") && !american.contains("litre"));
        setTextLanguages({QStringLiteral("fr")});
        showHelp();
        QCOMPARE(window(), first);
        QCOMPARE(part<QTextBrowser>("helpBrowser")->source().path(), QStringLiteral("/help/en/start.html"));
    }

    void linksOfTheBookStayAndOthersLeave()
    {
        QList<QUrl> opened;
        desktop::setUrlHandler([&](const QUrl &url) {
            opened.append(url);
            return true;
        });
        showHelp();
        auto *browser = part<QTextBrowser>("helpBrowser");
        Q_EMIT browser->anchorClicked(QUrl(QStringLiteral("qrc:/help/en/schedule.html#overdue")));
        QCOMPARE(shownPage(), QStringLiteral("schedule.html"));
        QVERIFY(opened.isEmpty());
        const QUrl outside(QStringLiteral("https://www.brinemark.example/"));
        Q_EMIT browser->anchorClicked(outside);
        QCOMPARE(opened, QList<QUrl>{outside});
        QCOMPARE(shownPage(), QStringLiteral("schedule.html"));
    }

    void buttonsGoBackForwardAndHome()
    {
        showHelp();
        QVERIFY(!part<QToolButton>("helpBack")->isEnabled());
        showHelp(QStringLiteral("files"));
        for (const auto &[button, page] :
             {std::pair("helpBack", "start"), std::pair("helpForward", "files"), std::pair("helpHome", "start")}) {
            QTest::mouseClick(part<QToolButton>(button), Qt::LeftButton);
            QCOMPARE(shownPage(), QLatin1String(page) + QStringLiteral(".html"));
        }
    }

    void findsOnThePage()
    {
        showHelp(QStringLiteral("files"));
        auto *browser = part<QTextBrowser>("helpBrowser");
        auto *field = part<QLineEdit>("helpFind");
        QTest::keyClicks(field, QStringLiteral("BACKUP"));
        const QTextCursor first = browser->textCursor();
        QCOMPARE(first.selectedText().toLower(), QStringLiteral("backup"));
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(browser->textCursor().selectionStart() > first.selectionEnd());
        QVERIFY(browser->extraSelections().size() > 2);
        for (qsizetype i = 1; i < browser->extraSelections().size(); ++i)
            QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(browser->textCursor().selectionStart(), first.selectionStart()); // the search starts again at the top
        field->clear();
        QTest::keyClicks(field, QStringLiteral("kraken"));
        QCOMPARE(part<QLabel>("helpFindResult")->text(), text("HelpFindNone"));
    }
};

BRINEMARK_TEST(QApplication, TestHelp)
#include "tst_help.moc"
