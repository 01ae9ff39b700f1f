// SPDX-License-Identifier: GPL-3.0-or-later

// Every key that the sources look up has a text in every language, in the compiled program.

#include "support/TestProgram.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>

namespace
{

struct Use {
    QString key;
    QString table; ///< empty where the source names none: any table will do

    bool operator==(const Use &) const = default;
};

/// The tables by the names of TextTable's values.
const QMap<QString, QString> tableNames = {{QStringLiteral("Default"), QStringLiteral("Default")},
                                           {QStringLiteral("Update"), QStringLiteral("QZUpdateStrings")},
                                           {QStringLiteral("Transfer"), QStringLiteral("QZCURLTaskStrings")}};

/// Calls of text(), hasText() and numberOfText() with a literal, and key literals wherever they stand.
QList<Use> usesIn(QString source)
{
    // Ordinary literals throughout this file: moc cannot read raw ones.
    static const QRegularExpression comments(QLatin1String("(?m)(^|\\s)//.*$"));
    static const QRegularExpression use(
        QLatin1String("(?<call>(?<![\\w.>])(?:text|hasText|numberOfText)\\(\\s*)?\"(?<key>[^\"\\n]+)\"(?<suffix>_key)?"
                      "(?:\\s*,\\s*(?:brinemark::)?TextTable::(?<table>\\w+))?"));
    QList<Use> uses;
    for (auto matches = use.globalMatch(source.remove(comments)); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const bool isCall = match.hasCaptured(QStringLiteral("call"));
        if (!isCall && !match.hasCaptured(QStringLiteral("suffix")))
            continue;
        QString table = tableNames.value(match.captured(QStringLiteral("table")));
        if (isCall && table.isEmpty())
            table = QStringLiteral("Default");
        uses.append({match.captured(QStringLiteral("key")), table});
    }
    return uses;
}

bool holds(const QTranslator &texts, const Use &use)
{
    const QStringList tables = use.table.isEmpty() ? QStringList(tableNames.values()) : QStringList(use.table);
    return std::any_of(tables.begin(), tables.end(), [&](const QString &table) {
        return !texts.translate(qPrintable(table), qPrintable(use.key)).isEmpty();
    });
}

} // namespace

class TestTextTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheUsesInASource()
    {
        const QString source = QLatin1String(
            "setTitle(text(\"SaveTitle\")); element.text(\"NotAKey\"); setText(\"NotAKey\"); // text(\"InAComment\")\n"
            "text( \"LastCheck\"_key,\n"
            "TextTable::Update); brinemark::numberOfText(\"TempFreshValue\"); \"http://notAKey\";\n"
            "{\"Edit...\"_key, hasText(\"SingleHourLabel\", brinemark::TextTable::Transfer)}\n");
        const QList<Use> expected = {{QStringLiteral("SaveTitle"), QStringLiteral("Default")},
                                     {QStringLiteral("LastCheck"), QStringLiteral("QZUpdateStrings")},
                                     {QStringLiteral("TempFreshValue"), QStringLiteral("Default")},
                                     {QStringLiteral("Edit..."), QString()},
                                     {QStringLiteral("SingleHourLabel"), QStringLiteral("QZCURLTaskStrings")}};
        QVERIFY(usesIn(source) == expected);
    }

    void everyKeyInTheSourcesHasAText()
    {
        QStringList missing;
        int files = 0;
        for (const QString &language : {QStringLiteral("en"), QStringLiteral("de")}) {
            QTranslator texts;
            QVERIFY(texts.load(QStringLiteral(":/texts/brinemark_%1.qm").arg(language)));
            QDirIterator sources(QStringLiteral(BRINEMARK_SOURCE_DIR "/src"),
                                 {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                                 QDirIterator::Subdirectories);
            for (; sources.hasNext(); ++files) {
                QFile file(sources.next());
                QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
                for (const Use &use : usesIn(QString::fromUtf8(file.readAll()))) {
                    if (!holds(texts, use))
                        missing.append(QStringLiteral("%1: %2 (%3), used in %4")
                                           .arg(language, use.key,
                                                use.table.isEmpty() ? QStringLiteral("any table") : use.table,
                                                sources.fileInfo().fileName()));
                }
            }
        }
        QVERIFY(files > 0);
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    }
};

BRINEMARK_TEST(QCoreApplication, TestTextTables)

#include "tst_text_tables.moc"
