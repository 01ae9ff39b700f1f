// SPDX-License-Identifier: GPL-3.0-or-later

#include "ModelTest.h"

#include "model/KeyAccess.h"
#include "model/RecordDict.h"

#include <QBuffer>
#include <QSet>

using namespace brinemark;
using brinemark::test::row;

namespace
{

QByteArray picture(int seed)
{
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(QColor(seed, 100, 50));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// Sets a member to a value that differs from a blank record's and from that of any other place.
void distinct(float &member, int place)
{
    member = float(place) + 0.5F;
}
void distinct(qint32 &member, int place)
{
    member = place + 100;
}
void distinct(bool &member, int)
{
    member = true;
}
void distinct(QString &member, int place)
{
    member = QStringLiteral("text %1 äöü <&>").arg(place);
}
void distinct(QDateTime &member, int place)
{
    member = QDateTime(QDate(2024, 2, place + 1), QTime(23, 59, place), Qt::OffsetFromUTC, -5 * 3600);
}
void distinct(Amount &member, int place)
{
    member = place + 0.25;
}
void distinct(ItemImage &member, int place)
{
    member = ItemImage(picture(place));
}

template <class R>
void fill(R &record)
{
    int place = 0;
    for (const Field<R> &field : FieldTable<R>::fields) {
        ++place;
        std::visit([&](auto member) { distinct(record.*member, place); }, field.member);
    }
}

template <class R>
bool sameField(const R &a, const R &b, const Field<R> &field)
{
    return std::visit([&](auto member) { return a.*member == b.*member; }, field.member);
}

/// Every byte of the struct behind its base belongs to a field of the table or is the padding that alignment asks for.
template <class R>
void checkTableCoversStruct()
{
    struct Place {
        std::size_t offset, size, alignment;
    };
    R record(Blank{});
    std::vector<Place> places;
    for (const Field<R> &field : FieldTable<R>::fields) {
        std::visit(
            [&](auto member) {
                using T = std::remove_reference_t<decltype(record.*member)>;
                const auto offset = reinterpret_cast<char *>(&(record.*member)) - reinterpret_cast<char *>(&record);
                places.push_back({std::size_t(offset), sizeof(T), alignof(T)});
            },
            field.member);
    }
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) { return a.offset < b.offset; });
    places.push_back({sizeof(R), 0, alignof(R)});
    std::size_t end = sizeof(Record);
    for (const Place &place : places) {
        const std::size_t padding = (place.alignment - end % place.alignment) % place.alignment;
        QCOMPARE(place.offset, end + padding);
        end = place.offset + place.size;
    }
}

template <class R>
void checkRecordType(R &record, std::shared_ptr<Record> read, const QStringList &notCopied)
{
    checkTableCoversStruct<R>();

    const R blank(Blank{});
    fill(record);
    QSet<QString> fileKeys;
    for (const Field<R> &field : FieldTable<R>::fields) {
        QVERIFY2(!sameField(record, blank, field), qPrintable(field.key.toString()));
        fileKeys.insert(field.fileKey.toString());
    }
    QCOMPARE(std::size_t(fileKeys.size()), FieldTable<R>::fields.size());

    // Through the file.
    const plist::Dict dict = recordDict(record);
    for (const QString &key : fileKeys) {
        QVERIFY2(dict.contains(key), qPrintable(key));
        QVERIFY(*dict.find(key) == fileValue(record, key));
    }
    auto &fromFile = static_cast<R &>(*read);
    readRecord(fromFile, dict);
    for (const Field<R> &field : FieldTable<R>::fields) {
        const bool cut = field.encoding == Encoding::WholeText;
        QVERIFY2(cut != sameField(record, fromFile, field), qPrintable(field.key.toString()));
    }

    // Through copying.
    const auto copied = copyOf(record);
    QVERIFY(!copied->tank);
    for (const Field<R> &field : FieldTable<R>::fields)
        QVERIFY2(sameField(record, *copied, field) != notCopied.contains(field.key), qPrintable(field.key.toString()));

    // Through key access, into a blank record. Backwards, so that the flag that clears the
    // interval is set before the interval is.
    R byKey(Blank{});
    for (auto field = FieldTable<R>::fields.rbegin(); field != FieldTable<R>::fields.rend(); ++field) {
        const QVariant value = valueForKey(record, field->key);
        QVERIFY(value.isValid());
        QVERIFY(setValueForKey(byKey, field->key, value));
        QCOMPARE(valueForKey(byKey, field->key), value);
        QVERIFY(!std::holds_alternative<ItemImage R::*>(field->member) ? sameField(record, byKey, *field) : true);
    }
}

template <class R>
std::shared_ptr<Record> make(bool blank)
{
    return blank ? std::make_shared<R>(Blank{}) : std::make_shared<R>(static_cast<Tank *>(nullptr));
}

std::shared_ptr<Record> newRecord(const QString &type, bool blank)
{
    static const QMap<QString, std::shared_ptr<Record> (*)(bool)> makers{
        {"fish", &make<FishData>},           {"plant", &make<PlantData>},         {"coral", &make<CoralData>},
        {"invert", &make<InvertData>},       {"condition", &make<ConditionData>}, {"expense", &make<ExpenseData>},
        {"inventory", &make<InventoryData>}, {"note", &make<NoteData>},           {"schedule", &make<ScheduleData>},
        {"target", &make<TankData>}};
    return makers[type](blank);
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldEverywhere_data()
    {
        QTest::addColumn<QStringList>("notCopied");
        for (const char *type : {"fish", "plant", "coral", "invert"})
            QTest::newRow(type) << QStringList{QStringLiteral("reefSafe")};
        QTest::newRow("condition") << QStringList{QStringLiteral("magnesium")};
        for (const char *type : {"expense", "inventory", "note", "schedule", "target"})
            QTest::newRow(type) << QStringList();
    }

    void everyFieldEverywhere()
    {
        QFETCH(QStringList, notCopied);
        const QString type = QString::fromLatin1(QTest::currentDataTag());
        const auto record = newRecord(type, false);
        visitRecord(*record, [&](auto &typed) { checkRecordType(typed, newRecord(type, true), notCopied); });
    }

    void newRecords()
    {
        const QDateTime now(QDate(2026, 3, 14), QTime(9, 26, 53));
        const clock::FixedClock fixed(now);
        Tank tank(QStringLiteral("Reef"));

        const FishData fish(&tank);
        QCOMPARE(fish.tank.get(), &tank);
        QCOMPARE(fish.name, text("NewFishName"_key));
        QCOMPARE(fish.temp, text("Unspecified"_key));
        QCOMPARE(fish.count, 1);
        QCOMPARE(fish.reefSafe, 1970151456);

        const ConditionData test(&tank);
        QCOMPARE(test.date, now);
        for (const Parameter parameter : recordFieldOrder)
            QCOMPARE(valueForKey(test, traitsOf(parameter).identifier).toFloat(), -1.0F);

        const ExpenseData expense;
        QCOMPARE(expense.type, text("ExpenseNoneItem"_key));
        QVERIFY(expense.amount == Amount(0.0));
    }

    void missingKeys_data()
    {
        test::columns<QString, QString, QString, QVariant>("type", "removed", "key", "value");
        row("dioxide", "condition", "dioxide", "dioxide", QVariant(-1));
        for (const char *key : {"alkalinity", "phosphate", "iodine", "oxygen", "copper", "iron"})
            row(key, "condition", "alkalinity", key, QVariant(0.0F));
        row("calcium", "condition", "alkalinity", "calcium", QVariant(0));
        row("dioxide without alkalinity", "condition", "alkalinity", "dioxide", QVariant(117));
        row("notes", "fish", "Notes", "notes", QVariant(QString()));
        row("reef-safe code", "fish", "ReefSafe", "reefSafe", QVariant(1970151456));
        row("picture", "fish", "FishImage", "itemImage", QVariant());
        row("count of an item", "inventory", "Count", "count", QVariant(0));
        row("amount", "expense", "Amount", "amount", QVariant());
        row("date", "note", "Date", "date", QVariant());
        row("interval of no rescheduling", "schedule", "AutoReschedule", "nextDate", QVariant(0.0F));
        row("target's value", "target", "preferred", "preferredValue", QVariant(0.0F));
    }

    void missingKeys()
    {
        QFETCH(QString, removed);
        const auto [type, key, value] = test::fetch<QString, QString, QVariant>("type", "key", "value");
        const auto record = newRecord(type, false);
        const auto read = newRecord(type, true);
        visitRecord(*record, [&](auto &typed) {
            fill(typed);
            plist::Dict dict = recordDict(typed);
            dict.remove(removed);
            readRecord(static_cast<std::remove_reference_t<decltype(typed)> &>(*read), dict);
        });
        QCOMPARE(valueForKey(*read, key), value);
    }

    void convertedByKey_data()
    {
        test::columns<QString, QString, QVariant, QVariant>("type", "key", "value", "after");
        const QVariant nothing;
        row("no float", "condition", "ph", nothing, QVariant(0.0F));
        row("no date", "condition", "date", nothing, nothing);
        row("no inventory count", "inventory", "count", nothing, QVariant(1));
        row("no amount", "expense", "amount", nothing, nothing);
        row("no fish count: refused", "fish", "count", nothing, QVariant(117));
        row("double to float", "condition", "ph", QVariant(7.2), QVariant(7.2F));
        row("text to float", "condition", "ph", QVariant(QStringLiteral("7.5 or so")), QVariant(7.5F));
        row("fraction cut", "condition", "calcium", QVariant(420.9), QVariant(420));
        row("beyond 32 bits", "condition", "calcium", QVariant(1e12), QVariant(2147483647));
        row("not a number", "condition", "ph", QVariant(qQNaN()), QVariant(0.0F));
        row("number to flag", "schedule", "autoReschedule", QVariant(2), QVariant(true));
        row("number to text", "note", "note", QVariant(7.2F), QVariant(QStringLiteral("7.2")));
        row("whole amount", "expense", "amount", QVariant(12), QVariant(qint64(12)));
    }

    void convertedByKey()
    {
        const auto [type, key, value, after] =
            test::fetch<QString, QString, QVariant, QVariant>("type", "key", "value", "after");
        const auto record = newRecord(type, false);
        visitRecord(*record, [](auto &typed) { fill(typed); });
        QCOMPARE(setValueForKey(*record, key, value), value.isValid() || type != u"fish");
        QCOMPARE(valueForKey(*record, key), after);
    }

    void unknownKeys()
    {
        ConditionData test;
        for (const QString &key : {QString(), QStringLiteral("PH"), QStringLiteral("name"), QStringLiteral("tank")}) {
            QVERIFY(!valueForKey(test, key).isValid());
            QVERIFY(!setValueForKey(test, key, 5));
        }
    }

    void copiesKeepTheirClass()
    {
        for (const ItemContext context :
             {ItemContext::None, ItemContext::Fish, ItemContext::Plant, ItemContext::Coral, ItemContext::Invert})
            QCOMPARE(copyOf(*makeItemData(context, nullptr))->itemContext(), context);
    }

    void scheduleSetters()
    {
        test::NoticeLog log;
        QStringList rescheduled;
        ModelContext::sharedInstance().setReScheduleRule([&](ScheduleData &record) { rescheduled << record.activity; });
        ScheduleData record;
        record.activity = QStringLiteral("Filter");
        record.setComplete(true);
        QCOMPARE(log.notices, QStringList{QStringLiteral("done Filter")});
        QVERIFY(rescheduled.isEmpty());

        record.setAutoReschedule(true);
        record.nextDate = 604800;
        QVERIFY(setValueForKey(record, u"complete", false));
        QCOMPARE(rescheduled, QStringList{QStringLiteral("Filter")});
        QCOMPARE(log.notices.size(), 2);

        // A copy announces its done mark; it does not reschedule, since its own flag comes later.
        const auto copied = copyOf(record);
        QCOMPARE(log.notices.size(), 3);
        QCOMPARE(rescheduled.size(), 1);
        QVERIFY(copied->autoReschedule());
        QCOMPARE(copied->nextDate, 604800.0F);

        QVERIFY(setValueForKey(record, u"autoReschedule", false));
        QCOMPARE(record.nextDate, 0.0F);
        ModelContext::sharedInstance().setReScheduleRule({});
    }

    void reefSafeWords()
    {
        const QStringList words = text("ReefSafeMenu"_key).split(QStringLiteral(", "));
        QCOMPARE(ItemData::reefSafeStringFromCode(2036691744), words.at(0));
        QCOMPARE(ItemData::reefSafeStringFromCode(1852776480), words.at(1));
        for (const qint32 code : {1970151456, 0, -1})
            QCOMPARE(ItemData::reefSafeStringFromCode(code), words.at(2));
    }

    void emptyPictureIsNone()
    {
        FishData fish;
        fish.setItemImageWithData(picture(10));
        fish.setItemImageWithData({});
        QVERIFY(fish.itemImage.isNone());
        QVERIFY(!recordDict(fish).contains(u"FishImage"));
    }
};

BRINEMARK_TEST(QGuiApplication, RecordsTest)
#include "tst_records.moc"
