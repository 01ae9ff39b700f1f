// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/ConditionCsv.h"

#include "base/text/DateText.h"
#include "chemistry/ConditionColumns.h"
#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "support/Python.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

using namespace brinemark;
using test::row;

namespace
{

CsvColumn column(const char *identifier)
{
    return {QString::fromLatin1(identifier), QString::fromLatin1(identifier).toUpper()};
}

QDateTime noonOf(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0));
}

} // namespace

class TestConditionCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAndFields()
    {
        Tank tank(QStringLiteral("Tank"));
        const std::vector<CsvColumn> columns{column("date"), column("ph"), column("ammonia")};
        QCOMPARE(conditionCsv(*tank.condition(), columns), QByteArray("DATE,PH,AMMONIA\r"));
        QCOMPARE(conditionCsv(*tank.condition(), {}), QByteArray("\r"));
        for (const int day : {9, 3}) { // exported in the log's order, not by date
            auto test = std::make_shared<ConditionData>(&tank);
            test->date = noonOf(2026, 2, day);
            test->ph = 7.2F;
            tank.condition()->appendRecord(test);
        }
        tank.condition()->conditionArray().back()->date = {};
        const QByteArray date = localeDateText(noonOf(2026, 2, 9)).toLocal8Bit();
        QCOMPARE(conditionCsv(*tank.condition(), columns), "DATE,PH,AMMONIA\r" + date + ",7.2,\r,7.2,\r");
        QCOMPARE(conditionCsv(*tank.condition(), {{QStringLiteral("ph"), QStringLiteral("a,\"b\"")}}),
                 QByteArray("a,\"b\"\r7.2\r7.2\r")); // headers are not quoted
    }

    void asPythonWritesIt_data()
    {
        QTest::addColumn<QString>("format");
        row("the user's dates", dateFormatterForLocale());
        row("dates with commas", QStringLiteral("%1d, %m, %Y"));
    }
    void asPythonWritesIt()
    {
        QFETCH(QString, format);
        std::minstd_rand random(5);
        Tank tank(QStringLiteral("Tank"));
        std::vector<CsvColumn> columns;
        QJsonArray headers;
        for (const ConditionColumnTraits &traits : conditionColumnTable) {
            columns.push_back({traits.identifier.toString(), text(traits.headerKey)});
            headers << columns.back().header;
        }
        QJsonArray tests;
        for (int i = 0; i < 2000; ++i) {
            auto test = std::make_shared<ConditionData>(&tank);
            test->date = noonOf(1990, 1, 1).addDays(qint64(random() % 15'000));
            QJsonArray values;
            for (const ConditionColumnTraits &traits : conditionColumnTable) {
                if (traits.identifier == u"date") {
                    values << test->date.date().toString(Qt::ISODate);
                    continue;
                }
                if (random() % 3 > 0)
                    setValueForKey(*test, traits.identifier, double(random() % 4'000'000) / 1000 - 2);
                values << valueForKey(*test, traits.identifier).toDouble(); // as stored: single precision or whole
            }
            tank.condition()->appendRecord(test);
            tests << values;
        }
        // A day without a leading zero is "%1d" here and "%-d" in Python.
        const QJsonObject log{{QStringLiteral("format"), QString(format).replace(u"%1"_qs, u"%-"_qs)},
                              {QStringLiteral("headers"), headers},
                              {QStringLiteral("tests"), tests}};
        const auto script = u"import csv, datetime, io, json, sys\n"
                            "log = json.load(sys.stdin)\n"
                            "def field(value):\n"
                            "    if isinstance(value, str):\n"
                            "        return datetime.date.fromisoformat(value).strftime(log['format'])\n"
                            "    return '' if int(value) < 0 else '%.7g' % value\n"
                            "out = io.TextIOWrapper(sys.stdout.buffer, 'utf-8', newline='')\n"
                            "writer = csv.writer(out, lineterminator='\\r')\n"
                            "writer.writerow(log['headers'])\n"
                            "writer.writerows([field(value) for value in test] for test in log['tests'])\n"_qs;
        const test::PythonRun python = test::runPython({u"-c"_qs, script}, QJsonDocument(log).toJson());
        QCOMPARE(python.errors, QByteArray());
        const QList<QByteArray> ours = conditionCsv(*tank.condition(), columns, format).split('\r');
        const QList<QByteArray> theirs = python.output.split('\r');
        QCOMPARE(ours.size(), 2002); // the headers, and the empty rest after the last line
        QCOMPARE(ours, theirs);
    }

    void quotesAreNotDoubled()
    {
        Tank tank(QStringLiteral("Tank"));
        auto test = std::make_shared<ConditionData>(&tank);
        test->date = noonOf(2026, 2, 9);
        tank.condition()->appendRecord(test);
        QCOMPARE(conditionCsv(*tank.condition(), {column("date"), column("colour")}, QStringLiteral("%1d, \"%m\"")),
                 QByteArray("DATE,COLOUR\r\"9, \"02\"\",\r")); // an unknown column stays empty
    }

    /// The day of a test is that of its own zone, not of the computer's.
    void daysOfOtherZones()
    {
        Tank tank(QStringLiteral("Tank"));
        auto test = std::make_shared<ConditionData>(&tank);
        test->date = QDateTime(QDate(2026, 2, 9), QTime(23, 30), Qt::OffsetFromUTC, -11 * 3600);
        tank.condition()->appendRecord(test);
        QCOMPARE(conditionCsv(*tank.condition(), {column("date")}),
                 ("DATE\r" + localeDateText(test->date) + "\r").toLocal8Bit());
    }
};

BRINEMARK_TEST(QCoreApplication, TestConditionCsv)
#include "tst_condition_csv.moc"
