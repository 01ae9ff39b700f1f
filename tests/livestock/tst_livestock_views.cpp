// SPDX-License-Identifier: GPL-3.0-or-later

#include "livestock/ProfileFields.h"
#include "livestock/views/FishDataController.h"
#include "livestock/views/LivestockGroupController.h"
#include "livestock/views/PictureView.h"
#include "support/RecordingShell.h"
#include "support/TestHome.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QLabel>
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
        PictureCache::destroyShared();
        m_tank.reset();
        m_shell.reset();
    }

    void picturesAreDecodedInTheBackgroundAndNotKeptForEver()
    {
        FishDataController &controller = FishDataController::sharedInstance();
        controller.view()->setParent(&m_shell->window);
        controller.view()->show();
        auto *view = controller.view()->findChild<PictureView *>();
        PictureCache &cache = PictureCache::sharedInstance();
        QCOMPARE(cache.limit(), qsizetype(128) << 20);
        cache.setLimit(3 * view->width() * view->height() * 4);
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
    test::TestHome m_home;
    std::unique_ptr<test::RecordingShell> m_shell;
    std::shared_ptr<Tank> m_tank;
};

BRINEMARK_TEST(QApplication, TestLivestockViews)
#include "tst_livestock_views.moc"
