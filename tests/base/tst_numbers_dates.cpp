// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/AmountText.h"
#include "base/text/DateText.h"
#include "base/text/NumberText.h"
#include "support/TestProgram.h"

#include <clocale>
#include <ctime>
#include <limits>

using namespace brinemark;
using brinemark::test::row;

/// Numbers and dates as text, in files (never by the locale) and as shown (always by it).
class TestNumbersDates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // As Qt Widgets does at start-up: the C library then writes "7,5" under a comma-decimal locale.
        QVERIFY(std::setlocale(LC_ALL, ""));
    }

    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void leadingNumbers_data()
    {
        constexpr double largest = std::numeric_limits<double>::max();
        test::columns<QString, double>("text", "number");
        QTest::newRow("fraction") << "7.25" << 7.25;
        QTest::newRow("plus sign") << "+3.5" << 3.5;
        QTest::newRow("unit") << "78°F" << 78.0;
        QTest::newRow("exponent") << "1.5e3" << 1500.0;
        QTest::newRow("sign of an exponent without one") << "5e+x" << 5.0;
        QTest::newRow("point first") << ".5" << 0.5;
        QTest::newRow("comma ends it") << "7,5" << 7.0;
        QTest::newRow("sign alone") << "-" << 0.0;
        QTest::newRow("infinity") << "inf" << 0.0;
        QTest::newRow("hexadecimal") << "0x10" << 0.0;
        QTest::newRow("too large") << "1e400" << largest;
        QTest::newRow("too large without an exponent") << QString(400, u'9') << largest;
        QTest::newRow("too small") << "1e-400" << 0.0;
        QTest::newRow("monstrous exponent") << "1e99999999999999999999" << largest;
        QTest::newRow("many digits") << "0.1000000000000000055511151231257827021181583404541015625" << 0.1;
    }

    void leadingNumbers()
    {
        const auto [text, number] = test::fetch<QString, double>("text", "number");
        QCOMPARE(leadingNumber(text), number);
        const float largest = std::numeric_limits<float>::max();
        QCOMPARE(leadingFloat(text), float(std::clamp(number, double(-largest), double(largest))));
    }

    void leadingIntegers_data()
    {
        test::columns<QString, int>("text", "number");
        QTest::newRow("negative") << "-1" << -1;
        QTest::newRow("fraction cut off") << "7.9" << 7;
        QTest::newRow("blanks and words") << "  12 fish" << 12;
        QTest::newRow("largest") << "2147483647" << 2147483647;
        QTest::newRow("beyond") << "2147483648" << 2147483647;
        QTest::newRow("far below") << "-99999999999999999999999" << std::numeric_limits<int>::min();
    }

    void leadingIntegers()
    {
        QFETCH(QString, text);
        QTEST(leadingInteger(text), "number");
    }

    void floatTexts_data()
    {
        test::columns<float, QString>("value", "text");
        QTest::newRow("whole") << 7.0F << "7";
        QTest::newRow("not tested") << -1.0F << "-1";
        QTest::newRow("negative zero") << -0.0F << "0";
        QTest::newRow("specific gravity") << 1.0245F << "1.0245";
        QTest::newRow("seven digits") << 1234.567F << "1234.567";
        QTest::newRow("sum with noise in the eighth digit") << 0.1F + 0.2F << "0.3";
        QTest::newRow("a week in seconds") << 604800.0F << "604800";
        QTest::newRow("every bit of a float") << 16777215.0F << "16777215";
        QTest::newRow("beyond 32 bits") << 1e20F << "1e+20";
        QTest::newRow("tiny") << 1e-7F << "1e-07";
        QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << "0";
    }

    void floatTexts()
    {
        QFETCH(float, value);
        QTEST(floatText(value), "text");
    }

    void shownNumbers_data()
    {
        test::columns<float, QString>("value", "withFullStop");
        QTest::newRow("one decimal") << 7.5F << "7.5";
        QTest::newRow("whole keeps one") << 7.0F << "7.0";
        QTest::newRow("three decimals") << 6.125F << "6.125";
        QTest::newRow("rounded") << 1.02456F << "1.025";
        QTest::newRow("hundreds stay") << 400.0F << "400.0";
        QTest::newRow("no grouping") << 12345.5F << "12345.5";
    }

    void shownNumbers()
    {
        auto [value, withFullStop] = test::fetch<float, QString>("value", "withFullStop");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(localizeAndTrimZeros(value), withFullStop);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(localizeAndTrimZeros(value), withFullStop.replace(u'.', u','));
    }

    void amounts()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(formatObjectForLocale(1234.5), QStringLiteral("$1,234.50"));
        QCOMPARE(formatObjectForLocale(7), QStringLiteral("$7.00"));
        QCOMPARE(formatObjectForLocale(qint64(0)), QStringLiteral("$0.00"));
        QCOMPARE(formatObjectForLocale(QVariant()), QString());
        QCOMPARE(formatObjectForLocale(QStringLiteral("a lot")), QString());
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(formatObjectForLocale(1234.5), QStringLiteral("1.234,50\u00a0€"));
    }

    void fileDates_data()
    {
        test::columns<QString, QDateTime>("text", "moment");
        const auto utc = [](int y, int m, int d, int h, int min, int s) {
            return QDateTime(QDate(y, m, d), QTime(h, min, s), Qt::UTC);
        };
        QTest::newRow("west") << "2007-03-14 18:22:05 -0500" << utc(2007, 3, 14, 23, 22, 5);
        QTest::newRow("east") << "2026-07-01 00:30:00 +0200" << utc(2026, 6, 30, 22, 30, 0);
        QTest::newRow("quarter of an hour") << "2010-01-01 00:00:00 +0545" << utc(2009, 12, 31, 18, 15, 0);
        QTest::newRow("distant past") << "0001-01-01 00:00:00 +0000" << utc(1, 1, 1, 0, 0, 0);
    }

    void fileDates()
    {
        QFETCH(QString, text);
        const QDateTime read = dateFromFileText(text);
        QTEST(read, "moment");
        QCOMPARE(fileDateText(read), text);
    }

    void notAFileDate_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"", "2007-03-14", "2007-03-14 18:22:05", "2007-03-14 18:22:05 -05:00",
                                 "2007-03-14T18:22:05 -0500", "2007-3-14 18:22:05 -0500", "2007-03-14 18:22:05 -0500 ",
                                 "2007-02-31 18:22:05 -0500", "2007-03-14 24:00:00 -0500", "2007-03-14 18:22:05  0500",
                                 "2007-03-14 18:22:05 -0560", "2007-03-14 18:22:05 +9900", "0000-01-01 00:00:00 +0000",
                                 "-007-03-14 18:22:05 -0500", "٢٠٠٧-03-14 18:22:05 -0500"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void notAFileDate()
    {
        QFETCH(QString, text);
        QVERIFY(dateFromFileText(text).isNull());
    }

    void fileDateOfLocalTime()
    {
        QCOMPARE(qgetenv("TZ"), QByteArray("Europe/Berlin"));
        QCOMPARE(fileDateText(QDateTime(QDate(2026, 7, 1), QTime(12, 0))), QStringLiteral("2026-07-01 12:00:00 +0200"));
        QCOMPARE(fileDateText(QDateTime(QDate(2026, 1, 1), QTime(12, 0))), QStringLiteral("2026-01-01 12:00:00 +0100"));
        QCOMPARE(fileDateText(QDateTime()), QString());
        QCOMPARE(fileDateText(QDateTime(QDate(10000, 1, 1), QTime(12, 0), Qt::UTC)), QString());

        // Local mean time, 53 minutes and 28 seconds ahead: the text holds no seconds of an offset, but the moment
        // stays the same.
        const QDateTime old(QDate(1880, 1, 1), QTime(12, 0));
        QCOMPARE(dateFromFileText(fileDateText(old)), old);
    }

    void formatsFromTheToolkit_data()
    {
        test::columns<QString, QString>("qtFormat", "calendarFormat");
        row("American", "M/d/yy", "%m/%d/%y");
        row("names", "dddd, d. MMMM yyyy", "%A, %d. %B %Y");
        row("24 hours", "HH:mm:ss t", "%H:%M:%S %Z");
        row("24 hours by a small h", "h:mm", "%H:%M");
        row("12 hours", "h:mm AP", "%I:%M %p");
        row("quoted", "d 'de' MMMM 'o''clock'", "%d de %B o'clock");
        row("per-cent sign", "d%M", "%d%%%m");
        row("open quote", "d 'dM", "%d dM");
    }

    void formatsFromTheToolkit()
    {
        QFETCH(QString, qtFormat);
        QTEST(calendarFormatFromQt(qtFormat), "calendarFormat");
    }

    void shortDateFormats()
    {
        for (const auto &[locale, format, shown] :
             {std::tuple("en_US", "%m/%d/%y", "03/04/07"), std::tuple("en_GB", "%d/%m/%Y", "04/03/2007"),
              std::tuple("de_DE", "%d.%m.%y", "04.03.07")}) {
            QLocale::setDefault(QLocale(QLatin1String(locale)));
            QCOMPARE(dateFormatterForLocale(), QLatin1String(format));
            QCOMPARE(localeDateText(QDateTime(QDate(2007, 3, 4), QTime(18, 22))), QLatin1String(shown));
        }
    }

    void typedDates_data()
    {
        test::columns<QString, QString, QDate>("format", "typed", "day");
        const QString american = "%m/%d/%y";
        const QString british = "%d/%m/%Y";
        const QString german = "%d.%m.%y";
        const QString named = "%A, %1d %B %Y";
        const QDate day(2007, 3, 4);
        const QDate none;
        row("American", american, "03/04/07", day);
        row("British", british, "04/03/2007", day);
        row("German", german, "04.03.07", day);
        row("four digits for two", german, "4.3.2007", day);
        row("two digits for four", british, "4/3/07", day);
        row("blanks", german, "  4. 3. 07 ", day);
        row("other separators", german, "4/3-07", day);
        row("names", named, "Sunday, 4 march 2007", day);
        row("short names", named, "Sun, 4 Mar 2007", day);
        row("mark at the end", "%d.%m.%Y г.", "4.3.2007", day);
        row("year first", "%Y-%m-%d", "2007-3-4", day);
        row("last of this century", german, "4.3.68", QDate(2068, 3, 4));
        row("first of the last century", german, "4.3.69", QDate(1969, 3, 4));
        row("leap day", german, "29.2.24", QDate(2024, 2, 29));
        row("no leap day", german, "29.2.23", none);
        row("three-digit year", british, "4/3/200", none);
        row("five-digit year", british, "4/3/20070", none);
        row("no year", german, "4.3.", none);
        row("empty", german, "", none);
        row("word", german, "yesterday", none);
        row("something behind", german, "4.3.07 x", none);
        row("other mark", german, "4:3:07", none);
        row("negative", german, "-4.3.07", none);
        row("format of a time", "%H:%M", "18:22", none);
    }

    void typedDates()
    {
        const auto [format, typed] = test::fetch<QString, QString>("format", "typed");
        const QDateTime read = dateFromCalendarText(typed, format, QLocale("en_US"));
        QTEST(read.date(), "day");
        QCOMPARE(read.isNull(), read.date().isNull());
        if (!read.isNull())
            QCOMPARE(read, QDateTime(read.date(), QTime(0, 0)));
    }

    // In every locale the shown short date can be typed.
    void shownDatesCanBeTyped()
    {
        for (const QLocale &locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            const QString format = calendarFormatFromQt(locale.dateFormat(QLocale::ShortFormat));
            const QDate day(2011, 12, 25);
            const QString shown = calendarText(day.startOfDay(), format, locale);
            QVERIFY2(dateFromCalendarText(shown, format, locale).date() == day,
                     qPrintable(locale.name() + u' ' + shown));
        }
    }

    void calendarTextAgreesWithTheCLibrary()
    {
        const std::string before = std::setlocale(LC_TIME, nullptr);
        std::setlocale(LC_TIME, "C");
        const char *format = "%a %A %b %B %d %e %m %y %Y %H %I %M %S %p %z %j %w %%";
        for (int step = 0; step < 400; ++step) {
            const QDateTime date = QDateTime(QDate(1999, 12, 31), QTime(0, 0)).addSecs(step * 25 * 3607LL);
            const std::time_t seconds = date.toSecsSinceEpoch();
            char expected[200];
            QVERIFY(std::strftime(expected, sizeof expected, format, std::localtime(&seconds)) > 0);
            QCOMPARE(calendarText(date, QLatin1String(format), QLocale::c()), QString::fromLatin1(expected));
        }
        std::setlocale(LC_TIME, before.c_str());
    }

    void calendarTexts_data()
    {
        test::columns<QString, QString>("format", "text");
        row("last check", "%a, %b %1d, %Y, %1I:%M %p", "Sun, Mar 4, 2007, 6:05 PM");
        row("without padding", "%1m/%1d %1H:%1M:%1S", "3/4 18:5:9");
        row("milliseconds and a percentage", "%F 100%%", "042 100%");
        row("unknown field", "[%Q]", "[]");
        row("open end", "%d%", "04%");
    }

    void calendarTexts()
    {
        QFETCH(QString, format);
        const QDateTime date(QDate(2007, 3, 4), QTime(18, 5, 9, 42));
        QTEST(calendarText(date, format, QLocale(QLocale::English, QLocale::UnitedStates)), "text");
        QCOMPARE(calendarText(QDateTime(), format), QString());
        // Names follow the user's language unless told otherwise.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(calendarText(date, QStringLiteral("%A %B")), QStringLiteral("Sonntag März"));
    }
};

BRINEMARK_TEST(QCoreApplication, TestNumbersDates)
#include "tst_numbers_dates.moc"
