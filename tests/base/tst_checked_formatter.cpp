// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/SFCheckedFormatter.h"
#include "support/TestProgram.h"

#include <QDataStream>

#include <tuple>

using namespace brinemark;
using test::row;

namespace
{

constexpr NumberSeparators point{u'.', u','};
constexpr NumberSeparators comma{u',', u'.'};

SFCheckedFormatter formatter(double min, double max, int precision, int rounding, bool notTested, bool commas)
{
    SFCheckedFormatter result(min, max, precision, rounding);
    result.setUseNotTested(notTested);
    result.setSeparators(commas ? comma : point);
    return result;
}

} // namespace

class TestCheckedFormatter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        test::columns<QString, double, int, int, bool, bool, double>("typed", "max", "rounding", "precision",
                                                                     "notTested", "commas", "value");
        using S = QString;
        row("grouped", S("1.234,5"), 2000.0, 1, 2, false, true, 1234.5);
        row("two separators", S("3,4,5"), 99.0, 1, 2, false, true, 3.45);
        row("clamped", S("150"), 99.0, 1, 2, false, false, 99.0);
        row("clamped below", S("-5"), 99.0, 1, 2, false, false, -1.0);
        row("nearest, negative", S("-0.25"), 99.0, 1, 1, false, false, -0.3);
        row("truncated", S("7.29"), 99.0, 2, 1, false, false, 7.2);
        row("floor", S("-0.21"), 99.0, 3, 1, false, false, -0.3);
        row("ceiling", S("1.21"), 99.0, 4, 1, false, false, 1.3);
        row("unknown rounding", S("1.21"), 99.0, 9, 1, false, false, 1.21);
        row("empty", S(), 99.0, 1, 2, false, false, 0.0);
        row("empty, not tested", S(), 99.0, 1, 2, true, false, -1.0);
        row("word, not tested", text("NotTested"_key), 99.0, 1, 2, true, false, -1.0);
        row("emoji",
            S::fromUtf16(u"\U0001F4A7"
                         u"7\U0001F4A7"),
            99.0, 1, 2, true, false, 7.0);
        row("minus inside", S("1-2"), 99.0, 1, 2, false, false, 12.0);
        row("blank before the minus", S(" -0.5"), 99.0, 1, 2, false, false, 0.5);
        row("other separator", S("1,5"), 99.0, 1, 2, false, false, 15.0);
        row("rounded after the clamp", S("99.9"), 9.96, 1, 1, false, false, 10.0);
        row("tens", S("87"), 99.0, 2, -1, false, false, 80.0);
        row("huge precision", S("5"), 99.0, 1, 400, false, false, 5.0);
    }
    void reads()
    {
        const auto [typed, max, rounding, precision, notTested, commas, value] =
            test::fetch<QString, double, int, int, bool, bool, double>("typed", "max", "rounding", "precision",
                                                                       "notTested", "commas", "value");
        const auto checked = formatter(-1, max, precision, rounding, notTested, commas);
        QCOMPARE(checked.getObjectValue(typed).toDouble(), value);
    }

    void shows()
    {
        const auto tested = formatter(-1, 99, 2, 1, true, true);
        QCOMPARE(tested.stringForObjectValue(7.5), QString("7,50"));
        QCOMPARE(tested.stringForObjectValue(7.125), QString("7,12")); // halves go to the even digit
        QCOMPARE(tested.stringForObjectValue(7.375F), QString("7,38"));
        QCOMPARE(tested.stringForObjectValue(-0.5), text("NotTested"_key));
        QVERIFY(!tested.stringForObjectValue(qQNaN()).isEmpty());
        QCOMPARE(formatter(-9, 9, 1, 1, false, false).stringForObjectValue(-2.0), QString("-2.0"));
        QCOMPARE(tested.stringForObjectValue(tested.getObjectValue("-")), QString("-"));
        QCOMPARE(tested.getObjectValue("-").typeId(), int(QMetaType::QString));
        QCOMPARE(tested.numberForString("-"), 0.0);
        QCOMPARE(formatter(5, 9, 1, 1, false, false).numberForString("-"), 5.0);
        QVERIFY(tested.stringForObjectValue("x").isNull() && tested.stringForObjectValue({}).isNull());
        QCOMPARE(tested.stringForObjectValue(tested.getObjectValue("-0,001")), QString("0,00"));
    }
    /// Every formatter of the program reads and writes with the separators of the person's locale.
    void followsTheLocale()
    {
        const SFCheckedFormatter checked(-1, 9999, 2, 1);
        const QLocale before;
        for (const auto &[name, typed, shown] :
             {std::tuple{"en_US", "1,234.5", "1234.50"}, std::tuple{"de_DE", "1.234,5", "1234,50"},
              std::tuple{"de_CH", "1\u2019234.5", "1234.50"}}) {
            QLocale::setDefault(QLocale(QString(name)));
            QCOMPARE(checked.getObjectValue(QString(typed)).toDouble(), 1234.5);
            QCOMPARE(checked.stringForObjectValue(1234.5), QString(shown));
            const QString grouped = QString::number(1) + QLocale().groupSeparator();
            QVERIFY(checked.isPartialStringValid(grouped, {2, 0}, "1", {1, 0}).accepted);
        }
        QLocale::setDefault(before);
        const QString own = QLocale().toString(12.5, 'f', 2);
        QCOMPARE(checked.stringForObjectValue(checked.getObjectValue(own)), own);
    }

    void keepsItsRange()
    {
        SFCheckedFormatter checked;
        checked.setMin(200);
        QCOMPARE(checked.getMax(), 200.0);
        checked.setMax(-3);
        QCOMPARE(checked.getMin(), -3.0);
        const auto crossed = SFCheckedFormatter::checkedFormatterWithMin(5, 3, 1, 4);
        QCOMPARE(crossed.getMin(), 3.0);
        QCOMPARE(crossed.getMax(), 3.0);
        checked.setMax(qQNaN());
        QCOMPARE(checked.getMax(), -3.0);
    }

    void archives_data()
    {
        test::columns<int, QByteArray, int, bool>("cutOff", "name", "version", "read");
        const QByteArray name("SFCheckedFormatter");
        row("whole", 0, name, 1, true);
        row("newer", 0, name, 2, false);
        row("cut off", 1, name, 1, false);
        row("another class", 0, QByteArray("SFChecked"), 1, false);
    }
    void archives()
    {
        const auto [cutOff, name, version, read] =
            test::fetch<int, QByteArray, int, bool>("cutOff", "name", "version", "read");
        SFCheckedFormatter checked(-7.25, 0.1, 4, 3);
        checked.setUseNotTested(true);
        QByteArray own;
        QDataStream byHand(&own, QIODevice::WriteOnly);
        byHand << name << qint32(version) << -7.25 << 0.1 << qint32(4) << qint32(3);
        QByteArray archive;
        QDataStream writer(&archive, QIODevice::WriteOnly);
        checked.encodeWithCoder(writer);
        QCOMPARE(archive == own, name == "SFCheckedFormatter" && version == 1);

        QDataStream reader(own.chopped(cutOff));
        const SFCheckedFormatter decoded(reader);
        const std::tuple seen{decoded.getMin(), decoded.getMax(), decoded.getPrecision(),
                              decoded.getRoundingBehaviour()};
        QVERIFY(seen == (read ? std::tuple{-7.25, 0.1, 4, 3} : std::tuple{0.0, 100.0, 2, 2}));
        QVERIFY(!decoded.useNotTested());
    }
};

BRINEMARK_TEST(QCoreApplication, TestCheckedFormatter)
#include "tst_checked_formatter.moc"
