// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/PreferenceKeys.h"
#include "calc/UnitConversion.h"
#include "calc/views/ConverterController.h"
#include "support/RecordingShell.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

using namespace brinemark;

class TestUnitConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data()
    {
        test::columns<int, int, float, float>("kind", "item", "value", "result");
        const struct {
            int kind;
            int item;
            float value;
            double result;
        } rows[]{
            {0, 0, 77, 25},         {0, 1, 25, 77},         {1, 0, 10, 179},        {1, 1, 179, 10},
            {1, 2, 1.025F, 34.9},   {1, 3, 35, 1.025077},   {1, 4, 2, 6},           {1, 5, 2, 120},
            {1, 6, 10, 2.028841},   {1, 7, 1, 4.9289216},   {1, 8, 28, 10},         {1, 9, 10, 28},
            {2, 0, 10, 25.4},       {2, 1, 10, 3.937},      {2, 2, 10, 1.094},      {2, 3, 100, 3.281},
            {2, 4, 10, 3.048},      {2, 5, 10, 10.94},      {2, 6, 10, 9.144},      {3, 0, 10, 0.929},
            {3, 1, 10, 107.6},      {3, 2, 2, 288},         {3, 3, 288, 2},         {4, 0, 10, 37.854118},
            {4, 1, 10, 2.64172051}, {4, 2, 3600, 1},        {5, 0, 10, 12.0095042}, {5, 1, 10, 45.4609188},
            {5, 2, 10, 2.19969157}, {5, 3, 10, 2.64172051}, {5, 4, 10, 37.854118},  {5, 5, 10, 40},
            {6, 0, 44, 10},         {6, 1, 10, 44},         {0, 2, 5, 5},           {6, -1, 5, 5},
            {7, 0, 5, 0},           {-1, 0, 5, 0},
        };
        for (const auto &row : rows)
            QTest::addRow("%d/%d", row.kind, row.item) << row.kind << row.item << row.value << float(row.result);
    }
    void converts()
    {
        const auto [kind, item, value, result] = test::fetch<int, int, float, float>("kind", "item", "value", "result");
        const float converted = convertUnits(kind, item, value);
        QVERIFY2(qAbs(converted - result) <= 1e-4F * qMax(1.0F, qAbs(result)), qPrintable(QString::number(converted)));
    }

    void everyConversionHasATitle()
    {
        QCOMPARE(conversionKindTitles().size(), qsizetype(conversionKinds.size()));
        for (int kind = 0; kind < int(conversionKinds.size()); ++kind)
            QCOMPARE(conversionTitles(kind).size(), qsizetype(conversionKinds[std::size_t(kind)].conversions.size()));
    }

    void panel()
    {
        test::RecordingShell shell;
        auto &controller = ConverterController::sharedInstance();
        QVERIFY(!controller.isVisible());
        controller.toggleConverter();
        QVERIFY(controller.isVisible());
        QCOMPARE(Preferences::shared().value(preference::convertVisible), true);
        auto *panel = shell.window.findChild<QDialog *>(QStringLiteral("convertWindow"));
        auto *value = panel->findChild<QLineEdit *>(QStringLiteral("convertValueField"));
        auto *result = panel->findChild<QLineEdit *>(QStringLiteral("convertResultField"));
        QTest::keyClicks(value, QStringLiteral("25") + QLocale().decimalPoint() + QStringLiteral("5"));
        panel->findChild<QComboBox *>(QStringLiteral("convertPopup"))->setCurrentIndex(1);
        QCOMPARE(result->text(), QLocale().toString(77.9));
        panel->findChild<QComboBox *>(QStringLiteral("typePopup"))->setCurrentIndex(3);
        QCOMPARE(panel->findChild<QComboBox *>(QStringLiteral("convertPopup"))->count(), 4);
        QCOMPARE(result->text(), QLocale().toString(2.36895));
        value->setText(QStringLiteral("much"));
        QCOMPARE(result->text(), QStringLiteral("0"));

        panel->close();
        QCOMPARE(Preferences::shared().value(preference::convertVisible), false);
        controller.displayWithoutKey();
        QVERIFY(controller.isVisible());
        controller.toggleConverter();
        QVERIFY(!controller.isVisible());
        ConverterController::destroyShared();
    }
};

BRINEMARK_TEST(QApplication, TestUnitConversion)
#include "tst_unit_conversion.moc"
