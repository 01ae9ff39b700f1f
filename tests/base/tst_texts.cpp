// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestProgram.h"

using namespace brinemark;
using brinemark::test::row;

namespace
{

// Keys as the program holds them: in constant tables.
constexpr TextKey cancel{"Cancel"};
constexpr TextKey newTankTemperature = "TempFreshValue"_key;
constexpr TextKey unwritten{"NoTableHoldsThisKey"};

} // namespace

/// Texts by key: which language is used, what a missing text gives, how placeholders are filled.
class TestTexts : public QObject
{
    Q_OBJECT

public:
    static constexpr bool usesSystemLanguage = true;

private Q_SLOTS:
    // Runs first, before another test chooses languages.
    void languagesOfTheSystem()
    {
        QCOMPARE(textLanguages().first().left(2), QString::fromLatin1(qgetenv("LC_ALL").left(2)));
        QCOMPARE(textLanguages().last(), QStringLiteral("en"));
    }

    void languageChain_data()
    {
        test::columns<QStringList, QStringList>("chosen", "chain");
        QTest::newRow("region") << QStringList{"de-AT"} << QStringList{"de_AT", "de", "en"};
        QTest::newRow("English region") << QStringList{"en_US"} << QStringList{"en_US", "en"};
        QTest::newRow("script") << QStringList{"en-Latn-US", "en-US", "en"} << QStringList{"en_US", "en"};
        QTest::newRow("two languages") << QStringList{"de-CH", "en-US"} << QStringList{"de_CH", "de", "en_US", "en"};
    }

    void languageChain()
    {
        QFETCH(QStringList, chosen);
        setTextLanguages(chosen);
        QTEST(textLanguages(), "chain");
    }

    void lookUp_data()
    {
        test::columns<QString, QString>("language", "cancelText");
        row("German", "de", "Abbrechen");
        row("German region", "de_AT", "Abbrechen");
        row("region that has only what differs", "en_US", "Cancel");
        row("language without a table", "fr_FR", "Cancel");
    }

    void lookUp()
    {
        QFETCH(QString, language);
        setTextLanguages({language});
        QTEST(text(cancel), "cancelText");
        QVERIFY(hasText(cancel));
        QCOMPARE(text(unwritten), QStringLiteral("NoTableHoldsThisKey"));
        QVERIFY(!hasText(unwritten) && !hasText(cancel, TextTable::Transfer));
        QCOMPARE(text(TextKey()), QString());
    }

    void numbers()
    {
        for (const auto &[language, temperature] : {std::pair("de_DE", 25.0), std::pair("en_US", 78.0)}) {
            setTextLanguages({QLatin1String(language)});
            QCOMPARE(numberOfText(newTankTemperature), temperature);
            // A fraction, whatever the locale's decimal separator.
            QVERIFY(numberOfText("AmmoniaFreshValue"_key) > 0.0 && numberOfText("AmmoniaFreshValue"_key) < 1.0);
        }
        QCOMPARE(numberOfText(cancel), 0.0);
        QCOMPARE(numberOfText(unwritten), 0.0);
    }

    void placeholders_data()
    {
        test::columns<QString, QStringList, QString>("format", "values", "filled");
        QTest::newRow("three") << "^0: ^1 of ^2" << QStringList{"a", "b", "c"} << "a: b of c";
        QTest::newRow("first occurrence only") << "^0 ^0" << QStringList{"a"} << "a ^0";
        QTest::newRow("value with a placeholder") << "^0 ^1" << QStringList{"^1", "b"} << "^1 b";
        QTest::newRow("no value") << "^0 ^1" << QStringList{"a"} << "a ^1";
        QTest::newRow("no number after the mark") << "^ ^x 2^" << QStringList{"a"} << "^ ^x 2^";
    }

    void placeholders()
    {
        const auto [format, values] = test::fetch<QString, QStringList>("format", "values");
        QTEST(fillPlaceholders(format, values), "filled");
    }

    void formats_data()
    {
        test::columns<QString, QVariantList, QString>("format", "values", "filled");
        QTest::newRow("text and number") << "%@: %i" << QVariantList{"Reef", 7} << "Reef: 7";
        QTest::newRow("per-cent sign") << "%i%% %@" << QVariantList{50, "full"} << "50% full";
        QTest::newRow("surplus value") << "%@" << QVariantList{"a", "b"} << "a";
        QTest::newRow("missing values") << "%@-%i-%@" << QVariantList{"a"} << "a--";
        QTest::newRow("value with a format") << "%@ %@" << QVariantList{"%@", "b"} << "%@ b";
        QTest::newRow("fraction as whole number") << "%i" << QVariantList{-7.9} << "-7";
        QTest::newRow("large number") << "%i" << QVariantList{qint64(9007199254740993)} << "9007199254740993";
        QTest::newRow("text as whole number") << "%i" << QVariantList{"many"} << "0";
        QTest::newRow("other notations") << "5 %s %" << QVariantList{"a"} << "5 %s %";
    }

    void formats()
    {
        const auto [format, values] = test::fetch<QString, QVariantList>("format", "values");
        QTEST(formatText(format, values), "filled");
    }
};

BRINEMARK_TEST(QCoreApplication, TestTexts)
#include "tst_texts.moc"
