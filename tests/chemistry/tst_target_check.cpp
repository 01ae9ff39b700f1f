// SPDX-License-Identifier: GPL-3.0-or-later

#include "chemistry/TargetCheck.h"

#include "base/text/NumberText.h"
#include "base/text/Texts.h"
#include "model/Parameters.h"
#include "model/Tank.h"
#include "support/DataRow.h"
#include "support/TestProgram.h"

#include <QCoreApplication>

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
        row("the next number above it", 7.0, 0.2, double(std::nextafter(7.2F, 8.0F)), high,
            QStringLiteral("HighValueMessage"), 7.2F);
        row("beyond it in double precision only", 7.0, 0.2, 7.20000001, none, none, 0.0F);
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
        QFETCH(double, preferred);
        QFETCH(double, deviation);
        QFETCH(double, value);
        QFETCH(QString, title);
        QFETCH(QString, message);
        QFETCH(float, limit);
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
            QCOMPARE(warning->message, fillPlaceholders(textOf(message), {shownLimit}) + text("PhTreatment"));
            QVERIFY(targetStateText(target, targetState(&target, value)).endsWith(shownLimit));
        }
        target.warningOn = false;
        QVERIFY(!targetWarning(*tank, u"ph", value, QString()));
        QCOMPARE(targetState(&target, value), TargetState::NotChecked);
        QCOMPARE(targetState(nullptr, value), TargetState::NotChecked);
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
        for (const char *language : {"en", "de"}) {
            setTextLanguages({QString::fromLatin1(language)});
            const auto tank = std::make_shared<Tank>(QStringLiteral("Tank"));
            for (const ParameterTraits &traits : parameterTable) {
                TankData &target = *tank->target(traits.parameter);
                target.warningOn = true;
                target.deviationOn = false;
                const double high = double(target.preferredValue) + 1;
                const auto warning = targetWarning(*tank, traits.identifier, high, QStringLiteral("it"));
                QVERIFY(warning);
                const QString treatment = textOf(own.value(traits.parameter, QStringLiteral("ppmTreatment")));
                QVERIFY(treatment.size() > 100);
                QVERIFY(warning->message.endsWith(treatment));
                QVERIFY(!warning->message.contains(u'%')); // an alert takes its message for a format
            }
        }
    }

private:
    /// The text of a key that is known at run time only.
    static QString textOf(const QString &key) { return text(operator""_key(key.toLatin1().constData(), 0)); }
};

BRINEMARK_TEST(QCoreApplication, TestTargetCheck)
#include "tst_target_check.moc"
