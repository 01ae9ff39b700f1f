#include "chemistry/ConditionCsv.h"

#include "base/text/DateText.h"
#include "model/KeyAccess.h"
#include "model/Tank.h"
#include "support/DataRow.h"
#include "support/RunTest.h"

#include <QCoreApplication>

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
    void numbers_data()
    {
        QTest::addColumn<QString>("identifier");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QByteArray>("field");
        using S = QString;
        const auto number = [](double value) { return QVariant(value); };
        row("decimals", S("ph"), number(7.2), QByteArray("7.2"));
        row("no grouping", S("magnesium"), number(1350), QByteArray("1350"));
        row("large", S("nitrate"), number(123456.7), QByteArray("123456.7"));
        row("whole", S("temp"), number(25), QByteArray("25"));
        row("zero", S("ammonia"), number(0), QByteArray("0"));
        row("not tested", S("ammonia"), number(-1), QByteArray());
        row("not tested, whole", S("calcium"), number(-1), QByteArray());
        row("a fraction below zero", S("ph"), number(-0.5), QByteArray("-0.5"));
        row("below minus one", S("ph"), number(-1.5), QByteArray());
        row("a column that is none", S("colour"), number(5), QByteArray());
    }
    void numbers()
    {
        QFETCH(QString, identifier);
        QFETCH(QVariant, value);
        QFETCH(QByteArray, field);
        Tank tank(QStringLiteral("Tank"));
        auto test = std::make_shared<ConditionData>(&tank);
        setValueForKey(*test, identifier, value);
        tank.condition()->appendRecord(test);
        QCOMPARE(conditionCsv(*tank.condition(), {{identifier, QStringLiteral("Head")}}), "Head\r" + field + "\r");
    }

    void linesAndFields()
    {
        Tank tank(QStringLiteral("Tank"));
        const std::vector<CsvColumn> columns{column("date"), column("ph"), column("ammonia")};
        QCOMPARE(conditionCsv(*tank.condition(), columns), QByteArray("DATE,PH,AMMONIA\r"));
        QCOMPARE(conditionCsv(*tank.condition(), {}), QByteArray("\r"));
        for (const int day : {9, 3}) { // the log's own order, whatever the dates are
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

    /// No locale of the toolkit writes short dates so, but a desktop's own settings can.
    void fieldsWithCommas()
    {
        QCOMPARE(csvField(QStringLiteral("Feb 9, 2026")), QStringLiteral("\"Feb 9, 2026\""));
        QCOMPARE(csvField(QStringLiteral("9, \"b\"")), QStringLiteral("\"9, \"b\"\""));
        QCOMPARE(csvField(QStringLiteral("02/09/26")), QStringLiteral("02/09/26"));
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

int main(int argc, char **argv)
{
    return test::run<QCoreApplication, TestConditionCsv>(argc, argv);
}

#include "tst_condition_csv.moc"
