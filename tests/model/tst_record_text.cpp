// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/DateText.h"
#include "model/LivestockData.h"
#include "model/RecordDict.h"
#include "model/StyledText.h"
#include "model/Tank.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

using namespace brinemark;

class RecordTextTest : public QObject
{
    Q_OBJECT

    const QDateTime m_date{QDate(2026, 3, 1), QTime(18, 30)};

private Q_SLOTS:
    void initTestCase() { setTextLanguages({QStringLiteral("en")}); }

    void livestock()
    {
        PlantData plant{Blank{}};
        plant.name = QStringLiteral("<b>Fern</b> & ^0");
        plant.sciName = QStringLiteral("Leptochilus pteropus");
        plant.family = plant.socialLevel = plant.diet = plant.tankLevel = plant.size = plant.care = plant.breeding =
            plant.lifeSpan = plant.temp = QStringLiteral("x");
        plant.ph = 6.5F;
        plant.gHardness = 7.9F; // files hold whole numbers
        plant.KH = 3.25F;
        plant.count = 4;
        plant.reefSafe = reefsafe::unknown;
        plant.notes = QStringLiteral("Two\nlines");
        const StyledText text = plant.itemDataAttributedString();
        QCOMPARE(text.plainText(),
                 QStringLiteral("Name: <b>Fern</b> & ^0\nScientific name: Leptochilus pteropus\nFamily: x\n"
                                "Traits: x\nDiet: x\nTank level: x\t\tSize: x\nCare: x\n"
                                "Breeding: x\t\tLife span: x\t\tCount: 4\nTemperature: x\n"
                                "pH: 6.5\t\tGH: 7\t\tKH: 3.25\nSalinity: 0\t\tReef safe: unknown\n"
                                "Notes: Two\nlines\n\n"));
        QCOMPARE(text.runs().size(), std::size_t(36));
        for (std::size_t i = 0; i < text.runs().size(); ++i)
            QCOMPARE(text.runs()[i].style, i % 2 == 0 ? TextStyle::Caption : TextStyle::Value);

        QTextDocument document;
        QTextCursor cursor(&document);
        text.insertAt(cursor);
        QCOMPARE(document.toPlainText(), text.plainText());
        cursor.setPosition(2);
        QVERIFY(cursor.charFormat().font().bold());
        cursor.setPosition(8);
        QVERIFY(!cursor.charFormat().font().bold());
        QCOMPARE(cursor.charFormat().font().pointSize(), 10);
    }

    void waterTest()
    {
        Tank tank(QStringLiteral("Reef"));
        ConditionData test(&tank);
        test.date = m_date;
        test.temp = 24.5F;
        test.kH = 0;
        test.calcium = 420;
        tank.condition()->setColumnInfoArray(
            {{"ph", 0}, {"date", 0}, {"calcium", 0}, {"colour", 0}, {"kH", 0}, {"temp", 0}});
        QCOMPARE(test.conditionDataAttributedString().plainText(),
                 QStringLiteral("pH: n/a\t\tDate: %1\t\tCalcium: 420\t\tKH: 0\t\tTemperature: 24.5\t\t\n\n")
                     .arg(localeDateText(m_date)));
        tank.condition()->initColumnInfoArray();
        QCOMPARE(test.conditionDataAttributedString().plainText().count(QStringLiteral("\t\t")), 18);
    }

    void journals()
    {
        const QString date = localeDateText(m_date);
        ExpenseData expense{Blank{}};
        expense.date = m_date;
        expense.amount = 12;
        expense.type = QStringLiteral("Food");
        expense.expense = QStringLiteral("Flakes");
        const QString said = expense.expenseDataAttributedString().plainText();
        QVERIFY(said.startsWith(QStringLiteral("Date: ") + date + QStringLiteral("\nAmount: ")));
        QVERIFY(said.contains(QStringLiteral("12")));
        QVERIFY(said.endsWith(QStringLiteral("\t\tCategory: Food\nExpense: Flakes\n")));

        InventoryData item{Blank{}};
        item.count = -2;
        item.item = QStringLiteral("Net");
        QCOMPARE(item.inventoryDataAttributedString().plainText(), QStringLiteral("Count: -2\nItem: Net\n\n"));

        NoteData note{Blank{}};
        note.note = QStringLiteral("Calm");
        QCOMPARE(note.noteDataAttributedString().plainText(), QStringLiteral("Date: \nNote: Calm\n\n"));

        ScheduleData activity{Blank{}};
        activity.date = m_date;
        activity.activity = QStringLiteral("Filter");
        activity.setAutoReschedule(true);
        QCOMPARE(activity.scheduleDataAttributedString().plainText(),
                 QStringLiteral("Due: %1\nDone: No\t\tRepeats: Yes\nActivity: Filter\n\n").arg(date));
    }
};

BRINEMARK_TEST(QGuiApplication, RecordTextTest)
#include "tst_record_text.moc"
