// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "model/KeyAccess.h"
#include "model/ObjectSpecifier.h"

using namespace brinemark;

namespace
{

std::shared_ptr<FishData> fishNamed(const char *name, Tank *tank = nullptr)
{
    return std::make_shared<FishData>(QString::fromLatin1(name), tank);
}

QString namesOf(const Tank &tank)
{
    return test::listOf(tank.fishListArray(), &FishData::name).join(u' ');
}

} // namespace

class TankTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newTank()
    {
        const Tank tank(QStringLiteral("Reef"));
        for (const Container *container : tank.tankItemsArray()) {
            QVERIFY(container->isEmpty() && container->sortAscending());
            QCOMPARE(container->tank(), &tank);
        }
        QCOMPARE(tank.fish()->sortIdentifier(), QString());
        QCOMPARE(tank.inventory()->sortIdentifier(), QStringLiteral("count"));
        QCOMPARE(tank.note()->sortIdentifier(), QStringLiteral("date"));
        QVERIFY(tank.freshwater && !tank.bundleVersion);
        QCOMPARE(tank.expenseCategoryArray,
                 QStringList({text("FishName"_key), text("PlantName"_key), text("InvertName"_key),
                              text("CoralName"_key), text("ExpenseDefaultEquipmentItem"_key)}));
        QCOMPARE(tank.condition()->columnInfoArray().front().identifier, QStringLiteral("date"));
    }

    void insertingByTheDestinationsTest()
    {
        test::AppTanks tanks;
        const auto first = tanks.add(QStringLiteral("First"));
        const auto second = tanks.add(QStringLiteral("Second"));
        const auto a = fishNamed("a");
        for (const char *name : {"x", "y"}) {
            first->insertInFishListArray(fishNamed(name), 99);
            second->insertInFishListArray(fishNamed(name), 99);
        }
        first->insertItemData(a, u"fishListArray", 1);
        QCOMPARE(namesOf(*first), QStringLiteral("x a y"));

        // A record that the destination lacks also stays in its old list.
        second->insertItemData(a, u"fishListArray", 0);
        QCOMPARE(namesOf(*first), QStringLiteral("x a y"));
        QCOMPARE(namesOf(*second), QStringLiteral("a x y"));
        QCOMPARE(a->tank.get(), second.get());

        // A record that the destination holds is removed from the first tank and inserted a second time.
        second->insertItemData(a, u"fishListArray", 3);
        QCOMPARE(namesOf(*first), QStringLiteral("x y"));
        QCOMPARE(namesOf(*second), QStringLiteral("a x y a"));

        // A record without a tank is removed nowhere.
        a->tank = nullptr;
        second->insertItemData(a, u"fishListArray", 1);
        QCOMPARE(namesOf(*second), QStringLiteral("a a x y a"));
    }

    void insertingMovesWithinTheFirstTank()
    {
        test::AppTanks tanks;
        const auto tank = tanks.add(QStringLiteral("First"));
        const auto a = fishNamed("a");
        for (const auto &fish : {a, fishNamed("b"), a, fishNamed("c")})
            tank->fish()->appendRecord(fish);
        a->tank = tank.get();
        tank->insertItemData(a, u"fishListArray", 2);
        QCOMPARE(namesOf(*tank), QStringLiteral("b c a"));
        tank->insertItemData(a, u"fishListArray", 0);
        QCOMPARE(namesOf(*tank), QStringLiteral("a b c"));
    }

    void everyListByItsKey_data()
    {
        QTest::addColumn<int>("kind");
        for (const ContainerTraits &traits : containerTraitsTable)
            QTest::newRow(qPrintable(traits.listKey.toString())) << int(traits.kind);
    }

    void everyListByItsKey()
    {
        QFETCH(int, kind);
        const ContainerTraits &traits = traitsOf(ContainerKind(kind));
        test::AppTanks tanks;
        const auto tank = tanks.add(QStringLiteral("T"));
        test::NoticeLog log;

        const auto first = test::newRecord(traits.kind);
        const auto second = test::newRecord(traits.kind);
        QCOMPARE(containerKindOf(*first), std::optional(traits.kind));
        tank->insertInList(traits.kind, first, 7);
        tank->insertInList(traits.kind, second, 0);
        QCOMPARE(tank->containerForListKey(traits.listKey)->recordAt(0), second);
        QCOMPARE(tank->container(traits.kind)->indexOf(first.get()), 1);
        tank->removeFromListAtIndex(traits.kind, 1);
        QCOMPARE(tank->container(traits.kind)->count(), 1);
        QCOMPARE(first->tank.get(), tank.get());

        const QString behind = QStringLiteral(" T ") + traits.listKey.toString();
        const QString gained = (traits.isLivestock() ? QStringLiteral("livestock") : QStringLiteral("gained")) + behind;
        const QString lost = (traits.isLivestock() ? QStringLiteral("livestock") : QStringLiteral("lost")) + behind;
        QCOMPARE(log.notices, QStringList({gained, gained, lost}));
    }

    void observersComeAndGo()
    {
        // The first observer deletes the second during a notice.
        struct Remover : ModelObserver {
            std::unique_ptr<test::NoticeLog> other;
            void livestockChanged(Tank &, ContainerKind) override { other.reset(); }
        };
        Remover remover;
        remover.other = std::make_unique<test::NoticeLog>();
        Tank tank(QStringLiteral("T"));
        tank.insertInFishListArray(fishNamed("a"), 0);
        QVERIFY(!remover.other);
        tank.insertInFishListArray(fishNamed("b"), 0);
        QCOMPARE(tank.fish()->count(), 2);
    }

    void recordsOutliveTheirTank()
    {
        auto tank = std::make_shared<Tank>(QStringLiteral("T"));
        const auto held = fishNamed("held", tank.get());
        const auto removed = fishNamed("removed");
        const auto target = std::make_shared<TankData>();
        tank->setTarget(Parameter::Ph, target);
        tank->insertInFishListArray(held, 0);
        tank->insertInFishListArray(removed, 0);
        tank->removeFromFishListArrayAtIndex(0);
        QVERIFY(held->tank && removed->tank && target->tank);
        tank.reset();
        QVERIFY(!held->tank);
        QVERIFY(!removed->tank);
        QVERIFY(!target->tank);
        QVERIFY(!recordDict(*held).contains(u"Parent"));
    }

    void searchMetadata()
    {
        Tank tank(QStringLiteral("Reef"));
        tank.size = QStringLiteral("200 l");
        QCOMPARE(tank.metaTankArray(), QStringList({QStringLiteral("Reef"), QStringLiteral("200 l")}));
        const QString end = text("Aquarium"_key) + QStringLiteral(", ");
        QCOMPARE(tank.metaTankString(), end);

        const auto name = [](const std::shared_ptr<ItemData> &item, const char *common, const char *scientific) {
            item->name = QString::fromLatin1(common);
            item->sciName = QString::fromLatin1(scientific);
            return item;
        };
        tank.fish()->appendRecord(name(makeItemData(ItemContext::Fish, nullptr), "f1", "F1"));
        tank.fish()->appendRecord(name(makeItemData(ItemContext::Fish, nullptr), "f2", "F2"));
        tank.plant()->appendRecord(name(makeItemData(ItemContext::Plant, nullptr), "p", "P"));
        tank.invert()->appendRecord(name(makeItemData(ItemContext::Invert, nullptr), "i", "I"));
        tank.coral()->appendRecord(name(makeItemData(ItemContext::Coral, nullptr), "c", "C"));
        QCOMPARE(tank.metaTankArray().join(u'|'),
                 QStringLiteral("Reef|200 l|f1|F1|f2|F2|%1|c|C|%2|i|I|%3|p|P|%4")
                     .arg(tank.fish()->name(), tank.coral()->name(), tank.invert()->name(), tank.plant()->name()));

        const auto append = [&](Container *list, QStringView key, const QString &value) {
            const auto record = test::newRecord(list->kind());
            QVERIFY(setValueForKey(*record, key, value));
            list->appendRecord(record);
        };
        for (int i = 1; i <= 7; ++i)
            append(tank.expense(), u"expense", QStringLiteral("e%1").arg(i));
        append(tank.schedule(), u"activity", "s");
        append(tank.note(), u"note", "n");
        append(tank.inventory(), u"item", "v");
        QCOMPARE(tank.metaTankString(), QStringLiteral("s, n, v, e1, e2, e3, e4, e5, ") + end);
    }

    void addresses()
    {
        test::AppTanks tanks;
        tanks.add(QStringLiteral("First"));
        const auto tank = tanks.add(QStringLiteral("Second"));
        tank->insertInFishListArray(fishNamed("a"), 0);
        const auto fish = fishNamed("b");
        tank->insertInFishListArray(fish, 1);

        const auto address = objectSpecifier(*fish);
        QVERIFY(address);
        QCOMPARE(address->key, QStringLiteral("fishListArray"));
        QCOMPARE(address->index, std::optional(1));
        QCOMPARE(address->parent->key, QStringLiteral("appTankList"));
        QCOMPARE(address->parent->index, std::optional(1));
        QVERIFY(!address->parent->parent);
        QCOMPARE(objectSpecifier(*tank->phData())->key, QStringLiteral("tankData"));

        QVERIFY(!objectSpecifier(*fishNamed("without a tank")));
        tank->removeFromFishListArrayAtIndex(1);
        QVERIFY(!objectSpecifier(*fish));
        tanks.removeAt(1);
        QVERIFY(!objectSpecifier(*tank));
    }
};

BRINEMARK_TEST(QGuiApplication, TankTest)
#include "tst_tank.moc"
