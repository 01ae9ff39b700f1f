// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "model/TankFile.h"
#include "support/Files.h"
#include "support/Python.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace brinemark;
using brinemark::test::bytesOf;

namespace
{

QString good(const QString &name)
{
    return QStringLiteral(BRINEMARK_TEST_DATA "/tanks/") + name;
}

/// A tank list read from a file.
struct Document {
    TankList tanks;
    TankFileContent content;
    TankFileResult result;

    explicit Document(const QString &path, const TankFileCallbacks &callbacks = {})
        : content(readTankDictionary(path))
    {
        if (content.ok)
            result = readTanks(content.root, path, tanks, callbacks);
    }
    [[nodiscard]] Tank &tank(int index) const { return *tanks.at(index); }
};

/// The property list with the value at a path of keys and indices replaced.
plist::Value replaced(const plist::Value &list, QStringList path, const plist::Value &value)
{
    if (path.isEmpty())
        return value;
    const QString step = path.takeFirst();
    if (const plist::Array *array = list.array()) {
        plist::Array copy = *array;
        plist::Value &element = copy.at(step.toUInt());
        element = replaced(element, path, value);
        return copy;
    }
    plist::Dict copy = *list.dict();
    copy.insert(step, replaced(*copy.find(step), path, value));
    return copy;
}

} // namespace

class TankFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void brokenFiles_data()
    {
        QTest::addColumn<QJsonObject>("expected");
        const QJsonObject all =
            QJsonDocument::fromJson(bytesOf(QStringLiteral(BRINEMARK_TEST_DATA "/broken/expected.json"))).object();
        QVERIFY(all.size() > 200);
        for (auto it = all.begin(); it != all.end(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.value().toObject();
    }

    void brokenFiles()
    {
        QFETCH(QJsonObject, expected);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        QString path = QStringLiteral(BRINEMARK_TEST_DATA "/broken/") + name;
        const QTemporaryDir folder;
        if (const QJsonObject parts = expected.value(u"generate").toObject(); !parts.isEmpty()) {
            path = folder.filePath(name);
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            const int levels = parts.value(u"levels").toInt();
            file.write(parts.value(u"before").toString().toUtf8());
            file.write(parts.value(u"open").toString().repeated(levels).toUtf8());
            file.write(parts.value(u"close").toString().repeated(levels).toUtf8());
            file.write(parts.value(u"after").toString().toUtf8());
        }
        QVERIFY(QFile::exists(path));

        TankList tanks;
        tanks.append(std::make_shared<Tank>(QStringLiteral("Old")));
        bool asked = false;
        TankFileCallbacks callbacks;
        callbacks.wantsBackup = [&] {
            asked = true;
            return false;
        };
        const TankFileContent content = readTankDictionary(path);
        TankFileResult result;
        result.refused = !content.ok;
        if (content.ok)
            result = readTanks(content.root, path, tanks, callbacks);

        const QString outcome = result.ok        ? QStringLiteral("reads")
                                : result.refused ? QStringLiteral("refused")
                                                 : QStringLiteral("read-error");
        QVERIFY2(outcome == expected.value(u"outcome").toString(),
                 qPrintable(outcome + QStringLiteral(": ") + content.error + result.error));
        QCOMPARE(asked, expected.value(u"question").toBool());
        if (outcome == u"refused") {
            QCOMPARE(tanks.count(), 1);
            QCOMPARE(tanks.at(0)->name, QStringLiteral("Old"));
        } else {
            QCOMPARE(tanks.count(), expected.value(u"tanks").toInt());
            QCOMPARE(result.tanksBuilt, tanks.count());
        }
        if (expected.contains(u"notes"))
            QCOMPARE(tanks.at(tanks.count() - 1)->note()->count(), expected.value(u"notes").toInt());

        // Every file that is read can be saved and read again.
        if (result.ok) {
            const plist::Dict root = tankFileDictionary(tanks, 0, 1);
            const auto saved = plist::readXml(plist::writeXml(root));
            QVERIFY(saved);
            TankList again;
            QVERIFY(readTanks(*saved.value.dict(), path, again).ok);
            QCOMPARE(again.count(), tanks.count());
        }
    }

    void filesWithoutAttributes()
    {
        const Document three(good(QStringLiteral("three-tanks-no-attributes.xml")));
        QCOMPARE(three.tanks.count(), 2);
        QVERIFY(three.result.ok && three.result.leftOut);
        // A dictionary tank needs the version that older files lack.
        const Document mixed(good(QStringLiteral("older-mixed-dict.xml")));
        QCOMPARE(mixed.tanks.count(), 1);
        QVERIFY(!mixed.result.ok);
    }

    void savedFilesReadTheSameElsewhere()
    {
        const QTemporaryDir folder;
        const QString saved = folder.filePath(QStringLiteral("saved.xml"));
        for (const QString &path : {good("every-field.xml"), good("three-tanks.xml")}) {
            const Document document(path);
            QVERIFY2(document.result.ok, qPrintable(document.content.error + document.result.error));
            QVERIFY(document.tank(0).bundleVersion);
            QVERIFY(writeTankDictionary(saved, tankFileDictionary(document.tanks, document.result.selectedRow,
                                                                  *document.tank(0).bundleVersion))
                        .ok);
            const test::PythonRun python =
                test::runPython({QStringLiteral(BRINEMARK_TEST_DATA "/../model/compare-tank-files"), path, saved});
            QVERIFY2(python.exitCode == 0, (path.toUtf8() + python.output + python.errors).constData());
        }
    }

    void keysFromBeforeAParameter()
    {
        const Document old(good(QStringLiteral("no-alkalinity.xml")));
        const ConditionData &test = *old.tank(0).conditionListArray().at(0);
        QCOMPARE(test.iron, 0.0F);
        QCOMPARE(test.dioxide, -1);
        QCOMPARE(test.magnesium, -1);
        QCOMPARE(test.ph, 5.0F);

        const Document lacking(good(QStringLiteral("no-magnesium.xml")));
        const TankData &target = *lacking.tank(0).magnesiumData();
        QCOMPARE(target.name, text("Magnesium"_key));
        QCOMPARE(target.preferredValue, 0.0F);
        QVERIFY(!target.warningOn && !target.deviationOn);

        const Document minimal(good(QStringLiteral("minimal.xml")));
        QVERIFY(minimal.tank(0).phData()->name.isNull());
        QCOMPARE(minimal.tank(0).magnesiumData()->name, text("Magnesium"_key));
        QVERIFY(!minimal.tank(0).freshwater);
        QCOMPARE(minimal.tank(0).expenseCategoryArray, defaultExpenseCategories());
        QCOMPARE(minimal.tank(0).bundleVersion, std::optional<qint64>(1));
    }

    void datesKeepTheirZone()
    {
        const Document document(good(QStringLiteral("foreign-zone.xml")));
        QCOMPARE(document.tank(0).note()->count(), 5);
        for (const auto &note : document.tank(0).noteListArray())
            QCOMPARE(*fileValue(*note, u"Date").string(), QStringLiteral("2025-12-31 23:59:59 ") + note->note);
    }

    void hardnessLosesItsFraction()
    {
        const Document document(good(QStringLiteral("hardness-fraction.xml")));
        const auto saved = tankFileDictionary(document.tanks, 0, 1);
        TankList again;
        QVERIFY(readTanks(saved, {}, again).ok);
        QList<float> read, reread;
        for (const auto &fish : document.tank(0).fishListArray())
            read << fish->gHardness;
        for (const auto &fish : again.at(0)->fishListArray())
            reread << fish->gHardness;
        QCOMPARE(read, QList<float>({7.9F, 0.5F, -3.9F, 12.0F}));
        QCOMPARE(reread, QList<float>({7.0F, 0.0F, -3.0F, 12.0F}));
    }

    void intervals()
    {
        const Document off(good(QStringLiteral("schedule-auto-off.xml")));
        QCOMPARE(off.tank(0).scheduleListArray().at(0)->nextDate, 0.0F);
        const Document exponent(good(QStringLiteral("interval-exponent.xml")));
        QCOMPARE(exponent.tank(0).scheduleListArray().at(0)->nextDate, 31449600.0F);
    }

    void listsSortOnReading()
    {
        const Document document(good(QStringLiteral("sorted-lists.xml")));
        const auto notes = [&](int tank) {
            return test::listOf(document.tank(tank).noteListArray(), &NoteData::note).join(u' ');
        };
        QCOMPARE(notes(0), QStringLiteral("Apple Banana melon zucchini"));
        QCOMPARE(notes(1), QStringLiteral("zucchini melon Banana Apple"));
        QCOMPARE(notes(2), QStringLiteral("zucchini melon Apple Banana"));
        QVERIFY(!document.tank(1).note()->sortAscending());
        QCOMPARE(document.tank(0).conditionListArray().at(0)->ph, -1.0F);
        QCOMPARE(document.tank(1).conditionListArray().at(0)->ph, 8.1F);

        const Fish &fish = *document.tank(6).fish();
        QCOMPARE(fish.fishArray().at(0)->name, QStringLiteral("Mu"));
        QCOMPARE(fish.sortIdentifier(), QString());
        QVERIFY(fish.sortAscending());
    }

    void columns()
    {
        const Document document(good(QStringLiteral("columns.xml")));
        const auto textOf = [](const ColumnInfo &column) -> QString {
            return column.identifier + u'=' + QString::number(column.width);
        };
        const auto identifiers = [&](int tank) {
            return test::listOf(document.tank(tank).condition()->columnInfoArray(), textOf).join(u' ');
        };
        QCOMPARE(identifiers(0), QStringLiteral("date=120 ph=60.5"));
        QCOMPARE(identifiers(3), QStringLiteral("date=90 banana=50 =10 PH=40 kH=40"));
        QCOMPARE(identifiers(4), QString());
        QCOMPARE(identifiers(5), QStringLiteral("date=90 ph=55"));
        QCOMPARE(document.tank(6).condition()->columnInfoArray().size(), std::size_t(18));
    }

    void numbersInPlaceOfTexts()
    {
        const Document numbers(good(QStringLiteral("integers-as-numbers.xml")));
        const Document texts(good(QStringLiteral("three-tanks.xml")));
        QVERIFY(numbers.result.ok);
        QVERIFY(tankFileDictionary(numbers.tanks, 2, 1) == tankFileDictionary(texts.tanks, 2, 1));
    }

    void datesAndTextsOfAnotherNotation()
    {
        const QDateTime noon(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
        const QString noonText = QStringLiteral("2026-03-01 13:00:00 +0100"); // the tests run in Europe/Berlin
        Tank written(QStringLiteral("T"));
        written.note()->appendRecord(std::make_shared<NoteData>(&written));
        written.expense()->appendRecord(std::make_shared<ExpenseData>(&written));
        const QList<std::pair<QString, plist::Value>> changes{
            {QStringLiteral("TankLists/TankNote/0/Date"), noon},
            {QStringLiteral("TankLists/TankExpense/0/Type"), noon},
            {QStringLiteral("TankLists/TankExpense/0/Amount"), QStringLiteral("9.5")},
            {QStringLiteral("TankProperties/Name"), qint64(7)},
            {QStringLiteral("TankProperties/ExpenseCategories/0"), 2.5},
            {QStringLiteral("TankProperties/ExpenseCategories/1"), true},
        };
        plist::Value dict = written.tankDictionary();
        for (const auto &[path, value] : changes)
            dict = replaced(dict, path.split(u'/'), value);

        const auto tank = Tank::fromDict(*dict.dict());
        QCOMPARE(tank->noteListArray().at(0)->date, noon);
        QCOMPARE(*fileValue(*tank->noteListArray().at(0), u"Date").string(), noonText);
        QCOMPARE(tank->expenseListArray().at(0)->type, noonText);
        QCOMPARE(tank->expenseListArray().at(0)->amount.toDouble(), 9.5);
        QCOMPARE(tank->name, QStringLiteral("7"));
        QCOMPARE(tank->expenseCategoryArray.mid(0, 2), QStringList({QStringLiteral("2.5"), QStringLiteral("1")}));
    }

    void versionOfAnyKind()
    {
        plist::Dict root = readTankDictionary(good(QStringLiteral("three-tanks.xml"))).root;
        for (const plist::Value &version : {plist::Value(plist::Array{}), plist::Value(true),
                                            plist::Value(QDateTime(QDate(2026, 1, 1), QTime(0, 0)))}) {
            root.insert(QStringLiteral("FileAttributes"), plist::Dict{{QStringLiteral("bundleVersion"), version}});
            TankList tanks;
            const TankFileResult result = readTanks(root, {}, tanks);
            QVERIFY2(result.ok, qPrintable(result.error));
            QCOMPARE(tanks.count(), 3);
        }
    }

    void olderTanks()
    {
        const Document six(good(QStringLiteral("older-six.xml")));
        const Tank &tank = six.tank(0);
        for (const Container *container : tank.tankItemsArray()) {
            // The containers of the older form.
            const bool known = QList{ContainerKind::Fish, ContainerKind::Condition, ContainerKind::Schedule,
                                     ContainerKind::Inventory, ContainerKind::Note}
                                   .contains(container->kind());
            QCOMPARE(container->count(), known ? 1 : 0);
        }
        QCOMPARE(tank.inventory()->sortIdentifier(), QStringLiteral("item"));
        QVERIFY(tank.tankExpanded && tank.fishExpanded && tank.freshwater);
        QCOMPARE(tank.tempData()->preferredValue, 3.5F);
        QCOMPARE(tank.ironData()->preferredValue, 17.5F);
        QCOMPARE(tank.dioxideData()->name, text("CarbonDioxide"_key));
        QVERIFY(tank.dioxideData()->preferredValue == 0 && !tank.dioxideData()->warningOn);
        QVERIFY(!tank.bundleVersion);
        QCOMPARE(six.tank(1).expenseCategoryArray, QStringList({QStringLiteral("Old one"), QStringLiteral("Old two")}));
        QCOMPARE(tank.expenseCategoryArray, defaultExpenseCategories());

        const Tank defaults(QString{});
        const Document none(good(QStringLiteral("older-no-targets.xml")));
        QCOMPARE(none.tank(0).tempData()->preferredValue, defaults.tempData()->preferredValue);
        QVERIFY(none.tank(0).ammoniaData()->warningOn);

        const Document eight(good(QStringLiteral("older-eight-targets.xml")));
        QCOMPARE(eight.tank(0).kHData()->preferredValue, 9.5F);
        QCOMPARE(eight.tank(0).saltData()->preferredValue, 10.5F);
        QCOMPARE(eight.tank(0).alkalinityData()->name, text("Alkalinity"_key));
        QCOMPARE(eight.tank(0).ironData()->preferredValue, 0.0F);

        const Document seven(good(QStringLiteral("older-seven.xml")));
        QVERIFY(seven.result.ok && seven.result.leftOut && !six.result.leftOut);
        plist::Array longer = *six.content.root.find(u"1")->array();
        for (const bool empty : {true, false}) { // beyond the lists of the older form
            longer.emplace_back(empty ? plist::Array{} : plist::Array{plist::Dict{}});
            QCOMPARE(Tank::fromArrayLeavesOut(longer), !empty);
        }
        QVERIFY(seven.tank(0).tankItemsArray().empty());
        QVERIFY(seven.tank(0).fish()->isEmpty());
        QCOMPARE(seven.tank(0).ironData()->preferredValue, 17.5F);
        TankList again;
        QVERIFY(readTanks(tankFileDictionary(seven.tanks, 0, 1), {}, again).ok);
        QCOMPARE(again.at(0)->tankItemsArray().size(), std::size_t(9));
    }

    void backupOfAnOlderFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("My tanks.xml"));
        QVERIFY(QFile::copy(good(QStringLiteral("older-six.xml")), path));
        const QByteArray before = bytesOf(path);
        const QString backup = folder.filePath(text("ConvertBackup"_key) + QStringLiteral(" My tanks.xml"));
        bool wanted = false;
        TankFileCallbacks callbacks;
        callbacks.wantsBackup = [&] { return wanted; };

        QVERIFY(Document(path, callbacks).result.ok);
        QVERIFY(!QFile::exists(backup));
        wanted = true;
        QVERIFY(Document(path, callbacks).result.ok);
        QCOMPARE(bytesOf(backup), before);
        QCOMPARE(bytesOf(path), before);

        // A second copy fails silently, and the first one stays.
        QVERIFY(QFile::remove(path) && QFile::copy(good(QStringLiteral("older-no-targets.xml")), path));
        QVERIFY(Document(path, callbacks).result.ok);
        QCOMPARE(bytesOf(backup), before);
    }

    void callbacksInOrder()
    {
        QStringList calls;
        TankFileCallbacks callbacks;
        callbacks.wantsBackup = [&] {
            calls << QStringLiteral("question");
            return false;
        };
        callbacks.willReplaceTanks = [&] { calls << QStringLiteral("replace"); };
        callbacks.progress = [&](int tank, int count) { calls << QStringLiteral("%1/%2").arg(tank).arg(count); };
        callbacks.tankBuilt = [&](const std::shared_ptr<Tank> &tank) { calls << tank->name; };
        const Document document(good(QStringLiteral("three-tanks.xml")), callbacks);
        QCOMPARE(document.result.selectedRow, 2);
        QCOMPARE(calls.join(u' '), QStringLiteral("replace 0/3 Alpha 1/3 Beta 2/3 Gamma"));
    }

    void writesAndReadsBack()
    {
        TankList tanks;
        for (int i = 1; i <= 12; ++i)
            tanks.append(std::make_shared<Tank>(QStringLiteral("Tank %1").arg(i)));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("tanks.xml"));
        const WriteResult written = writeTankDictionary(path, tankFileDictionary(tanks, -1, 0x01008000));
        QVERIFY(written.ok);
        QVERIFY(!changedOnDisk(path, written.stamp));

        const Document read(path);
        QVERIFY(read.result.ok);
        QCOMPARE(read.result.selectedRow, -1);
        QCOMPARE(read.tanks.count(), 12);
        // By number, not by text: "10" does not come before "2".
        QCOMPARE(read.tank(9).name, QStringLiteral("Tank 10"));
        QCOMPARE(read.tank(0).bundleVersion, std::optional<qint64>(0x01008000));
        const plist::Dict &attributes = *read.content.root.find(u"FileAttributes")->dict();
        QVERIFY(attributes.find(u"metaNotes")->string()->startsWith(text("Aquarium"_key)));
        QCOMPARE(attributes.find(u"metaKeywords")->array()->size(), std::size_t(24));
        QVERIFY(!read.content.root.find(u"1")->dict()->contains(u"bundleVersion"));
    }

    void recognition()
    {
        const QString broken = QStringLiteral(BRINEMARK_TEST_DATA "/broken/");
        for (const QString &path :
             {QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml"), good("three-tanks-no-attributes.xml"),
              good("older-six.xml"), good("minimal.xml"), broken + "utf-16.xml", broken + "byte-order-mark.xml",
              broken + "comments.xml", broken + "one-line.xml"})
            QVERIFY2(looksLikeTankFile(path), qPrintable(path));
        for (const char *name : {"empty.xml", "html.xml", "random-bytes.xml", "root-array.xml", "root-string.xml",
                                 "expected.json", "", "no-such-file.xml"})
            QVERIFY2(!looksLikeTankFile(broken + name), name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.xml"));
        const auto taken = [&](const QByteArray &content) {
            return test::writeFile(path, "<plist><dict>" + content + "</dict></plist>") && looksLikeTankFile(path);
        };
        const QByteArray attributes = "<key>FileAttributes</key><dict><key>x</key><array/></dict>";
        for (const QByteArray &content : {QByteArray("<key>1</key><array/><key>x</key>"), attributes,
                                          attributes + "<key>3</key><dict>", attributes.left(45)})
            QVERIFY2(taken(content), content);
        for (const QByteArray &content :
             {QByteArray(), QByteArray("<key>1</key><string>hello</string>"), QByteArray("<key>01</key><dict/>"),
              QByteArray("<key>FileAttributes</key><string/>"), attributes + "<key>x</key><integer>1</integer>",
              attributes + "<key>1</key><true/>"})
            QVERIFY2(!taken(content), content);
    }
};

BRINEMARK_TEST(QGuiApplication, TankFileTest)
#include "tst_tank_file.moc"
