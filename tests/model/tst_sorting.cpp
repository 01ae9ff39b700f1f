// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "model/KeyAccess.h"

using namespace brinemark;

namespace
{

QDateTime day(int number)
{
    return QDateTime(QDate(2026, 1, number), QTime(12, 0), Qt::OffsetFromUTC, 0);
}

} // namespace

/// Each row sorts four records that hold the given values, which are listed in the ascending order.
class SortingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byIdentifier_data()
    {
        test::columns<int, QString, QString, QVariantList>("kind", "identifier", "key", "ascending");
        const auto row = [](ContainerKind kind, const char *identifier, const char *key, const QVariantList &values) {
            QTest::addRow("%s by %s", qPrintable(traitsOf(kind).attributePrefix.toString()), identifier)
                << int(kind) << QString::fromLatin1(identifier) << QString::fromLatin1(key) << values;
        };
        const QVariantList dates{QVariant(), day(2), day(9), day(10)};
        const QVariantList words{QStringLiteral("anubias"), QStringLiteral("Bucket"), QStringLiteral("filter"),
                                 QStringLiteral("Zeolite")};
        row(ContainerKind::Condition, "date", "date", dates);
        row(ContainerKind::Condition, "ph", "ph", {-1.0F, 6.5F, 7.0F, 10.0F});
        row(ContainerKind::Condition, "calcium", "calcium", {-1, 9, 80, 400});
        row(ContainerKind::Expense, "date", "date", dates);
        row(ContainerKind::Expense, "amount", "amount", {-2.5, QVariant(), 9, 10.25});
        row(ContainerKind::Expense, "expense", "expense", words);
        row(ContainerKind::Expense, "type", "type", words);
        row(ContainerKind::Inventory, "item", "item", words);
        row(ContainerKind::Inventory, "count", "count", {-3, 0, 9, 10});
        row(ContainerKind::Note, "date", "date", dates);
        row(ContainerKind::Note, "note", "note", words);
        row(ContainerKind::Schedule, "date", "date", dates);
        row(ContainerKind::Schedule, "next", "date", dates);
        row(ContainerKind::Schedule, "activity", "activity", words);
        row(ContainerKind::Schedule, "complete", "complete", {false, false, true, true});
        row(ContainerKind::Schedule, "autoReschedule", "autoReschedule", {false, false, true, true});
    }

    void byIdentifier()
    {
        QFETCH(QString, key);
        const auto [kind, identifier, ascending] =
            test::fetch<int, QString, QVariantList>("kind", "identifier", "ascending");
        Tank tank(QStringLiteral("T"));
        Container &list = *tank.container(ContainerKind(kind));

        const auto valuesNow = [&] {
            QVariantList values;
            for (int i = 0; i < list.count(); ++i)
                values << valueForKey(*list.recordAt(i), key);
            return values;
        };
        for (const int place : {2, 0, 3, 1}) {
            const auto record = test::newRecord(ContainerKind(kind));
            QVERIFY(setValueForKey(*record, key, ascending.at(place)));
            list.appendRecord(record);
        }

        list.sortWithIdentifier(identifier, true);
        const QVariantList up = valuesNow();
        list.sortWithIdentifier(identifier, false);
        QVariantList down = valuesNow();
        std::reverse(down.begin(), down.end());
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(up.at(i).toString(), ascending.at(i).toString());
            QCOMPARE(down.at(i).toString(), ascending.at(i).toString());
        }
        QCOMPARE(list.sortIdentifier(), identifier);
        QVERIFY(!list.sortAscending());

        // With the stored values.
        list.setSortAscending(true);
        list.sort();
        QCOMPARE(valuesNow(), up);
    }

    /// The interval to the next date counts as on or off: 7 and 3 are equal, and equal records keep their order.
    void intervalsAsFlags()
    {
        Tank tank(QStringLiteral("T"));
        for (const float interval : {7.0F, 0.0F, 3.0F, 0.0F, 5.0F}) {
            tank.schedule()->appendRecord(std::make_shared<ScheduleData>());
            ScheduleData &record = *tank.scheduleListArray().back();
            record.nextDate = interval;
            record.activity = QString::number(tank.schedule()->count());
        }
        const auto order = [&](bool ascending) {
            tank.schedule()->sortWithIdentifier(QStringLiteral("nextDate"), ascending);
            QString activities;
            for (const auto &record : tank.scheduleListArray())
                activities += record->activity;
            return activities;
        };
        QCOMPARE(order(true), QStringLiteral("24135"));
        QCOMPARE(order(false), QStringLiteral("13524"));
    }

    void livestockAndUnknownIdentifiersKeepTheOrder()
    {
        Tank tank(QStringLiteral("T"));
        for (const QString name : {"b", "a", "c"}) {
            tank.fish()->appendRecord(std::make_shared<FishData>(name, &tank));
            tank.note()->appendRecord(std::make_shared<NoteData>());
            tank.noteListArray().back()->note = name;
        }
        tank.fish()->sortWithIdentifier(QStringLiteral("name"), true);
        tank.note()->sortWithIdentifier(QStringLiteral("colour"), true);
        QCOMPARE(test::listOf(tank.fishListArray(), &FishData::name).join(' '), "b a c");
        QCOMPARE(test::listOf(tank.noteListArray(), &NoteData::note).join(' '), "b a c");
    }

    void datesByMomentNotByText()
    {
        Tank tank(QStringLiteral("T"));
        const QDateTime early(QDate(2026, 1, 2), QTime(1, 0), Qt::OffsetFromUTC, 5 * 3600); // 20:00 UTC the day before
        const QDateTime late(QDate(2026, 1, 1), QTime(22, 0), Qt::OffsetFromUTC, 0);
        for (const QDateTime &date : {late, early}) {
            tank.condition()->appendRecord(std::make_shared<ConditionData>());
            tank.conditionListArray().back()->date = date;
        }
        tank.condition()->sortWithIdentifier(QStringLiteral("date"), true);
        QCOMPARE(tank.conditionListArray().front()->date, early);
    }

    /// A file can hold one. It counts as 0 and leaves the others in order.
    void amountThatIsNoNumber()
    {
        Tank tank(QStringLiteral("T"));
        for (const double amount : {9.0, qQNaN(), -2.5, 10.25, qQNaN(), 3.0}) {
            tank.expense()->appendRecord(std::make_shared<ExpenseData>());
            tank.expenseListArray().back()->amount = amount;
        }
        tank.expense()->sortWithIdentifier(QStringLiteral("amount"), false);
        QList<double> sorted;
        for (const auto &expense : tank.expenseListArray())
            sorted << expense->amount.toDouble();
        QCOMPARE(sorted, QList<double>({10.25, 9.0, 3.0, 0.0, 0.0, -2.5}));
    }
};

BRINEMARK_TEST(QGuiApplication, SortingTest)
#include "tst_sorting.moc"
