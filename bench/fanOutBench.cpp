// Job-array growth and the take/wedge fan-out.
//
// The job array grows by exactly one record of 227 KB per job, with realloc.
// BM_ArrayGrowth shows what that costs per record as the array grows: if the
// allocator copied the block on every growth, the time per record would grow
// with the array; glibc moves blocks this large by remapping their pages, so
// it stays flat. BM_FanOutScene loads a scene of 250 drivers, 10 takes and a
// wedge of 4 variants through the plugin's entry point. It runs first: peak
// memory is the process's, and the growth runs go up to 10000 records.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <sys/resource.h>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace {

double peakMegabytes()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0;
}

QByteArray parameter(const char* name, const QByteArray& value)
{
    return QByteArray(name) + "\t[ 0\tlocks=0 ]\t(\t" + value + "\t)\n";
}

/// 250 Mantra drivers, 10 takes, and a wedge of 4 variants on the first driver.
QByteArray fanOutScene()
{
    QByteArray s = "frange 1 100\nset -g _HIP_SAVEVERSION = '19.5.303'\n";
    for (int t = 0; t < 10; ++t)
        s += "take name take" + QByteArray::number(t) + " kids 0\n";
    s += "obj/cam1.parm {\n" + parameter("res", "1920\t1080") + "}\n";
    for (int d = 0; d < 250; ++d) {
        s += "out/mantra" + QByteArray::number(d) + ".parm {\n";
        s += parameter("camera", "/obj/cam1");
        s += parameter("vm_picture", "$HIP/render/$OS.$WEDGENUM.$F4.exr");
        s += "}\n";
    }
    s += "out/wedge1.parm {\n" + parameter("driver", "mantra0")
        + parameter("wedgemethod", "channel") + parameter("name1", "seed")
        + parameter("range1", "1\t4") + parameter("steps1", "4") + "}\n";
    return s;
}

void BM_FanOutScene(benchmark::State& state)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("fanout.hip"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(fanOutScene()) < 0) {
        state.SkipWithError("cannot write the scene");
        return;
    }
    file.close();
    _zkString<500> scene(path);
    int jobCount = 0;
    for (auto _ : state) {
        zkJ::_JobBasicsArray jobs;
        zkP::_dataPARS_LoadSceneFile data { &scene, &jobs, nullptr };
        if (pLoadSceneFile(&data) != 1)
            state.SkipWithError("the load failed");
        jobCount = jobs.count;
    }
    state.counters["jobs"] = jobCount;
    state.counters["array_MB"] = double(jobCount) * sizeof(zkJ::_JobBasics_largePath) / 1048576.0;
    state.counters["peak_MB"] = peakMegabytes();
}
BENCHMARK(BM_FanOutScene)->Unit(benchmark::kMillisecond);

void BM_ArrayGrowth(benchmark::State& state)
{
    const int records = int(state.range(0));
    long moves = 0;
    double seconds = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        zkJ::_JobBasicsArray jobs;
        zkJ::_JobBasics_largePath* job = nullptr;
        const zkJ::_JobBasics_largePath* block = nullptr;
        for (int i = 0; i < records; ++i) {
            if (!jobs.getNewJob(job))
                state.SkipWithError("job array refused a record");
            if (jobs.records != block)
                ++moves;
            block = jobs.records;
        }
        benchmark::DoNotOptimize(jobs.records);
        seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    state.counters["us_per_record"] = seconds * 1e6 / (double(records) * state.iterations());
    state.counters["block_moves"] = double(moves) / double(state.iterations());
    state.counters["array_MB"] = double(records) * sizeof(zkJ::_JobBasics_largePath) / 1048576.0;
    state.counters["peak_MB"] = peakMegabytes();
}
BENCHMARK(BM_ArrayGrowth)
    ->Arg(1000)
    ->Arg(2500)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
