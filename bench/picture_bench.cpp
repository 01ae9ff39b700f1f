// SPDX-License-Identifier: GPL-3.0-or-later

// Showing the profile of a record with a photograph of 12 megapixels: the time until its text is on screen. Saving a
// file with ten such photographs: the time that it takes once they are converted, and, while they are being converted,
// how long the program does not react. Run it with QT_QPA_PLATFORM=offscreen and a HOME of its own.

#include "app/ShoalwatchController.h"
#include "app/ShoalwatchDelegate.h"
#include "app/documents/DocumentCommands.h"
#include "app/documents/TankDocument.h"
#include "app/startup/BrinemarkApp.h"
#include "app/tree/TankListController.h"
#include "model/LivestockData.h"
#include "model/Tank.h"
#include "model/pictures/PngConversion.h"

#include <QBuffer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>

using namespace brinemark;

namespace
{

constexpr int pictures = 10;

double seconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Soft shapes under the noise of a camera, which decides how well a photograph can be compressed.
QByteArray photograph()
{
    QImage image(4000, 3000, QImage::Format_RGB32);
    quint32 noise = 1;
    const auto grain = [&noise](int shift) { return int((noise >> shift) % 9) - 4; };
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int light = int(128 + 55 * std::sin(x / 200.0) + 50 * std::cos(y / 150.0 + x / 333.0));
            line[x] = qRgb(light + grain(24), light + grain(16), 200 - light / 2 + grain(8));
        }
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 92);
    return buffer.data();
}

/// Gives the first tank ten fish with photographs that nothing has converted.
void addPictures(const QByteArray &jpeg)
{
    Tank &tank = *TankListController::sharedInstance().list().at(0);
    tank.fish()->clear();
    for (int i = 0; i < pictures; ++i) {
        const auto fish = std::make_shared<FishData>(&tank);
        fish->itemImage = ItemImage(jpeg);
        tank.fish()->appendRecord(fish);
    }
}

void saveConverted(benchmark::State &state, const QByteArray &jpeg, const QString &path)
{
    TankDocument &document = ShoalwatchController::sharedInstance().document();
    addPictures(jpeg);
    convertPicturesNow(document.tanks());
    for (auto iteration : state) {
        if (document.writeTankFileWithPath(path) != TankDocument::WriteOutcome::Written)
            state.SkipWithError("not written");
    }
    state.counters["file_MB"] = double(QFileInfo(path).size()) / 1e6;
}

void saveUnconverted(benchmark::State &state, const QByteArray &jpeg, const QString &path)
{
    ShoalwatchController &main = ShoalwatchController::sharedInstance();
    main.document().writeTankFileWithPath(path);
    double longestConverting = 0;
    double longestWriting = 0;
    for (auto iteration : state) {
        addPictures(jpeg);
        main.document().documentModifiedWithChange(true);
        double last = seconds();
        const auto note = [&] {
            double &longest = main.document().isEdited() ? longestConverting : longestWriting;
            longest = std::max(longest, seconds() - last);
            last = seconds();
        };
        QTimer tick;
        QObject::connect(&tick, &QTimer::timeout, note);
        tick.start(1);
        main.performCommand(Command::Save);
        while (main.document().isEdited())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        note();
    }
    state.counters["longest_gap_converting_s"] = longestConverting;
    state.counters["longest_gap_writing_s"] = longestWriting;
}

/// Stepping through the tree to records with photographs: the time until the text is on screen.
void selectProfile(benchmark::State &state, const QByteArray &jpeg, const QString &)
{
    ShoalwatchController &main = ShoalwatchController::sharedInstance();
    addPictures(jpeg);
    main.updateTree();
    const Container &fish = *TankListController::sharedInstance().list().at(0)->fish();
    int next = 0;
    for (auto iteration : state) {
        main.selectInTree(*fish.recordAt(next++ % pictures));
        main.mainWindow()->repaint();
    }
    if (main.currentView() != MainView::LivestockItem)
        state.SkipWithError("not shown");
}

} // namespace

int main(int argc, char **argv)
{
    BrinemarkApp app(argc, argv);
    benchmark::Initialize(&argc, argv);
    ShoalwatchDelegate &delegate = ShoalwatchDelegate::sharedInstance();
    delegate.applicationWillFinishLaunching();
    ShoalwatchController::sharedInstance().display();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("pictures.xml"));
    const QByteArray jpeg = photograph();
    for (const auto &[name, function] :
         {std::pair("save/converted", &saveConverted), {"save/unconverted", &saveUnconverted}})
        benchmark::RegisterBenchmark(name, function, jpeg, path)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3)
            ->UseRealTime();
    benchmark::RegisterBenchmark("select/profile", &selectProfile, jpeg, path)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(pictures)
        ->UseRealTime();
    benchmark::RunSpecifiedBenchmarks();
    ShoalwatchDelegate::destroyEverything();
    return 0;
}
