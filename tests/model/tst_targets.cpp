// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"

using namespace brinemark;

class TargetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setTextLanguages({QStringLiteral("en")}); }

    void parametersAreFoundByTheirKeys()
    {
        for (const ParameterTraits &traits : parameterTable) {
            QCOMPARE(parameterFromIdentifier(traits.identifier), std::optional(traits.parameter));
            QCOMPARE(parameterFromTargetKey(traits.targetKey), std::optional(traits.parameter));
        }
        QVERIFY(!parameterFromIdentifier(u"date"));
    }

    void defaults()
    {
        for (const QString language : {"en", "de"}) {
            setTextLanguages({language});
            const Tank tank(QStringLiteral("T"));
            QVERIFY(tank.tempData()->preferredValue != 0);
            QCOMPARE(tank.tempData()->preferredValue, text("TempFreshValue"_key).toFloat());
            QCOMPARE(tank.ammoniaData()->deviationValue, text("AmmoniaFreshValue"_key).toFloat());
            QCOMPARE(tank.nitrateData()->deviationValue, text("NitrateFreshValue"_key).toFloat());
            QCOMPARE(tank.nitriteData()->deviationValue, text("NitriteFreshValue"_key).toFloat());
            QCOMPARE(tank.phData()->preferredValue, 7.0F);
            QStringList checked;
            for (const ParameterTraits &traits : parameterTable) {
                const TankData &target = *tank.target(traits.parameter);
                QVERIFY(!target.name.isEmpty());
                QCOMPARE(target.tank.get(), &tank);
                QCOMPARE(target.deviationOn, target.warningOn);
                QCOMPARE(target.deviationValue != 0, target.warningOn);
                if (target.warningOn)
                    checked << traits.identifier.toString();
            }
            QCOMPARE(checked.join(u' '), QStringLiteral("ammonia nitrate nitrite"));
            QCOMPARE(tank.magnesiumData()->preferredValue, 0.0F);
        }
    }

    void marineDefaultsLeaveTheFirstSeven()
    {
        Tank tank(QStringLiteral("T"));
        for (const ParameterTraits &traits : parameterTable)
            tank.target(traits.parameter)->preferredValue = 42;
        tank.createDefaultMarineWarningValues();
        QStringList kept;
        for (const ParameterTraits &traits : parameterTable) {
            if (tank.target(traits.parameter)->preferredValue == 42)
                kept << traits.identifier.toString();
        }
        QCOMPARE(kept.join(u' '), QStringLiteral("temp ph ammonia nitrate nitrite gH kH"));
        QCOMPARE(tank.targetForKey(u"kHData"), tank.kHData());
        QVERIFY(!tank.targetForKey(u"kH"));
    }

    void integersReadAsNumbers()
    {
        TankData target(Blank{});
        readRecord(target, plist::Dict{{QStringLiteral("preferred"), 25},
                                       {QStringLiteral("deviation"), 2},
                                       {QStringLiteral("warningOn"), 1}});
        QCOMPARE(target.preferredValue, 25.0F);
        QCOMPARE(target.deviationValue, 2.0F);
        QVERIFY(target.warningOn);
        QVERIFY(target.name.isNull());
        QVERIFY(!recordDict(target).contains(u"name"));
    }

    void singlePrecisionSurvivesTheFile()
    {
        for (const float value : {7.2F, 0.1F, 1.0F / 3, 1.0e-7F, 3.4e38F, -0.25F}) {
            TankData target(Blank{});
            target.preferredValue = value;
            const auto read = plist::readXml(plist::writeXml(recordDict(target)));
            TankData back(Blank{});
            readRecord(back, *read.value.dict());
            QCOMPARE(back.preferredValue, value);
        }
        TankData neat(Blank{});
        neat.preferredValue = 7.2F;
        QCOMPARE(*fileValue(neat, u"preferred").real(), 7.2);
    }
};

BRINEMARK_TEST(QGuiApplication, TargetsTest)
#include "tst_targets.moc"
