// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/text/Texts.h"
#include "livestock/LivestockGroup.h"
#include "livestock/ProfileSearch.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace brinemark;
using namespace std::chrono_literals;
using test::row;

namespace
{

/// The two ends of "22 - 26 °C"; none when the text has another form.
std::optional<std::pair<double, double>> rangeOf(const QString &text, const QString &unit = {})
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+(?:\\.[0-9]+)?) - ([0-9]+(?:\\.[0-9]+)?)(.*)$"));
    const auto match = form.match(text);
    if (!match.hasMatch() || match.captured(3) != unit)
        return std::nullopt;
    return std::pair(match.captured(1).toDouble(), match.captured(2).toDouble());
}

} // namespace

class ProfilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    void cleanup() { ProfileCollection::setFolder(QStringLiteral(":/profiles")); }

    void collections_data()
    {
        test::columns<ItemContext, int, QStringList>("context", "atLeast", "known");
        row("fish", ItemContext::Fish, 280,
            QStringList{"Neon Tetra", "Cardinal Tetra", "Guppy", "Siamese Fighting Fish", "Zebra Danio", "Goldfish"});
        row("plants", ItemContext::Plant, 100, QStringList{"Java Fern", "Java Moss", "Dwarf Anubias"});
        row("invertebrates", ItemContext::Invert, 70, QStringList{"Cherry Shrimp", "Amano Shrimp", "Cleaner Shrimp"});
        row("corals", ItemContext::Coral, 90, QStringList{"Green Star Polyps", "Toadstool", "Hammer"});
    }
    void collections()
    {
        QFETCH(ItemContext, context);
        QFETCH(int, atLeast);
        QFETCH(QStringList, known);
        const auto collection = ProfileCollection::load(context);
        QVERIFY(collection);
        QVERIFY(int(collection->profiles().size()) >= atLeast);
        QStringList sciNames;
        QStringList names;
        for (const SpeciesProfile &profile : collection->profiles()) {
            const auto value = [&](QStringView key) { return profileValue(profile, key); };
            const QString sciName = value(u"SciName");
            const auto fault = faultIn(profile, livestockGroupForContext(context).breedingMenuKey);
            QVERIFY2(fault.isEmpty(), qPrintable(sciName + QStringLiteral(": ") + fault));
            QString &family = m_families[sciName.section(u' ', 0, 0)];
            QVERIFY2(family.isEmpty() || family == value(u"Family"), qPrintable(sciName));
            family = value(u"Family");
            sciNames << sciName;
            names << value(u"Name");
        }
        QVERIFY(std::is_sorted(sciNames.begin(), sciNames.end()));
        for (const QStringList &all : {sciNames, names})
            QCOMPARE(QSet<QString>(all.begin(), all.end()).size(), all.size());
        for (const QString &name : known)
            QVERIFY2(!names.filter(name).isEmpty(), qPrintable(name));
    }

    void unitsOfTheReader()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const auto collection = ProfileCollection::load(ItemContext::Fish);
        QVERIFY(collection);
        for (const SpeciesProfile &profile : collection->profiles()) {
            const auto range = rangeOf(profileValue(profile, u"Temp"), QStringLiteral(" °F"));
            QVERIFY(range && range->first >= 39 && range->second <= 95);
            QVERIFY(profileValue(profile, u"Size").endsWith(QLatin1String(" in")));
        }
    }

    void unusableCollections_data()
    {
        test::columns<QByteArray, int>("bytes", "profiles"); // -1: none can be loaded
        row("missing", QByteArray(), -1);
        row("no property list", QByteArray("<html></html>"), -1);
        row("an array", QByteArray("<plist><array/></plist>"), -1);
        row("other values", QByteArray("<plist><dict><key>a</key><string>b</string><key>c</key><dict/></dict></plist>"),
            1);
    }
    void unusableCollections()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, profiles);
        const QTemporaryDir folder;
        if (!bytes.isNull())
            QVERIFY(test::writeFile(folder.filePath(QStringLiteral("CoralProfiles.plist")), bytes));
        ProfileCollection::setFolder(folder.path());
        if (profiles < 0)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot (open|read) .*CoralProfiles")));
        const auto collection = ProfileCollection::load(ItemContext::Coral);
        QCOMPARE(collection ? int(collection->profiles().size()) : -1, profiles);
    }

    void finds_data()
    {
        test::columns<QString, QString, QString>("field", "text", "found");
        row("anywhere, in any case", "Name", "tetra", "TETRA, CARDINAL|Neon Tetra|Neon  Tetra");
        row("blanks count", "Name", "neon tetra", "Neon Tetra");
        row("another field", "Family", "LORI", "Pleco");
        row("nothing", "Name", "ü", "");
        row("no pattern", "Name", ".", "");
    }
    void finds()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        useSmallCollection();
        ProfileSearch search(0ms);
        const QSignalSpy ended(&search, &ProfileSearch::finished);
        QStringList names;
        connect(&search, &ProfileSearch::foundFish,
                [&](const SpeciesProfile &profile) { names << profileValue(profile, u"Name"); });
        search.start(field, text, ProfileCollection::load(ItemContext::Fish));
        QTRY_COMPARE(ended.size(), 1);
        QTEST(names.join(u'|'), "found");
    }

    /// Hits that are on their way when a search ends reach nobody.
    void aNewSearchEndsTheOldOne()
    {
        useSmallCollection();
        const auto collection = ProfileCollection::load(ItemContext::Fish);
        ProfileSearch search(10s); // a pause that would be noticed
        QStringList names;
        connect(&search, &ProfileSearch::foundFish,
                [&](const SpeciesProfile &profile) { names << profileValue(profile, u"Name"); });
        const QSignalSpy ended(&search, &ProfileSearch::finished);
        search.start(QStringLiteral("Name"), QStringLiteral("tetra"), collection);
        QTRY_COMPARE(names, QStringList("TETRA, CARDINAL"));
        search.start(QStringLiteral("Name"), QStringLiteral("e"), collection);
        QThread::msleep(20); // its first hit is posted, but not yet delivered
        search.start(QStringLiteral("Name"), QStringLiteral("pleco"), collection);
        QTRY_COMPARE(names.size(), 2);
        QCOMPARE(names.last(), QStringLiteral("Pleco"));
        search.stop();
        QCoreApplication::processEvents();
        QCOMPARE(names.size(), 2);
        QVERIFY(ended.isEmpty());
    }

private:
    /// What is wrong with a profile, in a few words; empty when nothing is.
    static QString faultIn(const SpeciesProfile &profile, TextKey breedingMenu)
    {
        const auto value = [&](QStringView key) { return profileValue(profile, key); };
        for (const QStringView key : {u"Name", u"SciName", u"Family", u"Social", u"Diet"}) {
            if (value(key).isEmpty() || value(key) != value(key).simplified() || value(key).size() > 100)
                return key.toString();
        }
        static const QRegularExpression family(QStringLiteral("^[A-Z][a-z]+$"));
        if (!family.match(value(u"Family")).hasMatch())
            return QStringLiteral("Family");
        static const QRegularExpression size(QStringLiteral("^[0-9]+(\\.[0-9])? cm$"));
        if (!size.match(value(u"Size")).hasMatch())
            return QStringLiteral("Size");
        const auto salt = rangeOf(value(u"Salt"));
        if (profile.contains(u"Salt") && (!salt || salt->first < 1 || salt->second > 1.03 || salt->first > salt->second))
            return QStringLiteral("Salt");
        const bool marine = salt && salt->first >= 1.02;
        const auto within = [&](QStringView key, const QString &unit, double least, double most) {
            const auto range = rangeOf(value(key), unit);
            return range && range->first <= range->second && range->first >= least && range->second <= most;
        };
        if (!within(u"Temp", QStringLiteral(" °C"), marine ? 5 : 2, marine ? 30 : 36))
            return QStringLiteral("Temp");
        if (!within(u"pH", {}, marine ? 7.8 : 3.5, marine ? 8.6 : 9.5))
            return QStringLiteral("pH");
        if (!(marine && value(u"KH").isEmpty()) && !within(u"KH", {}, 0, 30))
            return QStringLiteral("KH");
        if (!value(u"GH").isEmpty() && !within(u"GH", {}, 0, 40))
            return QStringLiteral("GH");
        if (value(u"GH").isEmpty() && !salt)
            return QStringLiteral("GH");
        const std::pair<QStringView, TextKey> menus[]{
            {u"TankLevel", "TankLevelMenu"}, {u"Breeding", breedingMenu}, {u"Care", "CareMenu"}};
        for (const auto &[key, menu] : menus) {
            bool isNumber = false;
            const int index = value(key).toInt(&isNumber);
            if (!isNumber || index < 0 || index >= text(menu).split(QStringLiteral(", ")).size())
                return key.toString();
        }
        if (profile.contains(u"ReefSafe") && !QStringLiteral("012").contains(value(u"ReefSafe")))
            return QStringLiteral("ReefSafe");
        return {};
    }

    void useSmallCollection()
    {
        QVERIFY(m_folder.isValid());
        QByteArray bytes("<plist><dict>");
        auto add = [&, key = 'a'](const char *name, const char *family) mutable {
            bytes += QByteArray("<key>") + QByteArray(1, key++) + "</key><dict><key>Name</key><string>" + name +
                     "</string><key>Family</key><string>" + family + "</string></dict>";
        };
        add("TETRA, CARDINAL", "A");
        add("Neon Tetra", "A");
        add("Pleco", "Loricariidae");
        add("Neon  Tetra", "A");
        QVERIFY(test::writeFile(m_folder.filePath(QStringLiteral("FishProfiles.plist")), bytes + "</dict></plist>"));
        ProfileCollection::setFolder(m_folder.path());
    }

    QTemporaryDir m_folder;
    QHash<QString, QString> m_families; ///< by genus, over all collections
};

BRINEMARK_TEST(QCoreApplication, ProfilesTest)
#include "tst_profiles.moc"
