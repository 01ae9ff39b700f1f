// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileFields.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/FishDataEntryController.h"
#include "livestock/views/ItemSheet.h"
#include "livestock/views/LivestockGroupController.h"
#include "livestock/views/PictureView.h"
#include "support/AlertDriver.h"
#include "support/DataRow.h"
#include "support/Files.h"
#include "support/RecordingShell.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <ctime>

using namespace brinemark;

namespace
{

QImage colouredImage(const QColor &colour, const QSize &size = {20, 10})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

double processorSeconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

} // namespace

class TestLivestockViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_shell = std::make_unique<test::RecordingShell>();
        m_tank = std::make_shared<Tank>(QStringLiteral("Reef"));
        m_shell->appendTank(m_tank);
        m_shell->window.show();
    }
    void cleanup()
    {
        LivestockGroupController::destroyShared();
        FishDataController::destroyShared();
        FishDataEntryController::destroyShared();
        PictureCache::destroyShared();
        m_tank.reset();
        m_shell.reset();
    }

    void newRecord_data()
    {
        test::columns<ContainerKind, QString>("kind", "name");
        QTest::newRow("fish") << ContainerKind::Fish << text("NewFishName");
        QTest::newRow("plant") << ContainerKind::Plant << text("NewPlantName");
        QTest::newRow("invert") << ContainerKind::Invert << text("NewInvertName");
        QTest::newRow("coral") << ContainerKind::Coral << text("NewCoralName");
    }
    void newRecord()
    {
        QFETCH(ContainerKind, kind);
        auto &group = LivestockGroupController::sharedInstance();
        group.setContainer(m_tank->container(kind));
        group.view()->setParent(&m_shell->window);
        group.view()->show();
        const auto sentence = [&] {
            return group.view()->findChild<QLabel *>(QStringLiteral("emptyStateSentence"))->text();
        };
        const QString empty = sentence();
        group.view()->findChild<QPushButton *>(QStringLiteral("emptyStateButton"))->click();
        QCOMPARE(m_tank->container(kind)->count(), 1);
        const auto &item = static_cast<ItemData &>(*m_tank->container(kind)->recordAt(0));
        QTEST(item.name, "name");
        QCOMPARE(item.itemContext(), traitsOf(kind).itemContext);
        QCOMPARE(m_shell->selectedRecord, &item);
        QCOMPARE(m_shell->namesEdited, 1);
        QCOMPARE(m_shell->changes, 1);
        group.updateDisplay();
        QVERIFY(sentence() != empty);
        QVERIFY(sentence().contains(u'1'));
    }

    void withoutATankNothingIsMade()
    {
        m_shell->current = nullptr;
        FishDataEntryController::sharedInstance().displayItemData(nullptr, ItemContext::Fish);
        QCOMPARE(m_tank->fish()->count(), 0);
        QCOMPARE(m_shell->changes, 0);
    }

    void untouchedStaysExactly()
    {
        FishData &fish = addFish();
        fish.ph = 8.1234567F; // more digits than are shown
        fish.sciName = QString();
        fish.diet = QStringLiteral("(unspecified)");
        fish.reefSafe = 42; // no code
        fish.itemImage = ItemImage(QByteArrayLiteral("no picture"));
        fish.notes = QStringLiteral("one\r\ntwo");
        ItemSheet &sheet = open(fish);
        QVERIFY(field(sheet, "diet").text().isEmpty());
        press(sheet, "okButton");
        QCOMPARE(fish.ph, 8.1234567F);
        QCOMPARE(fish.sciName, QString());
        QCOMPARE(fish.diet, QStringLiteral("(unspecified)"));
        QCOMPARE(fish.reefSafe, 42);
        QCOMPARE(fish.itemImage.encoded(), QByteArrayLiteral("no picture"));
        QCOMPARE(fish.notes, QStringLiteral("one\r\ntwo"));
    }

    void changesAreStored()
    {
        FishData &fish = addFish();
        FishDataController::sharedInstance().view();
        ItemSheet &sheet = open(fish);
        field(sheet, "name").setText(QStringLiteral("Tang"));
        field(sheet, "family").clear();
        field(sheet, "ph").setText(QStringLiteral("8") + QLocale().decimalPoint() + QStringLiteral("25"));
        field(sheet, "salt").setText(QStringLiteral("salty"));
        field(sheet, "count").setText(QStringLiteral("7"));
        sheet.findChild<QComboBox *>(QStringLiteral("reefSafe"))->setCurrentIndex(0);
        QTest::keyClicks(sheet.findChild<QPlainTextEdit *>(QStringLiteral("notes")), QStringLiteral("shy"));
        const QString path = m_home.filePath(QStringLiteral("tang.png"));
        QVERIFY(colouredImage(Qt::red).save(path));
        sheet.chooseImage(path);
        press(sheet, "okButton");
        QCOMPARE(fish.name, QStringLiteral("Tang"));
        QCOMPARE(fish.family, text("Unspecified"));
        QCOMPARE(fish.ph, 8.25F);
        QCOMPARE(fish.salt, 0.0F);
        QCOMPARE(fish.count, 7);
        QCOMPARE(fish.reefSafe, reefsafe::yes);
        QCOMPARE(fish.notes, QStringLiteral("shy"));
        QCOMPARE(fish.itemImage.image().size(), QSize(20, 10));
        QCOMPARE(m_shell->changes, 1);
        QWidget *profile = FishDataController::sharedInstance().view();
        QCOMPARE(profile->findChild<QLabel *>(QStringLiteral("ph"))->text(), QLocale().toString(8.25));
        QCOMPARE(profile->findChild<QLabel *>(QStringLiteral("count"))->text(), QStringLiteral("7"));

        ItemSheet &again = open(fish);
        again.findChild<QPushButton *>(QStringLiteral("deleteImageButton"))->click();
        field(again, "name").setText(QStringLiteral("nobody"));
        press(again, "cancelButton");
        QVERIFY(!fish.itemImage.isNone());
        QCOMPARE(fish.name, QStringLiteral("Tang"));
        QCOMPARE(m_shell->changes, 1);
        open(fish).findChild<QPushButton *>(QStringLiteral("deleteImageButton"))->click();
        press(again, "okButton");
        QVERIFY(fish.itemImage.isNone());
    }

    void refusedPicturesLeaveTheOldOne()
    {
        FishData &fish = addFish();
        fish.itemImage = ItemImage::fromImage(colouredImage(Qt::red));
        const QByteArray before = fish.itemImage.encoded();
        const QString damaged = m_home.filePath(QStringLiteral("damaged.png"));
        QVERIFY(test::writeFile(damaged, before.chopped(20)));
        for (const QString &path : {QStringLiteral(BRINEMARK_SAMPLES "/living-room.xml"), damaged}) {
            ItemSheet &sheet = open(fish);
            sheet.chooseImage(path);
            press(sheet, "okButton"); // it is only now known that the second file is damaged
            AlertDialog *alert = test::shownAlert();
            QVERIFY(alert && alert->title().contains(QFileInfo(path).fileName()));
            alert->reject();
            QCOMPARE(sheet.isVisible(), path == damaged);
            press(sheet, "okButton");
            QCOMPARE(fish.itemImage.encoded(), before);
        }
        QCOMPARE(m_shell->beeps, 2);
    }

    void picturesAreDecodedInTheBackgroundAndNotKeptForEver()
    {
        FishDataController &controller = FishDataController::sharedInstance();
        controller.view()->setParent(&m_shell->window);
        controller.view()->show();
        auto *view = controller.view()->findChild<PictureView *>();
        PictureCache &cache = PictureCache::sharedInstance();
        QCOMPARE(cache.limit(), qsizetype(128) << 20);
        cache.setLimit(3 * 160 * 120 * 4);
        const auto colourShown = [&] { return view->grab().toImage().pixelColor(view->width() / 2, 20); };
        FishData &fish = addFish();
        fish.itemImage = ItemImage::fromImage(colouredImage(Qt::green, {3000, 3000})); // never shown: it takes longer
        controller.displayItemData(&fish);
        for (int hue = 0; hue < 200; hue += 20) {
            fish.itemImage = ItemImage::fromImage(colouredImage(QColor::fromHsv(hue, 255, 255)));
            controller.displayItemData(&fish);
            QVERIFY(!view->showsPlaceholder());
            cache.finishRequests();
            QCOMPARE(colourShown(), QColor::fromHsv(hue, 255, 255).toRgb());
            QVERIFY(cache.used() > 0 && cache.used() <= cache.limit());
        }

        fish.itemImage = ItemImage::fromImage(colouredImage(Qt::blue, {3000, 3000}));
        const double all = processorSeconds(CLOCK_PROCESS_CPUTIME_ID);
        const double here = processorSeconds(CLOCK_THREAD_CPUTIME_ID);
        controller.displayItemData(&fish);
        cache.finishRequests();
        QVERIFY(processorSeconds(CLOCK_THREAD_CPUTIME_ID) - here <
                (processorSeconds(CLOCK_PROCESS_CPUTIME_ID) - all) / 2);
        QCOMPARE(colourShown(), QColor(Qt::blue));
    }

    void profileForgetsWhatIsGone()
    {
        FishDataController &controller = FishDataController::sharedInstance();
        controller.view();
        controller.displayItemData(&addFish());
        m_tank->fish()->clear();
        QCOMPARE(controller.currentItem(), nullptr);
        controller.updateDisplay();
        QVERIFY(!controller.view()->findChild<QPushButton *>(QStringLiteral("editButton"))->isEnabled());
    }

private:
    FishData &addFish()
    {
        auto fish = std::make_shared<FishData>(QStringLiteral("Fish"), m_tank.get());
        m_tank->fish()->appendRecord(fish);
        return *fish;
    }
    ItemSheet &open(FishData &fish)
    {
        FishDataEntryController::sharedInstance().displayItemData(&fish, fish.itemContext());
        return *m_shell->window.findChild<ItemSheet *>(QStringLiteral("itemSheet"));
    }
    static QLineEdit &field(ItemSheet &sheet, const char *key)
    {
        return *sheet.findChild<QLineEdit *>(QLatin1String(key));
    }
    static void press(ItemSheet &sheet, const char *button)
    {
        QTest::mouseClick(sheet.findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
    }

    test::TestHome m_home;
    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestLivestockViews)
#include "tst_livestock_views.moc"
