// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TargetCheck.h"

#include "base/text/NumberText.h"
#include "chemistry/ConditionColumns.h"
#include "chemistry/TargetAdvice.h"
#include "model/Parameters.h"
#include "model/Tank.h"
#include "support/TestProgram.h"

#include <QRegularExpression>

#include <cmath>

using namespace brinemark;
using test::row;

class TestTargetCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setTextLanguages({QStringLiteral("en")}); }

    void warns_data()
    {
        // deviation: negative for no band
        // title: empty for no warning
        test::columns<double, double, double, QString, QString, float>("preferred", "deviation", "value", "title",
                                                                       "message", "limit");
        const QString low = QStringLiteral("LowValueTitle");
        const QString high = QStringLiteral("HighValueTitle");
        const QString equal = QStringLiteral("EqualValueMessage");
        const QString none;
        row("below the band", 7.0, 0.2, 6.7, low, QStringLiteral("LowValueMessage"), 6.8F);
        row("above the band", 7.0, 0.2, 7.3, high, QStringLiteral("HighValueMessage"), 7.2F);
        row("on the lower limit", 7.0, 0.2, 6.8, none, none, 0.0F);
        row("the next float above it", 7.0, 0.2, double(std::nextafter(7.2F, 8.0F)), none, none, 0.0F);
        row("the seventh digit above it", 7.0, 0.2, 7.200001, high, QStringLiteral("HighValueMessage"), 7.2F);
        row("the seventh digit below", 7.0, 0.2, 6.799999, low, QStringLiteral("LowValueMessage"), 6.8F);
        row("above a single value", 25.0, -1.0, 25.5, high, equal, 25.0F);
        row("on a single value", 25.0, -1.0, 25.0, none, none, 0.0F);
        row("a band of width 0", 25.0, 0.0, 24.0, low, equal, 25.0F);
        row("not tested", 25.0, 1.0, -1.0, none, none, 0.0F);
        row("any negative value", 25.0, 1.0, -0.001, none, none, 0.0F);
        row("zero is a result", 25.0, 1.0, 0.0, low, QStringLiteral("LowValueMessage"), 24.0F);
        row("no number", 25.0, 1.0, std::nan(""), none, none, 0.0F);
    }
    void warns()
    {
        const auto [preferred, deviation, value, title, message, limit] =
            test::fetch<double, double, double, QString, QString, float>("preferred", "deviation", "value", "title",
                                                                         "message", "limit");
        const auto tank = std::make_shared<Tank>(QStringLiteral("Tank"));
        TankData &target = *tank->phData();
        target.preferredValue = float(preferred);
        target.warningOn = true;
        target.deviationOn = deviation >= 0;
        target.deviationValue = float(std::abs(deviation));
        const auto warning = targetWarning(*tank, u"ph", value, QStringLiteral("Title of ^0"));
        QCOMPARE(warning.has_value(), !title.isEmpty());
        if (warning) {
            const QString shownLimit = localizeAndTrimZeros(limit);
            QCOMPARE(warning->title, fillPlaceholders(textOf(title), {QStringLiteral("Title of ^0")}));
            const TextKey advice =
                targetAdviceKey(Parameter::Ph, targetState(&target, value), tank->freshwater, target.preferredValue);
            QCOMPARE(warning->message, fillPlaceholders(textOf(message), {shownLimit}) + text("PhTreatment") +
                                           QStringLiteral("\n\n") + text(advice));
            QVERIFY(targetStateText(target, targetState(&target, value)).endsWith(shownLimit));
        }
        target.warningOn = false;
        QVERIFY(!targetWarning(*tank, u"ph", value, QString()));
        QCOMPARE(targetState(&target, value), TargetState::NotChecked);
        QCOMPARE(targetState(nullptr, value), TargetState::NotChecked);
    }

    void limitsAsTheyAreWritten_data()
    {
        test::columns<QString, QString>("preferred", "deviations"); // usual targets
        row("temp", "18 22.5 24 25 26.5 28 75 77 78.8 80.1", "0.5 1 1.1 1.5 2 3.3");
        row("ph", "5.8 6.2 6.5 6.8 7 7.2 7.6 8 8.2 8.35", "0.05 0.1 0.2 0.25 0.3 0.5");
        row("ammonia", "0 0.02 0.05 2 4", "0 0.02 0.05 0.1 0.25 0.5");
        row("nitrate", "0 2 5 7.5 10 20 50", "1 2.5 5 9.95 10 25 40");
        row("nitrite", "0 0.02 0.05 1", "0 0.02 0.05 0.1 0.2 0.25 0.3");
        row("gH", "3 4.5 6 8 12.4 18", "0.5 1 1.6 2 4.2");
        row("kH", "2 3.5 4 6 7.7 9 12", "0.5 0.7 1 1.5 2.1");
        row("salt", "1.005 1.02 1.022 1.023 1.025 1.026 3.5", "0.001 0.002 0.003 0.004 0.015");
        row("alkalinity", "2.5 3.2 7.7 8 8.3 9.1 11 125", "0.1 0.3 0.5 1 1.2 20");
        row("phosphate", "0 0.1 0.5 1", "0.1 0.2 0.3 0.5 1.1");
        row("calcium", "20 400 420 435", "5 10 15 30");
        row("iodine", "0.05 0.06 0.07 0.1", "0.01 0.02 0.03 0.05");
        row("oxygen", "6 7.2 7.8 8.3", "0.5 0.9 1 1.4 2.2");
        row("copper", "0 0.15 0.18 0.2 0.5", "0.01 0.02 0.03 0.05");
        row("iron", "0.1 0.2 0.5", "0.1 0.3");
        row("dioxide", "10 20 25 30", "3 5 10");
        row("magnesium", "10 1280 1300 1350 1400", "10 30 50 70 100");
    }
    /// The limits are summed in whole units of the column's last decimal, then typed, as are their neighbours outside.
    void limitsAsTheyAreWritten()
    {
        const auto [preferred, deviations] = test::fetch<QString, QString>("preferred", "deviations");
        const auto &column = *conditionColumnFromIdentifier(QString::fromLatin1(QTest::currentDataTag()));
        const double unit = std::pow(10, column.decimals);
        TankData target(Blank{});
        target.warningOn = target.deviationOn = true;
        for (const QString &aim : preferred.split(u' ')) {
            for (const QString &deviation : deviations.split(u' ')) {
                target.preferredValue = aim.toFloat();
                target.deviationValue = deviation.toFloat();
                const qint64 middle = qRound64(aim.toDouble() * unit);
                const qint64 width = qRound64(deviation.toDouble() * unit);
                const auto stateAt = [&](qint64 units) {
                    const QString typed = QString::number(double(units) / unit, 'f', column.decimals);
                    return targetState(&target, double(typed.toFloat()));
                };
                const QString where = aim + QStringLiteral(" \u00B1 ") + deviation;
                QVERIFY2(stateAt(middle + width) == TargetState::Within, qPrintable(where));
                QVERIFY2(stateAt(middle + width + 1) == TargetState::High, qPrintable(where));
                if (middle >= width)
                    QVERIFY2(stateAt(middle - width) == TargetState::Within, qPrintable(where));
                if (middle > width)
                    QVERIFY2(stateAt(middle - width - 1) == TargetState::Low, qPrintable(where));
            }
        }
    }

    void rangesBeginAtZero()
    {
        TankData target(Blank{});
        target.deviationValue = 0.1F;
        const QString zero = localizeAndTrimZeros(0);
        QCOMPARE(targetRangeText(target), fillPlaceholders(text("GraphLegendValue"), {zero}));
        target.deviationOn = true;
        const QString high = localizeAndTrimZeros(0.1F);
        QCOMPARE(targetRangeText(target), fillPlaceholders(text("GraphLegendBand"), {zero, high}));
        target.preferredValue = 7;
        QCOMPARE(targetRangeText(target),
                 fillPlaceholders(text("GraphLegendBand"), {localizeAndTrimZeros(6.9F), localizeAndTrimZeros(7.1F)}));
        target.preferredValue = -5; // only a file can contain this
        target.warningOn = true;
        QVERIFY(targetStateText(target, targetState(&target, 0)).endsWith(zero));
    }

    void unknownIdentifiersAreNotChecked()
    {
        const auto tank = std::make_shared<Tank>(QStringLiteral("Tank"));
        for (const QStringView identifier : {u"date", u"", u"phData", u"PH"})
            QVERIFY(!targetWarning(*tank, identifier, 1000, QString()));
    }

    void treatments()
    {
        const QHash<Parameter, QString> own{{Parameter::Temp, QStringLiteral("TempTreatment")},
                                            {Parameter::Ph, QStringLiteral("PhTreatment")},
                                            {Parameter::Nitrate, QStringLiteral("NitrateTreatment")},
                                            {Parameter::Nitrite, QStringLiteral("NitriteTreatment")},
                                            {Parameter::Ammonia, QStringLiteral("AmmoniaTreatment")},
                                            {Parameter::Alkalinity, QStringLiteral("genericTreatment")}};
        QHash<QByteArray, QStringList> figures; // of each case, by language
        for (const char *language : {"en", "de"}) {
            setTextLanguages({QString::fromLatin1(language)});
            for (const Case &of : allCases()) {
                const QString message = messageOf(of);
                const QString treatment = textOf(own.value(of.parameter, QStringLiteral("ppmTreatment")));
                QVERIFY(treatment.size() > 100 && message.contains(treatment));
                const QString last = message.section(treatment, 1);
                const TextKey advice = targetAdviceKey(of.parameter, of.state, of.freshwater, 10);
                QCOMPARE(last, advice.isEmpty() ? QString() : QStringLiteral("\n\n") + text(advice));
                // A treatment that serves eleven parameters says nothing about one direction.
                QVERIFY(!last.isEmpty() || own.contains(of.parameter));
                QVERIFY(!message.contains(u'%')); // an alert takes its message for a format
                figures[language] << figuresIn(treatment + last);
            }
        }
        QCOMPARE(figures.value("de"), figures.value("en"));
    }

    /// A new tank's targets of 0 say nothing about oxygen or salinity: no advice calls a good value too high.
    void targetsThatNobodySet()
    {
        QStringList unset;
        for (const ParameterTraits &traits : parameterTable) {
            Tank tank(QStringLiteral("Tank"));
            TankData &target = *tank.target(traits.parameter);
            target.preferredValue = 0;
            target.warningOn = true;
            target.deviationOn = false;
            const auto warning = targetWarning(tank, traits.identifier, 8, QStringLiteral("it"));
            if (warning && warning->message.endsWith(text("UnsetTargetAdvice")))
                unset << traits.identifier.toString();
        }
        QCOMPARE(unset,
                 QStringList({"temp", "ph", "gH", "kH", "salt", "alkalinity", "calcium", "oxygen", "magnesium"}));
    }

    /// A text that serves several parameters names none of them. Urgent advice begins as its treatment says.
    void sharedTextsAndUrgentCases()
    {
        for (const auto &[language, atOnce] : {std::pair("en", "At once"), std::pair("de", "Sofort")}) {
            setTextLanguages({QString::fromLatin1(language)});
            const QString shared = text("ppmTreatment");
            for (const ParameterTraits &traits : parameterTable) {
                const QRegularExpression name(QStringLiteral("\\b%1\\b").arg(text(traits.targetNameKey)),
                                              QRegularExpression::CaseInsensitiveOption);
                QVERIFY2(!name.match(shared).hasMatch(), qPrintable(name.pattern()));
            }
            for (const Case &of : allCases()) {
                const bool urgent =
                    (of.parameter == Parameter::Oxygen && of.state == TargetState::Low) ||
                    (of.parameter == Parameter::Dioxide && of.state == TargetState::High) ||
                    (of.parameter == Parameter::Copper && of.state == TargetState::High) ||
                    (of.parameter == Parameter::Nitrite && of.state == TargetState::High && of.freshwater);
                const QStringList paragraphs = messageOf(of).split(QStringLiteral("\n\n"));
                QCOMPARE(paragraphs.last().startsWith(QLatin1String(atOnce)), urgent);
                if (urgent)
                    QVERIFY(paragraphs.at(1).contains(QLatin1String(atOnce)));
            }
        }
    }

private:
    struct Case {
        Parameter parameter;
        TargetState state;
        bool freshwater;
    };
    static std::vector<Case> allCases()
    {
        std::vector<Case> cases;
        for (const ParameterTraits &traits : parameterTable) {
            for (const TargetState state : {TargetState::Low, TargetState::High}) {
                for (const bool freshwater : {true, false})
                    cases.push_back({traits.parameter, state, freshwater});
            }
        }
        return cases;
    }
    /// The whole message of a test that lies outside the target in this way.
    static QString messageOf(const Case &of)
    {
        Tank tank(QStringLiteral("Tank"));
        tank.freshwater = of.freshwater;
        TankData &target = *tank.target(of.parameter);
        target.preferredValue = 10;
        target.warningOn = true;
        target.deviationOn = false;
        const auto warning = targetWarning(tank, traitsOf(of.parameter).identifier,
                                           of.state == TargetState::Low ? 9 : 11, QStringLiteral("it"));
        return warning ? warning->message : QString();
    }
    /// The numbers in digits, with a full stop, sorted.
    static QString figuresIn(const QString &text)
    {
        static const QRegularExpression number(QStringLiteral("[0-9]+(?:[.,][0-9]+)?"));
        QStringList figures;
        for (const auto &match : number.globalMatch(text))
            figures << match.captured().replace(u',', u'.');
        figures.sort();
        return figures.join(u' ');
    }

    /// The text of a key that is known at run time only.
    static QString textOf(const QString &key) { return text(operator""_key(key.toLatin1().constData(), 0)); }
};

BRINEMARK_TEST(QCoreApplication, TestTargetCheck)
#include "tst_target_check.moc"
