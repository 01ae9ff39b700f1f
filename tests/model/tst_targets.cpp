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

    void orders()
    {
        QStringList targets, fields, fileKeys;
        for (const ParameterTraits &traits : parameterTable) {
            targets << traits.identifier.toString();
            fileKeys << traits.targetFileKey.toString();
            QCOMPARE(traits.targetKey.toString(), traits.identifier.toString() + QStringLiteral("Data"));
            QCOMPARE(parameterFromIdentifier(traits.identifier), std::optional(traits.parameter));
            QCOMPARE(parameterFromTargetKey(traits.targetKey), std::optional(traits.parameter));
        }
        for (const Field<ConditionData> &field : FieldTable<ConditionData>::fields)
            fields << field.key.toString();
        QCOMPARE(targets.join(u' '),
                 QStringLiteral("temp ph ammonia nitrate nitrite gH kH salt alkalinity phosphate calcium iodine "
                                "oxygen copper iron dioxide magnesium"));
        QCOMPARE(fields.join(u' '),
                 QStringLiteral("date ph ammonia nitrate nitrite gH kH salt temp alkalinity phosphate calcium "
                                "iodine oxygen copper iron dioxide magnesium"));
        QVERIFY(fileKeys.contains(QStringLiteral("pHValue")) && fileKeys.contains(QStringLiteral("gHValue")));
        QVERIFY(!parameterFromIdentifier(u"date"));
    }

    void defaults_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << "en";
        QTest::newRow("German") << "de";
    }

    void defaults()
    {
        QFETCH(QString, language);
        setTextLanguages({language});
        const Tank tank(QStringLiteral("T"));
        const QString german = language == u"de" ? QStringLiteral("de") : QStringLiteral("en");
        QCOMPARE(textLanguages().front(), german);
        QVERIFY(tank.tempData()->preferredValue != 0);
        QCOMPARE(tank.tempData()->preferredValue, text("TempFreshValue"_key).toFloat());
        QCOMPARE(tank.ammoniaData()->deviationValue, text("AmmoniaFreshValue"_key).toFloat());
        QCOMPARE(tank.nitrateData()->deviationValue, text("NitrateFreshValue"_key).toFloat());
        QCOMPARE(tank.nitriteData()->deviationValue, text("NitriteFreshValue"_key).toFloat());
        QCOMPARE(tank.phData()->preferredValue, 7.0F);
        QCOMPARE(tank.saltData()->name, text("Salinity"_key));
        QCOMPARE(tank.dioxideData()->name, text("CarbonDioxide"_key));
        for (const ParameterTraits &traits : parameterTable) {
            const TankData &target = *tank.target(traits.parameter);
            const bool nitrogen =
                traits.identifier == u"ammonia" || traits.identifier == u"nitrate" || traits.identifier == u"nitrite";
            QCOMPARE(target.warningOn, nitrogen);
            QCOMPARE(target.deviationOn, nitrogen);
            QVERIFY(!target.name.isEmpty());
            QCOMPARE(target.tank.get(), &tank);
            if (!nitrogen)
                QCOMPARE(target.deviationValue, 0.0F);
            if (traits.identifier != u"temp" && traits.identifier != u"ph")
                QCOMPARE(target.preferredValue, 0.0F);
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
