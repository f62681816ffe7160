// Scan speed of whole scene loads on a generated production-sized scene.
//
// ZK_BENCH_SCENE_MB sets the scene size (default 256); the scene is written
// to the system temp folder once and removed at exit unless ZK_BENCH_KEEP is
// set. Every figure is compared with `wc -l` on the same, page-cached file.
#include "bench/sceneGenerator.h"
#include "plugin/lineSource.h"
#include "plugin/zkPluginRecords.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sys/resource.h>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace {

using Clock = std::chrono::steady_clock;

qint64 sceneMegabytes()
{
    const QByteArray text = qgetenv("ZK_BENCH_SCENE_MB");
    bool ok = false;
    const qint64 mb = text.toLongLong(&ok);
    return ok && mb > 0 ? mb : 256;
}

QString scenePath()
{
    static const QString path = [] {
        const QString p
            = QDir(QDir::tempPath())
                  .filePath(QStringLiteral("zkScanBench_%1MB.hip").arg(sceneMegabytes()));
        if (!QFile::exists(p) && !writeBenchScene(p, sceneMegabytes() << 20)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(p));
            std::exit(1);
        }
        return p;
    }();
    return path;
}

double seconds(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Best of three `wc -l` runs; the first also warms the page cache.
double wcSeconds()
{
    static const double best = [] {
        const QByteArray command = "wc -l '" + QFile::encodeName(scenePath()) + "' > /dev/null";
        double fastest = 1e9;
        for (int i = 0; i < 3; ++i) {
            const auto start = Clock::now();
            if (std::system(command.constData()) != 0)
                return 0.0;
            fastest = std::min(fastest, seconds(start));
        }
        return fastest;
    }();
    return best;
}

double peakMegabytes()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0; // kilobytes on Linux
}

qint64 sceneBytes()
{
    return QFile(scenePath()).size();
}

/// Times \p body per iteration and reports throughput, the ratio to `wc -l`
/// and the process's peak resident memory.
template <typename Body>
void measure(benchmark::State& state, Body body)
{
    const qint64 bytes = sceneBytes();
    const double wc = wcSeconds();
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        body();
        const double elapsed = seconds(start);
        state.SetIterationTime(elapsed);
        total += elapsed;
    }
    state.SetBytesProcessed(int64_t(bytes) * state.iterations());
    const double perIteration = total / double(state.iterations());
    state.counters["x_wc_l"] = wc > 0 ? perIteration / wc : 0;
    state.counters["wc_l_s"] = wc;
    state.counters["peak_MB"] = peakMegabytes();
}

void BM_LoadScene(benchmark::State& state)
{
    auto jobs = std::make_unique<zkJ::_JobBasicsArray>();
    auto sceneFile = std::make_unique<_zkString<500>>();
    sceneFile->set(scenePath());
    auto settings = std::make_unique<zkP::_submitterSettings>();
    *settings = {};
    zkP::_dataPARS_LoadSceneFile data { sceneFile.get(), jobs.get(), settings.get() };
    int result = 0;
    measure(state, [&] {
        jobs->clear();
        result = pLoadSceneFile(&data);
    });
    if (result != 1)
        state.SkipWithError("the load did not return 1");
}

/// The line source as the scanner uses it: raw lines, no decoding.
void BM_LineSourceRaw(benchmark::State& state)
{
    qint64 lines = 0;
    measure(state, [&] {
        QFile file(scenePath());
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        LineSource source(stream);
        QByteArrayView line;
        bool hasUnderscore = false;
        lines = 0;
        while (source.nextRaw(line, &hasUnderscore))
            ++lines;
    });
    state.counters["lines"] = double(lines);
}

/// The line source as the readers use it: every line decoded and trimmed.
void BM_LineSourceDecoded(benchmark::State& state)
{
    measure(state, [&] {
        QFile file(scenePath());
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        LineSource source(stream);
        QStringView line;
        while (source.nextView(line)) { }
    });
}

/// The plain Qt way, for comparison: a text-mode file read line by line.
void BM_TextModeReadLine(benchmark::State& state)
{
    measure(state, [&] {
        QFile file(scenePath());
        file.open(QIODevice::ReadOnly | QIODevice::Text);
        QTextStream stream(&file);
        QString line;
        while (stream.readLineInto(&line)) { }
    });
}

} // namespace

BENCHMARK(BM_LoadScene)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_LineSourceRaw)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_LineSourceDecoded)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_TextModeReadLine)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    scenePath();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (qEnvironmentVariableIsEmpty("ZK_BENCH_KEEP"))
        QFile::remove(scenePath());
    return 0;
}
