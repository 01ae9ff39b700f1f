// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/PreferenceKeys.h"
#include "base/plist/XmlReader.h"
#include "support/Files.h"
#include "support/TestProgram.h"

using namespace brinemark;
using brinemark::test::bytesOf;
using brinemark::test::row;
using brinemark::test::writeFile;

namespace
{

/// A new file for every case: within a process the toolkit keeps what it has read of a file.
QString freshPreferencesPath(const QString &name = QStringLiteral("Brinemark.plist"))
{
    static int count = 0;
    const QString folder = test::TestHome::current().filePath(QStringLiteral("store%1").arg(++count));
    QDir().mkpath(folder);
    return folder + u'/' + name;
}

QString copyElsewhere(const QString &path)
{
    const QString copy = freshPreferencesPath();
    return QFile::copy(path, copy) ? copy : QString();
}

} // namespace

/// The preferences store: types survive the file, an absent key is not a value, and a damaged file is kept aside.
class TestPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharedStoreLivesInTheConfigurationFolder()
    {
        Preferences &shared = Preferences::shared();
        QCOMPARE(&shared, &Preferences::shared());
        QVERIFY(shared.path().startsWith(test::TestHome::current().path()));
        QVERIFY(shared.path().endsWith(QStringLiteral("/Brinemark/Brinemark.plist")));
        // The folder does not exist yet.
        shared.set(preference::convertVisible, true);
        QVERIFY(shared.flush());
        QVERIFY(QFile::exists(shared.path()));
    }

    void absentUntilSet()
    {
        Preferences store(freshPreferencesPath());
        QCOMPARE(store.value(preference::autoSaveOnQuit), std::nullopt);
        store.set(preference::autoSaveOnQuit, false);
        QCOMPARE(store.value(preference::autoSaveOnQuit, true), false);
        store.remove(preference::autoSaveOnQuit);
        QVERIFY(!store.contains(preference::autoSaveOnQuit));

        // The empty text is a value.
        store.set(preference::defaultFile, QString());
        QCOMPARE(store.value(preference::defaultFile), QString());
        QVERIFY(store.contains(preference::defaultFile));
    }

    void readsAFileThatPythonWrote()
    {
        const QString path = copyElsewhere(QStringLiteral(BRINEMARK_TEST_DATA "/preferences/written-by-python.plist"));
        const Preferences store(path);
        QCOMPARE(store.value(preference::autoSaveOnQuit), true);
        QCOMPARE(store.value(preference::activityOverdue), false);
        QCOMPARE(store.value(preference::defaultFile), QStringLiteral("/home/käthe/Aquarien & mehr.xml"));
        QCOMPARE(store.value(preference::bundleVersion), 16809984);
        QCOMPARE(store.value(preference::updateFrequency), -1);
        QCOMPARE(store.value(preference::updateLastChecked), distantPast());
        QCOMPARE(store.value(preference::notificationWindowHeight), 117.5F);
        QCOMPARE(store.value(preference::mainViewWidth), QStringLiteral("642"));
        QCOMPARE(store.value(preference::convertWindowState),
                 (QVariantMap{{"ConvertState", true},
                              {"VolumeState", false},
                              {"ConvertWindowPoint", QStringLiteral("{12, 640}")}}));
        QCOMPARE(store.variant(preference::dontAskAgainName(QStringLiteral("DontShowAgainNotTested"))).toInt(), 1);
        QCOMPARE(store.variant(QStringLiteral("recent")),
                 QVariant(QVariantList{QStringLiteral("a"), qint64(2), QByteArray("\x00\xff", 2)}));
        QVERIFY(!store.contains(preference::calName));
    }

    void typesSurviveTheFile()
    {
        const QDateTime checked(QDate(2026, 3, 14), QTime(8, 30), Qt::OffsetFromUTC, 3600);
        const QVariantMap window{{"ConvertState", true}, {"ConvertWindowPoint", QStringLiteral("{1.5, 2}")}};
        const QString path = freshPreferencesPath();
        {
            Preferences store(path);
            store.set(preference::autoSaveOnQuit, true);
            store.set(preference::bundleVersion, qint64(0xFFFFFFFF));
            store.set(preference::updateLastChecked, checked);
            store.set(preference::notificationWindowHeight, 117);
            store.set(preference::tankListViewWidth, QStringLiteral("220"));
            store.set(preference::convertWindowState, window);
            QVERIFY(store.flush());
        }
        const plist::ReadResult file = plist::readXml(bytesOf(path));
        QVERIFY2(bool(file), qPrintable(file.error));
        QCOMPARE(file.value,
                 plist::Value(plist::Dict{
                     {"autoSaveOnQuit", plist::Value(true)},
                     {"bundleVersion", plist::Value(qint64(0xFFFFFFFF))},
                     {"UpdateLastChecked", plist::Value(checked.toUTC())},
                     {"NotificationWindowHeight", plist::Value(117.0)},
                     {"tankListViewWidth", plist::Value(QStringLiteral("220"))},
                     {"ConvertWindowState",
                      plist::Value(plist::Dict{{"ConvertState", plist::Value(true)},
                                               {"ConvertWindowPoint", plist::Value(QStringLiteral("{1.5, 2}"))}})},
                 }));
    }

    void lenientReading_data()
    {
        // flag: an invalid one where the value reads as absent
        test::columns<QVariant, QVariant, QVariant, QVariant>("stored", "flag", "number", "text");
        const QVariant absent;
        row("flag", QVariant(true), QVariant(true), QVariant(1), QVariant("true"));
        row("number", QVariant(7), QVariant(true), QVariant(7), QVariant("7"));
        row("zero", QVariant(0), QVariant(false), QVariant(0), QVariant("0"));
        row("number as text", QVariant(" 42 "), QVariant(true), QVariant(42), QVariant(" 42 "));
        row("YES", QVariant("YES"), QVariant(true), absent, QVariant("YES"));
        row("word", QVariant("often"), absent, absent, QVariant("often"));
        row("beyond 32 bits", QVariant(qint64(1) << 40), QVariant(true), absent, QVariant("1099511627776"));
        row("date", QVariant(distantPast()), absent, absent, absent);
        row("map", QVariant(QVariantMap{{"a", 1}}), absent, absent, absent);
    }

    void lenientReading()
    {
        const auto [stored, flag, number, text] =
            test::fetch<QVariant, QVariant, QVariant, QVariant>("stored", "flag", "number", "text");
        Preferences store(freshPreferencesPath());
        store.setVariant(QStringLiteral("key"), stored);
        QCOMPARE(store.value(PreferenceKey<bool>{"key"}), flag.isValid() ? std::optional(flag.toBool()) : std::nullopt);
        QCOMPARE(store.value(PreferenceKey<int>{"key"}),
                 number.isValid() ? std::optional(number.toInt()) : std::nullopt);
        QCOMPARE(store.value(PreferenceKey<QString>{"key"}),
                 text.isValid() ? std::optional(text.toString()) : std::nullopt);
        const bool isDate = stored.typeId() == QMetaType::QDateTime;
        QCOMPARE(store.value(PreferenceKey<QDateTime>{"key"}).has_value(), isDate);
        const bool isMap = stored.typeId() == QMetaType::QVariantMap;
        QCOMPARE(store.value(PreferenceKey<QVariantMap>{"key"}).has_value(), isMap);
    }

    void damagedFilesAreSetAside()
    {
        const QString path = freshPreferencesPath();
        const QList<QByteArray> damaged{"[General]\nautoSaveOnQuit=true\n", QByteArray(1000, '\0')};
        for (qsizetype i = 0; i < damaged.size(); ++i) {
            QVERIFY(writeFile(path, damaged[i]));
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("^The preferences could not be read: .+")));
            Preferences store(path);
            QVERIFY(!store.contains(preference::autoSaveOnQuit));
            const QString name = QStringLiteral("/Brinemark-damaged-%1.plist").arg(i + 1);
            QCOMPARE(bytesOf(QFileInfo(path).path() + name), damaged[i]);
            store.set(preference::autoSaveOnQuit, true);
            QVERIFY(store.flush());
            QCOMPARE(Preferences(copyElsewhere(path)).value(preference::autoSaveOnQuit), true);
        }
    }

    void failedFlushIsToldAndCanBeMendedLater()
    {
        // A file where the folder should be: even the superuser cannot write below it.
        const QString blocker = freshPreferencesPath(QStringLiteral("folder"));
        QVERIFY(writeFile(blocker, "in the way"));
        const QString path = blocker + QStringLiteral("/Brinemark.plist");
        Preferences store(path);
        store.set(preference::updateFrequency, -1);
        QVERIFY(!store.flush());
        QCOMPARE(store.value(preference::updateFrequency), -1);

        // The failure is told once, also when nobody calls flush().
        Preferences other(path);
        int told = 0;
        other.onWriteFailure([&told] { ++told; });
        for (const int frequency : {1, 2}) {
            other.set(preference::updateFrequency, frequency);
            QCoreApplication::processEvents();
            QCOMPARE(told, 1);
        }
        QVERIFY(!other.flush());
        QCOMPARE(told, 1);
        other.set(preference::updateFrequency, -1);

        QVERIFY(QFile::remove(blocker));
        QVERIFY(store.flush());
        QCOMPARE(Preferences(copyElsewhere(path)).value(preference::updateFrequency), -1);
    }
};

BRINEMARK_TEST(QCoreApplication, TestPreferences)
#include "tst_preferences.moc"
