// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/LivestockGroup.h"
#include "livestock/ProfileFields.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/FishSearchController.h"
#include "livestock/views/LivestockGroupController.h"
#include "livestock/views/PictureWell.h"
#include "livestock/views/editor/ItemSheet.h"
#include "livestock/views/search/FishSearchSheet.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/LocalNumber.h"
#include "support/RecordingShell.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"
#include "ui/Desktop.h"
#include "ui/pictures/PictureCache.h"

#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

using namespace brinemark;
using test::row;

namespace
{

using Texts = QMap<QString, QString>; ///< by key

QString picture(const test::TestHome &home, const char *name, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = home.filePath(QLatin1String(name));
    return image.save(path) ? path : QString();
}

} // namespace

/// The item editor and the profile search, in a main window that only records what it is told.
class TestItemEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef"));
        m_shell->appendTank(m_tank);
        m_shell->window.show();
        desktop::setUrlHandler([this](const QUrl &url) {
            m_opened << url.toString(QUrl::FullyEncoded);
            return true;
        });
        QByteArray profiles("<plist><dict>");
        for (const char *name : {"TETRA, CARDINAL", "Neon Tetra", "Pleco"})
            profiles += QByteArray("<key>") + name + "</key><dict><key>Name</key><string>" + name +
                        "</string><key>Family</key><string>" + (*name == 'P' ? "Loricariidae" : "Characidae") +
                        "</string><key>TankLevel</key><string>3</string><key>Breeding</key><string>3</string>"
                        "<key>Care</key><string>1</string></dict>";
        QVERIFY(test::writeFile(m_home.filePath(QStringLiteral("FishProfiles.plist")), profiles + "</dict></plist>"));
        ProfileCollection::setFolder(m_home.filePath(QString()));
    }
    void cleanup()
    {
        LivestockGroupController::destroyShared();
        FishSearchController::destroyShared();
        FishDataEntryController::destroyShared();
        FishDataController::destroyShared();
        PictureCache::destroyShared();
        desktop::setUrlHandler({});
        ProfileCollection::setFolder(QStringLiteral(":/profiles"));
        m_opened.clear();
        m_tank.reset();
        m_shell.reset();
    }

    void newRecord_data()
    {
        test::columns<ContainerKind>("kind");
        for (const LivestockGroupTraits &kind : livestockGroupTable)
            QTest::newRow(kind.profilesName) << kind.kind;
    }
    void newRecord()
    {
        QFETCH(ContainerKind, kind);
        const LivestockGroupTraits &traits = *livestockGroupTraits(kind);
        auto &group = LivestockGroupController::sharedInstance();
        group.setContainer(m_tank->container(kind));
        group.view()->setParent(&m_shell->window);
        group.view()->show();
        const auto pressNew = [&] { group.view()->findChild<QPushButton *>("emptyStateButton")->click(); };
        pressNew();
        QTest::keyClick(sheet(), Qt::Key_Escape);
        QVERIFY(!sheet()->isVisible());
        QCOMPARE(m_tank->container(kind)->count(), 0);
        QCOMPARE(m_shell->changes, 0);
        pressNew();
        QCOMPARE(field("name")->text(), text(traits.defaultNameKey));
        QCOMPARE(popup("breeding")->itemText(4), textItems(traits.breedingMenuKey).at(4));
        QCOMPARE(field("count")->text(), QStringLiteral("1"));
        QTest::keyClick(field("name"), Qt::Key_Return); // the default button saves
        QCOMPARE(m_tank->container(kind)->count(), 1);
        auto &item = static_cast<ItemData &>(*m_tank->container(kind)->recordAt(0));
        QCOMPARE(item.itemContext(), traits.context);
        QCOMPARE(item.name, text(traits.defaultNameKey));
        QCOMPARE(item.sciName, text("Unspecified"));
        QCOMPARE(item.reefSafe, reefsafe::unknown);
        QCOMPARE(m_shell->selectedRecord, &item);
        QCOMPARE(FishDataController::sharedInstance().currentItem(), &item);
        QCOMPARE(m_shell->changes, 1);
        QCOMPARE(m_shell->undo.count(), 0);
        open(item);
        QVERIFY(field("sciName")->text().isEmpty());
        QCOMPARE(field("sciName")->placeholderText(), text("UnspecifiedHolder"));
    }

    void withoutATankOrAKindNothingIsMade()
    {
        auto &editor = FishDataEntryController::sharedInstance();
        editor.displayItemData(nullptr, ItemContext::None);
        press("saveButton");
        m_shell->current = nullptr;
        editor.displayItemData(nullptr, ItemContext::Fish);
        QVERIFY(!sheet()->isVisible());
        QCOMPARE(m_tank->fish()->count(), 0);
        QCOMPARE(m_shell->changes, 0);
    }

    void storedTexts_data()
    {
        test::columns<QString, QString>("stored", "shown"); // an item of the menu, from "Unknown" on
        const QStringList menu = textItems("CareMenu"_key);
        row("nothing", QString(), menu.at(0));
        row("number of an older file", QStringLiteral("2"), menu.at(2));
        row("too large a number", QStringLiteral("7"), menu.at(0));
        row("title", menu.at(3), menu.at(3));
        row("no title", QStringLiteral("Impossible"), menu.at(0));
    }
    void storedTexts()
    {
        QFETCH(QString, stored);
        FishData &fish = addFish();
        fish.breeding = stored;
        fish.care = stored;
        fish.tankLevel = stored;
        fish.diet = QStringLiteral("(unspecified)");
        open(fish);
        QTEST(popup("breeding")->currentText(), "shown");
        QTEST(popup("care")->currentText(), "shown");
        QTEST(popup("tankLevel")->currentText(), "stored");
        QVERIFY(field("diet")->text().isEmpty());
        press("saveButton");
        QFETCH(QString, shown);
        QCOMPARE(fish.care, stored.size() > 1 ? stored : shown); // a text of another language stays until it is changed
        QCOMPARE(fish.diet, text("Unspecified"));
        open(fish);
        popup("care")->setFocus();
        QTest::keyClick(popup("care"), Qt::Key_End);
        press("saveButton");
        QCOMPARE(fish.care, textItems("CareMenu"_key).last());
    }

    void changesAreStored()
    {
        FishData &fish = addFish();
        fish.gHardness = 8.1234567F; // more digits than are shown
        fish.reefSafe = 42;          // no code
        fish.notes = QStringLiteral("one\r\ntwo");
        fish.itemImage = ItemImage(QByteArrayLiteral("no picture"));
        const QString longest(50000, u'x');
        fish.socialLevel = longest;
        open(fish);
        field("name")->setText(QStringLiteral("Tang"));
        field("family")->clear();
        field("ph")->clear();
        QTest::keyClicks(field("ph"), test::local("8.257"));
        field("KH")->setText(QStringLiteral("hard"));
        field("count")->setText(QStringLiteral("7"));
        popup("tankLevel")->setEditText(QStringLiteral("among the stones"));
        press("saveButton");
        QCOMPARE(fish.name, QStringLiteral("Tang"));
        QCOMPARE(fish.family, text("Unspecified"));
        QCOMPARE(fish.ph, 8.26F);
        QCOMPARE(fish.KH, 0.0F);
        QCOMPARE(fish.gHardness, 8.1234567F);
        QCOMPARE(fish.count, 7);
        QCOMPARE(fish.tankLevel, QStringLiteral("among the stones"));
        QCOMPARE(fish.socialLevel, longest);
        QCOMPARE(fish.reefSafe, 42);
        QCOMPARE(fish.notes, QStringLiteral("one\r\ntwo"));
        QCOMPARE(fish.itemImage.encoded(), QByteArrayLiteral("no picture"));
        QCOMPARE(m_shell->changes, 1);
    }

    void pictures()
    {
        FishData &fish = addFish();
        open(fish);
        QVERIFY(!sheet()->deleteImageButton->isEnabled());
        sheet()->fishImageView->takeFile(picture(m_home, "tang.png", {3200, 1200}));
        press("saveButton"); // while it is being read
        QCOMPARE(fish.itemImage.image().size(), QSize(1600, 600));
        const QByteArray before = fish.itemImage.encoded();
        open(fish);
        sheet()->fishImageView->takeFile(QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml"));
        press("saveButton");
        QVERIFY(sheet()->isVisible());
        QVERIFY(test::pressAlertButton("defaultButton"));
        press("deleteImageButton");
        press("cancelButton");
        QCOMPARE(fish.itemImage.encoded(), before);
        open(fish);
        press("deleteImageButton");
        QVERIFY(!sheet()->deleteImageButton->isEnabled());
        press("saveButton");
        QVERIFY(fish.itemImage.isNone());
    }

    void foundProfile_data()
    {
        test::columns<Texts, Texts, bool>("differs", "shown", "usable"); // nothing: the key is missing
        row("complete", Texts(), Texts{{"name", "Neon"}, {"ph", "6.75"}, {"gHardness", "7"}, {"salt", "1.024"}}, true);
        row("fresh water", Texts{{"Salt", {}}}, Texts{{"salt", "0"}}, true);
        row("not told", Texts{{"GH", {}}, {"Diet", "(unspecified)"}}, Texts{{"gHardness", ""}, {"diet", ""}}, true);
        row("reef safe", Texts{{"ReefSafe", "0"}}, Texts{{"reefSafe", text("ReefSafeMenu").section(", ", 0, 0)}}, true);
        row("no index", Texts{{"Care", "easy"}}, Texts{{"care", textItems("CareMenu"_key).at(0)}}, false);
        row("beyond the menu", Texts{{"TankLevel", "10"}}, Texts{{"diet", "flakes"}}, false);
        row("no level", Texts{{"TankLevel", {}}}, Texts{{"temp", "22 - 26 °C"}}, false);
    }
    void foundProfile()
    {
        QFETCH(Texts, differs);
        QFETCH(Texts, shown);
        Texts texts{{"Name", "Neon"},          {"pH", "6.0 - 7.5"},   {"GH", "2 - 12"},  {"KH", "4"},
                    {"Salt", "1.023 - 1.025"}, {"Care", "1"},         {"Breeding", "3"}, {"TankLevel", "3"},
                    {"Diet", "flakes"},        {"Temp", "22 - 26 °C"}};
        texts.insert(differs);
        SpeciesProfile profile;
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            if (!text->isNull())
                profile.insert(text.key(), *text);
        }
        FishData &fish = addFish();
        fish.count = 5;
        auto &editor = FishDataEntryController::sharedInstance();
        editor.displayItemData(&fish, ItemContext::Fish);
        press("cancelButton");
        editor.displaySearchResults(profile, &fish);
        for (auto text = shown.cbegin(); text != shown.cend(); ++text)
            QCOMPARE(sheet()->form.shownText(text.key()), text.key() == "temp" ? *text : shownForm(*text));
        QCOMPARE(field("count")->text(), QStringLiteral("5"));
        QFETCH(bool, usable);
        QCOMPARE(test::shownAlert() == nullptr, usable);
        QCOMPARE(m_shell->beeps, usable ? 0 : 1);
        if (!usable)
            test::pressAlertButton("defaultButton");
        QVERIFY(sheet()->isVisible());
        press("saveButton");
        QCOMPARE(fish.KH, 4.0F);
        QCOMPARE(fish.breeding, textItems("FishBreedingMenu"_key).at(3));
    }

    void mailAndWeb_data()
    {
        test::columns<QString, QByteArray>("name", "encoded");
        row("plain", QStringLiteral("Clown Loach"), QByteArray("Clown Loach"));
        row("marks", QStringLiteral("a \"b\" & 100%+#? <ü>"), QByteArray("a %22b%22 %26 100%25%2B%23%3F %3C%C3%BC%3E"));
        row("long", QString(10000, u'é'), QByteArray("%C3%A9").repeated(10000));
    }
    void mailAndWeb()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, encoded);
        FishData &fish = addFish();
        fish.name = name;
        fish.sciName = QStringLiteral("Chromobotia macracanthus");
        fish.size = QStringLiteral("30 cm");
        fish.care = textItems("CareMenu"_key).at(1);
        open(fish);
        sheet()->findChild<QPushButton *>(QStringLiteral("imageSearchButton"))->click();
        const QString inQuery = QString(encoded).replace(u' ', u'+');
        QCOMPARE(m_opened.value(0), QStringLiteral("https://www.google.com/images?q=%22") + inQuery +
                                        QStringLiteral("%22+OR+%22Chromobotia+macracanthus%22"));
        press("submitButton");
        QTest::keyClick(test::shownAlert(), Qt::Key_Escape);
        QCOMPARE(m_opened.size(), 1);
        press("submitButton");
        QVERIFY(test::pressAlertButton("alternateButton"));
        const QString inBody = QString(encoded).replace(QLatin1String(" "), QLatin1String("%20"));
        const QString unknown = textItems("FishBreedingMenu"_key).at(0);
        const QString body =
            QStringLiteral("Enter Comments Here:\r\r\r\r\rName: \x01\rScientific Name: Chromobotia "
                           "macracanthus\rFamily: \rSize: 30 cm\rTraits: \rLife Span: \rTank Level: ") +
            text("Unspecified") + QStringLiteral("\rDiet: \rBreeding: ") + unknown + QStringLiteral("\rCare: ") +
            fish.care + QStringLiteral("\rpH: 0\rGH: 0\rKH: 0\rSalinity: 0\rTemp: \rReef Safe: ") +
            textItems("ReefSafeMenu"_key).at(2) + u'\r';
        QCOMPARE(m_opened.value(1),
                 QStringLiteral("mailto:profiles@brinemark.example?subject=Fish%20Profile%20Submission&body=") +
                     QString::fromLatin1(QUrl::toPercentEncoding(body)).replace(QLatin1String("%01"), inBody));
    }

    void search()
    {
        FishData &fish = addFish();
        fish.name = QStringLiteral("tetra");
        open(fish);
        field("name")->setText(QStringLiteral("pleco"));
        press("searchButton");
        QCOMPARE(searchSheet()->nameField->text(), QStringLiteral("pleco"));
        QTRY_COMPARE(found(), QStringList("Pleco"));
        QVERIFY(!searchSheet()->okButton->isEnabled());

        type(QStringLiteral("tetra")); // is found once typing stops
        QTRY_COMPARE(found().size(), 1);
        type(QStringLiteral("e"));
        QTest::keyClick(searchSheet()->nameField, Qt::Key_Return);
        type(QStringLiteral("pleco"));
        QTest::keyClick(searchSheet()->nameField, Qt::Key_Return);
        QVERIFY(found().isEmpty()); // at once
        QTRY_COMPARE(searchSheet()->progressLabel->text(), formatText(text("Found"), {1}));
        QCOMPARE(found(), QStringList("Pleco"));
        QTest::keyClick(searchSheet()->nameField, Qt::Key_Down);
        QVERIFY(searchSheet()->okButton->isEnabled());
        searchSheet()->searchByItems->actions().at(2)->trigger(); // by the family of the selected row
        QCOMPARE(searchSheet()->nameField->text(), QStringLiteral("Loricariidae"));
        QTRY_COMPARE(searchSheet()->progressLabel->text(), formatText(text("Found"), {1}));

        searchSheet()->searchByItems->actions().last()->trigger(); // online
        type(QStringLiteral("c & d"));
        QTest::qWait(400);
        QVERIFY(m_opened.isEmpty());
        QTest::keyClick(searchSheet()->nameField, Qt::Key_Return);
        QCOMPARE(m_opened, QStringList("https://www.google.com/search?q=%22c+%26+d%22"));

        QTest::keyClick(searchSheet(), Qt::Key_Escape);
        QVERIFY(sheet()->isVisible());
        QCOMPARE(field("name")->text(), QStringLiteral("tetra"));
        press("searchButton");
        QTRY_COMPARE(found(), (QStringList{"Neon Tetra", "TETRA, CARDINAL"}));
        searchSheet()->resultsList->sortByColumn(0, Qt::DescendingOrder);
        searchSheet()->resultsList->selectRow(1);
        QTest::keyClick(searchSheet()->resultsList, Qt::Key_Return);
        QCOMPARE(field("name")->text(), QStringLiteral("Neon Tetra"));
        press("saveButton");
        QCOMPARE(fish.family, QStringLiteral("Characidae"));
    }

    void withoutACollectionTheEditorComesBack()
    {
        FishDataEntryController::sharedInstance().displayItemData(nullptr, ItemContext::Coral);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot open .*CoralProfiles")));
        press("searchButton");
        QCOMPARE(m_shell->beeps, 1);
        QVERIFY(test::shownAlert());
        QCOMPARE(test::shownAlert()->title(), text("NoFishData"));
        test::pressAlertButton("defaultButton");
        QVERIFY(!searchSheet()->isVisible() && sheet()->isVisible());
        QCOMPARE(field("name")->text(), text("NewCoralName"));
    }

private:
    FishData &addFish()
    {
        auto fish = std::make_shared<FishData>(QStringLiteral("Fish"), m_tank.get());
        m_tank->fish()->appendRecord(fish);
        return *fish;
    }
    static void open(ItemData &item)
    {
        FishDataEntryController::sharedInstance().displayItemData(&item, item.itemContext());
    }
    /// A number of a table in the notation of the locale.
    static QString shownForm(const QString &text)
    {
        bool isNumber = false;
        text.toDouble(&isNumber);
        return isNumber ? test::local(text) : text;
    }
    ItemSheet *sheet() const { return m_shell->window.findChild<ItemSheet *>(); }
    FishSearchSheet *searchSheet() const { return m_shell->window.findChild<FishSearchSheet *>(); }
    QLineEdit *field(const char *key) const { return sheet()->findChild<QLineEdit *>(QLatin1String(key)); }
    QComboBox *popup(const char *key) const { return sheet()->findChild<QComboBox *>(QLatin1String(key)); }
    void press(const char *button) const { sheet()->findChild<QPushButton *>(QLatin1String(button))->click(); }
    void type(const QString &words) const
    {
        searchSheet()->nameField->selectAll();
        QTest::keyClicks(searchSheet()->nameField, words);
    }
    /// The names in the list, in its order.
    QStringList found() const
    {
        QStringList names;
        const QAbstractItemModel &list = *searchSheet()->resultsList->model();
        for (int i = 0; i < list.rowCount(); ++i)
            names << list.index(i, 0).data().toString();
        return names;
    }

    test::TestHome m_home;
    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
    QStringList m_opened; ///< addresses passed to the browser or mail program
};

BRINEMARK_TEST(QApplication, TestItemEditor)
#include "tst_item_editor.moc"
