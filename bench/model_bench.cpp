// SPDX-License-Identifier: GPL-3.0-or-later

// Reading, writing and sorting large tank files. BRINEMARK_BENCH_DATA names the folder that bench/make-bench-data
// filled.
//
// Every ratio is printed beside its figure, so that a slower machine can check the targets too: reading takes at most 4
// times the bare XML parse, writing at most 5 times a safe copy of the same bytes, sorting 100,000 tests at most 60 ms,
// and a process that opens a file needs at most 6 (tests) or 3 (pictures) times the file's size in memory.

#include "base/plist/XmlReader.h"
#include "base/plist/XmlWriter.h"
#include "base/saving/SafeFile.h"
#include "model/Tank.h"
#include "model/TankFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <map>

using namespace brinemark;

namespace
{

QString dataFile(const std::string &name)
{
    return qEnvironmentVariable("BRINEMARK_BENCH_DATA") + u'/' + QString::fromStdString(name);
}

/// Seconds of the fastest pass of each benchmark, for the ratios.
std::map<std::string, double> &passSeconds()
{
    static std::map<std::string, double> seconds;
    return seconds;
}

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double wallSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Runs `pass` for the benchmark and records the time of its fastest pass under `name`. Reading is measured in CPU
/// time, which other work on the machine disturbs less; writing in wall-clock time, because it includes the disk.
template <class Pass>
void measure(benchmark::State &state, const std::string &name, double (*seconds)(), Pass pass)
{
    double best = 1e9;
    for (auto iteration : state) {
        const double before = seconds();
        pass();
        best = std::min(best, seconds() - before);
    }
    passSeconds()[name] = best;
}

void reportRatio(benchmark::State &state, const std::string &name, const std::string &base)
{
    if (passSeconds().contains(base))
        state.counters["ratio"] = passSeconds()[name] / passSeconds()[base];
}

void bareParse(benchmark::State &state, const std::string &file)
{
    const QByteArray content = readFile(dataFile(file)).bytes;
    if (content.isEmpty())
        return state.SkipWithError("BRINEMARK_BENCH_DATA has no such file");
    QByteArray bytes;
    measure(state, "parse " + file, cpuSeconds, [&] {
        bytes = content;
        bytes.detach();
        pugi::xml_document document;
        if (!document.load_buffer_inplace(bytes.data(), std::size_t(bytes.size()),
                                          pugi::parse_default | pugi::parse_embed_pcdata))
            state.SkipWithError("no XML");
        benchmark::DoNotOptimize(document.document_element());
    });
}

void readModel(benchmark::State &state, const std::string &file)
{
    const QString path = dataFile(file);
    double modelSeconds = 1e9;
    measure(state, "read " + file, cpuSeconds, [&] {
        const TankFileContent content = readTankDictionary(path);
        TankList tanks;
        const double before = cpuSeconds();
        if (!content.ok || !readTanks(content.root, path, tanks).ok)
            state.SkipWithError("not read");
        modelSeconds = std::min(modelSeconds, cpuSeconds() - before);
    });
    state.counters["dictionary_to_model_s"] = modelSeconds;
    reportRatio(state, "read " + file, "parse " + file);
}

void safeCopy(benchmark::State &state, const std::string &file)
{
    const QByteArray content = readFile(dataFile(file)).bytes;
    const QTemporaryDir folder;
    measure(state, "copy " + file, wallSeconds, [&] {
        if (!writeFileSafely(folder.filePath(QStringLiteral("copy.xml")), content).ok)
            state.SkipWithError("not written");
    });
}

void writeModel(benchmark::State &state, const std::string &file)
{
    TankList tanks;
    readTanks(readTankDictionary(dataFile(file)).root, {}, tanks);
    const QTemporaryDir folder;
    double dictionarySeconds = 1e9;
    measure(state, "write " + file, wallSeconds, [&] {
        const double before = cpuSeconds();
        const plist::Dict root = tankFileDictionary(tanks, 0, 1);
        dictionarySeconds = std::min(dictionarySeconds, cpuSeconds() - before);
        if (!writeTankDictionary(folder.filePath(QStringLiteral("saved.xml")), root).ok)
            state.SkipWithError("not written");
    });
    state.counters["model_to_dictionary_s"] = dictionarySeconds;
    reportRatio(state, "write " + file, "copy " + file);
}

/// Sorts the tests of all tanks, in one list, by a column; the list is in another order before.
void sortTests(benchmark::State &state, const QString &identifier)
{
    TankList tanks;
    readTanks(readTankDictionary(dataFile("tests.xml")).root, {}, tanks);
    Tank all(QStringLiteral("All"));
    for (const auto &tank : tanks) {
        for (const auto &test : tank->conditionListArray())
            all.condition()->appendRecord(test);
    }
    const Condition::Records unsorted = all.conditionListArray();
    bool ascending = true;
    for (auto iteration : state) {
        state.PauseTiming();
        all.conditionListArray() = unsorted;
        ascending = !ascending;
        state.ResumeTiming();
        all.condition()->sortWithIdentifier(identifier, ascending);
    }
    state.counters["tests"] = double(unsorted.size());
}

/// Peak memory of a fresh process that opens the file and holds its dictionary and tanks.
void openInFreshProcess(benchmark::State &state, const std::string &file)
{
    double kilobytes = 0;
    for (auto iteration : state) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--open"), dataFile(file)});
        process.waitForFinished(-1);
        kilobytes = process.readAllStandardOutput().trimmed().toDouble();
        if (process.exitCode() != 0)
            state.SkipWithError("not opened");
    }
    state.counters["peak_MB"] = kilobytes / 1024;
    state.counters["ratio"] = kilobytes * 1024 / double(QFileInfo(dataFile(file)).size());
}

/// The peak memory of this process in kB. getrusage() is not used, because its figure includes the process that started
/// this one.
QByteArray peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return {};
    const QByteArray label = "VmHWM:";
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(label))
            return line.mid(label.size()).trimmed().split(' ').front();
    }
    return {};
}

int openAndReport(const QString &path)
{
    const TankFileContent content = readTankDictionary(path);
    TankList tanks;
    const bool ok = content.ok && readTanks(content.root, path, tanks).ok;
    std::puts(peakMemory().constData());
    return ok ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--open") == 0)
        return openAndReport(QString::fromLocal8Bit(argv[2]));

    for (const std::string file : {"tests.xml", "pictures.xml"}) {
        const auto add = [&](const char *name, void (*function)(benchmark::State &, const std::string &)) {
            benchmark::RegisterBenchmark((std::string(name) + "/" + file).c_str(), function, file)
                ->Unit(benchmark::kMillisecond)
                ->Iterations(5);
        };
        add("parse", bareParse);
        add("read", readModel);
        add("copy", safeCopy);
        add("write", writeModel);
        add("open", openInFreshProcess);
    }
    for (const Field<ConditionData> &field : FieldTable<ConditionData>::fields) {
        const QString identifier = field.key.toString();
        benchmark::RegisterBenchmark(("sort/" + identifier.toStdString()).c_str(), sortTests, identifier)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(6);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
