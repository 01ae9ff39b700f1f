// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tree/TreeDropRules.h"
#include "model/LivestockData.h"
#include "model/TankList.h"
#include "support/TestProgram.h"

#include <QGuiApplication>

using namespace brinemark;
using brinemark::test::row;

Q_DECLARE_METATYPE(brinemark::DropOperation)

namespace
{

/// Three tanks, A, B and C; A and B hold six fish each, "A0" to "A5" and "B0" to "B5", and A a plant.
struct Tanks : TankList {
    Tanks()
    {
        for (const char *name : {"A", "B", "C"}) {
            append(std::make_shared<Tank>(QLatin1String(name)));
            Tank &tank = *at(count() - 1);
            for (int i = 0; i < 6 && tank.name != "C"; ++i)
                tank.fish()->appendRecord(std::make_shared<FishData>(tank.name + QString::number(i), &tank));
        }
        at(0)->plant()->appendRecord(std::make_shared<PlantData>(QStringLiteral("plant"), at(0).get()));
    }

    Tank &named(QChar name) const
    {
        for (const auto &tank : *this) {
            if (tank->name == name)
                return *tank;
        }
        qFatal("no such tank");
    }

    /// "B": a tank; "A/fish", "A/note": a container; "A3": a fish; "A/plant/0": the plant; empty: no row.
    TreeItem row(const QString &path) const
    {
        if (path.isEmpty())
            return {};
        Tank &tank = named(path[0]);
        if (path.size() == 1)
            return TreeItem(tank);
        if (path[1] != '/')
            return TreeItem(*tank.fishListArray()[std::size_t(path[1].digitValue())]);
        if (path == "A/plant/0")
            return TreeItem(*tank.plantListArray()[0]);
        return TreeItem(path.endsWith("fish")    ? *static_cast<Container *>(tank.fish())
                        : path.endsWith("plant") ? *static_cast<Container *>(tank.plant())
                                                 : *static_cast<Container *>(tank.note()));
    }

    QString order() const { return test::listOf(*this, &Tank::name).join(QString()); }
};

QStringList fishOf(const Tank &tank)
{
    return test::listOf(tank.fishListArray(), &FishData::name);
}

} // namespace

class TestTreeDropRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordValidation_data()
    {
        // index: -1 on the row itself
        test::columns<QString, QString, int, Qt::DropActions, DropOperation>("dragged", "parent", "index", "allowed",
                                                                             "expected");

        const Qt::DropActions any = Qt::CopyAction | Qt::MoveAction;
        const Qt::DropActions copy = Qt::CopyAction;
        const auto refused = DropOperation::Refused;
        const auto move = DropOperation::Move;
        row("on its own group", "A0", "A/fish", -1, any, refused);
        row("on another record", "A0", "A3", -1, any, refused);
        row("among its own", "A0", "A/fish", 3, any, move);
        row("among another tank's", "A0", "B/fish", 6, any, move);
        row("into an empty group", "A0", "C/fish", 0, any, move);
        row("below a record", "A0", "B2", 0, any, move);
        row("below a record of another kind", "A0", "A/plant/0", 0, any, move);
        row("in a group of another kind", "A0", "A/plant", 0, any, refused);
        row("in a journal", "A0", "A/note", 0, any, refused);
        row("among a tank's containers", "A0", "B", 1, any, refused);
        row("among the tanks", "A0", "", 1, any, refused);
        row("copy only", "A0", "B/fish", 1, copy, DropOperation::Copy);
        row("copy only, own tank", "A0", "A/fish", 1, copy, DropOperation::Copy);
        row("move only", "A0", "B/fish", 1, Qt::DropActions(Qt::MoveAction), move);
        row("copy only, wrong kind", "A0", "B/plant", 0, copy, refused);
    }

    void recordValidation()
    {
        const auto [dragged, parent, index, allowed] =
            test::fetch<QString, QString, int, Qt::DropActions>("dragged", "parent", "index", "allowed");
        const Tanks tanks;
        const DropProposal proposal{tanks.row(parent), index < 0 ? std::nullopt : std::optional(index)};
        QTEST(validateRecordDrop(*tanks.row(dragged).record, proposal, allowed), "expected");
    }

    void recordLanding_data()
    {
        test::columns<QString, QString, int, bool, QString, QString>("dragged", "parent", "index", "copies", "inA",
                                                                     "inB");

        const QString allB = "B0 B1 B2 B3 B4 B5";
        const auto within = [&](const char *name, const char *dragged, int index, const char *inA,
                                bool copies = false) {
            QTest::newRow(name) << dragged << "A/fish" << index << copies << inA << allB;
        };
        within("at 3 from before it", "A0", 3, "A1 A2 A0 A3 A4 A5");
        within("at 3 from behind it", "A5", 3, "A0 A1 A5 A2 A3 A4");
        within("at 0", "A4", 0, "A4 A0 A1 A2 A3 A5");
        within("at 0 from 0", "A0", 0, "A0 A1 A2 A3 A4 A5");
        within("at the end from the start", "A0", 6, "A1 A2 A3 A4 A5 A0");
        within("without an index", "A1", -1, "A0 A2 A3 A4 A5 A1");
        within("copied at 3", "A0", 3, "A0 A1 A0 A2 A3 A4 A5", true);

        const auto across = [&](const char *name, const char *parent, int index, const char *inA, const char *inB,
                                bool copies = false) {
            QTest::newRow(name) << "A2" << parent << index << copies << inA << inB;
        };
        const char *rest = "A0 A1 A3 A4 A5";
        across("across, not shifted", "B/fish", 3, rest, "B0 B1 B2 A2 B3 B4 B5");
        across("across, past the end", "B/fish", 60, rest, "B0 B1 B2 B3 B4 B5 A2");
        across("across, without an index", "B/fish", -1, rest, "B0 B1 B2 B3 B4 B5 A2");
        across("across, below a record", "B4", 1, rest, "B0 A2 B1 B2 B3 B4 B5");
        across("across, copied", "B/fish", 1, "A0 A1 A2 A3 A4 A5", "B0 A2 B1 B2 B3 B4 B5", true);
    }

    void recordLanding()
    {
        const auto [dragged, parent, index, copies] =
            test::fetch<QString, QString, int, bool>("dragged", "parent", "index", "copies");
        Tanks tanks;
        const auto fish = std::static_pointer_cast<ItemData>(tanks.row(dragged).record->shared_from_this());
        fish->reefSafe = reefsafe::yes;
        Tank *source = fish->tank;
        const DropProposal proposal{tanks.row(parent), index < 0 ? std::nullopt : std::optional(index)};
        const auto landed = acceptRecordDrop(fish, proposal, copies ? DropOperation::Copy : DropOperation::Move);
        QTEST(fishOf(tanks.named('A')).join(' '), "inA");
        QTEST(fishOf(tanks.named('B')).join(' '), "inB");
        QVERIFY(landed);
        QCOMPARE(landed == fish, !copies);
        QCOMPARE(landed->reefSafe, copies ? reefsafe::unknown : reefsafe::yes); // copying does not keep this field
        QCOMPARE(landed->tank.get(), proposal.parent.tank);
        QCOMPARE(fish->tank.get(), copies ? source : proposal.parent.tank);
        QVERIFY(landed->tank->fish()->contains(landed.get()));
    }

    void refusedDropsMoveNothing()
    {
        Tanks tanks;
        const auto fish = tanks.named('A').fishListArray()[0];
        QVERIFY(!acceptRecordDrop(fish, {tanks.row("B/fish"), 0}, DropOperation::Refused));
        QVERIFY(!acceptRecordDrop(std::make_shared<FishData>(), {tanks.row("B/fish"), 0}, DropOperation::Move));
        QVERIFY(!acceptRecordDrop(fish, {}, DropOperation::Move));
        QCOMPARE(fishOf(tanks.named('A')).size(), 6);
        QCOMPARE(fishOf(tanks.named('B')).size(), 6);
    }

    void tankDrop_data()
    {
        // index: -1 when refused
        test::columns<QString, QString, int, QString>("dragged", "row", "index", "order");

        row("beside the rows", "A", "", -1, "ABC");
        row("its own row", "A", "A", -1, "ABC");
        row("its own fish", "B", "B3", -1, "ABC");
        row("the next tank", "A", "B", 2, "BAC");
        row("a fish of the next tank", "A", "B3", 2, "BAC");
        row("a group of the last tank", "B", "C/fish", 3, "ACB");
        row("behind its predecessor", "B", "A", 1, "ABC");
        row("up, below the first", "C", "A/plant/0", 1, "ACB");
    }

    void tankDrop()
    {
        const auto [dragged, row] = test::fetch<QString, QString>("dragged", "row");
        Tanks tanks;
        Tank &tank = tanks.named(dragged[0]);
        const std::optional<int> index = validateTankDrop(tanks, tank, tanks.row(row));
        QTEST(index.value_or(-1), "index");
        if (index)
            acceptTankDrop(tanks, tank, *index);
        QTEST(tanks.order(), "order");
    }
};

BRINEMARK_TEST(QGuiApplication, TestTreeDropRules)
#include "tst_tree_drop_rules.moc"
