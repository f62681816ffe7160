// Scan speed of whole scene loads, on real text and on a generated scene.
//
// The real-text scene is the scenes of the corpus beside the project
// (ZK_BENCH_CORPUS overrides the folder) concatenated in manifest order until
// the size passes ZK_BENCH_SCENE_MB (default 1024); without a corpus only the
// generated scene of that size is measured. Scenes are written to the system
// temp folder and removed at exit unless ZK_BENCH_KEEP is set. Every figure is
// compared with `wc -l` on the same, page-cached file, measured in the same run.
//
// Three hostile scenes of one line each (ZK_BENCH_LONG_LINE_MB, default 256)
// show that peak memory does not follow the longest line: NUL bytes, a
// section header and a "set -g" line. Flood scenes of many short sections or
// global lines (takes, cameras, LOP and render-settings nodes; sized by item
// count, or by ZK_BENCH_FLOOD_MB) show that neither memory nor the time per
// line follows what a scene can make the lists hold.
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
#include <ctime>
#include <functional>
#include <memory>
#include <sys/resource.h>
#ifdef __GLIBC__
#    include <malloc.h>
#endif
#include <vector>

extern "C" int pLoadSceneFile(zkP::_dataPARS_LoadSceneFile* data);

namespace {

using Clock = std::chrono::steady_clock;

qint64 sceneMegabytes()
{
    const QByteArray text = qgetenv("ZK_BENCH_SCENE_MB");
    bool ok = false;
    const qint64 mb = text.toLongLong(&ok);
    return ok && mb > 0 ? mb : 1024;
}

QString corpusDir()
{
    const QString overridden = qEnvironmentVariable("ZK_BENCH_CORPUS");
    return overridden.isEmpty() ? QStringLiteral(ZK_CORPUS_DIR) : overridden;
}

/// Removes every line that starts with "take name".
void dropTakeLines(QByteArray& text)
{
    QByteArray kept;
    kept.reserve(text.size());
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = text.indexOf('\n', start);
        end = end < 0 ? text.size() : end + 1;
        if (!QByteArrayView(text).sliced(start, end - start).startsWith("take name"))
            kept.append(text.constData() + start, end - start);
        start = end;
    }
    text = kept;
}

/// The corpus scenes in manifest order, end to end, repeated until the file
/// passes \p targetBytes. False when there is no corpus or nothing to read.
///
/// One scene has one take list: only the first scene written keeps its
/// "take name" lines. Kept all, the list would hold some 970 takes at 1 GiB,
/// and the take fan-out would fill the job array up to its record cap, which
/// measures the host's allocation of 2.2 GB of job records, not the reading.
bool writeCorpusScene(const QString& path, qint64 targetBytes)
{
    const QDir corpus(corpusDir());
    QFile manifest(corpus.filePath(QStringLiteral("MANIFEST.tsv")));
    if (!manifest.open(QIODevice::ReadOnly))
        return false;
    QStringList scenes;
    manifest.readLine(); // column names
    while (!manifest.atEnd()) {
        const QByteArray row = manifest.readLine();
        const QByteArray relative = row.left(row.indexOf('\t'));
        if (!relative.trimmed().isEmpty())
            scenes.append(corpus.filePath(QString::fromUtf8(relative)));
    }
    QFile out(path);
    if (scenes.isEmpty() || !out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    bool first = true;
    while (out.size() < targetBytes) {
        for (const QString& scene : scenes) {
            QFile in(scene);
            if (!in.open(QIODevice::ReadOnly))
                return false;
            QByteArray text = in.readAll();
            if (!first)
                dropTakeLines(text);
            first = false;
            if (out.write(text) < 0)
                return false;
            if (out.size() >= targetBytes)
                break;
        }
    }
    return out.error() == QFile::NoError;
}

qint64 longLineMegabytes()
{
    const QByteArray text = qgetenv("ZK_BENCH_LONG_LINE_MB");
    bool ok = false;
    const qint64 mb = text.toLongLong(&ok);
    return ok && mb > 0 ? mb : 256;
}

/// One line of \p head, filler bytes up to \p targetBytes, then \p tail.
bool writeLongLine(const QString& path, qint64 targetBytes, const QByteArray& head, char filler,
    const QByteArray& tail)
{
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(head) < 0)
        return false;
    const QByteArray block(1 << 20, filler);
    for (qint64 left = targetBytes - head.size() - tail.size(); left > 0; left -= block.size()) {
        if (out.write(block.constData(), qMin<qint64>(left, block.size())) < 0)
            return false;
    }
    return out.write(tail) >= 0 && out.error() == QFile::NoError;
}

qint64 floodMegabytes()
{
    const QByteArray text = qgetenv("ZK_BENCH_FLOOD_MB");
    bool ok = false;
    const qint64 mb = text.toLongLong(&ok);
    return ok && mb > 0 ? mb : 0;
}

/// Writes block(0), block(1), ... until \p count blocks, or \p targetBytes when
/// that is above 0; the number of lines written goes to \p lines.
bool writeFlood(const QString& path, qint64 count, qint64 targetBytes,
    const std::function<QByteArray(qint64)>& block, qint64& lines)
{
    QFile out(path);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QByteArray buffer;
    lines = 0;
    qint64 written = 0;
    for (qint64 i = 0; targetBytes > 0 ? written < targetBytes : i < count; ++i) {
        const QByteArray text = block(i);
        buffer += text;
        written += text.size();
        lines += text.count('\n');
        if (buffer.size() >= (1 << 20)) {
            if (out.write(buffer) < 0)
                return false;
            buffer.clear();
        }
    }
    return out.write(buffer) >= 0 && out.error() == QFile::NoError;
}

struct Scene
{
    const char* name;
    QString path;
    qint64 bytes = 0;
    double wcSeconds = 0;
    bool hostile = false; ///< only the whole load is measured, once
    qint64 lines = 0; ///< known for flood scenes: the time per line is reported
};

std::vector<Scene>& scenes()
{
    static std::vector<Scene> list;
    return list;
}

double seconds(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Best of three `wc -l` runs; the first also warms the page cache.
double wcSeconds(const QString& path)
{
    const QByteArray command = "wc -l '" + QFile::encodeName(path) + "' > /dev/null";
    double fastest = 1e9;
    for (int i = 0; i < 3; ++i) {
        const auto start = Clock::now();
        if (std::system(command.constData()) != 0)
            return 0.0;
        fastest = std::min(fastest, seconds(start));
    }
    return fastest;
}

/// Writes the scene once (or finds it kept from an earlier run) and times `wc -l` on it.
bool prepare(Scene& scene, const std::function<bool(const QString&, qint64)>& write,
    qint64 megabytes = sceneMegabytes())
{
    if (!QFile::exists(scene.path) && !write(scene.path, megabytes << 20)) {
        QFile::remove(scene.path);
        return false;
    }
    scene.bytes = QFile(scene.path).size();
    scene.wcSeconds = wcSeconds(scene.path);
    return true;
}

/// Gives memory freed by earlier benchmarks back to the system, so it does
/// not count as resident in the next one.
void releaseFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

/// Starts a new peak of resident memory, so each benchmark reports its own;
/// false where the kernel offers no reset.
bool resetPeakMemory()
{
    QFile clearRefs(QStringLiteral("/proc/self/clear_refs"));
    return clearRefs.open(QIODevice::WriteOnly) && clearRefs.write("5") == 1;
}

/// Peak resident memory since the last reset (VmHWM), else since the process started.
double peakMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
        }
    }
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0; // kilobytes on Linux
}

/// Times \p body per iteration and reports throughput, the ratio of the
/// fastest iteration to the fastest `wc -l` on the same file (timed before and
/// again right after, so both see the same load of the machine) and the peak
/// resident memory while the benchmark ran.
template <typename Body>
void measure(benchmark::State& state, Scene& scene, Body body)
{
    releaseFreedMemory();
    resetPeakMemory();
    double fastest = 1e9;
    double fastestCpu = 1e9;
    for (auto _ : state) {
        const auto start = Clock::now();
        const std::clock_t cpuStart = std::clock();
        body();
        const double elapsed = seconds(start);
        state.SetIterationTime(elapsed);
        fastest = std::min(fastest, elapsed);
        fastestCpu = std::min(fastestCpu, double(std::clock() - cpuStart) / CLOCKS_PER_SEC);
    }
    // The load runs on one thread: its processor time is what it would take
    // on an idle machine, where the wall time also counts other builds' turns.
    state.counters["cpu_s"] = fastestCpu;
    state.counters["peak_MB"] = peakMegabytes();
    scene.wcSeconds = std::min(scene.wcSeconds, wcSeconds(scene.path));
    state.SetBytesProcessed(int64_t(scene.bytes) * state.iterations());
    state.counters["fastest_s"] = fastest;
    state.counters["wc_l_s"] = scene.wcSeconds;
    state.counters["x_wc_l"] = scene.wcSeconds > 0 ? fastest / scene.wcSeconds : 0;
}

void loadScene(benchmark::State& state, Scene& scene)
{
    auto jobs = std::make_unique<zkJ::_JobBasicsArray>();
    auto sceneFile = std::make_unique<_zkString<500>>();
    sceneFile->set(scene.path);
    auto settings = std::make_unique<zkP::_submitterSettings>();
    *settings = {};
    zkP::_dataPARS_LoadSceneFile data { sceneFile.get(), jobs.get(), settings.get() };
    int result = 0;
    measure(state, scene, [&] {
        jobs->clear();
        result = pLoadSceneFile(&data);
    });
    if (result != 1)
        state.SkipWithError("the load did not return 1");
    // The job records are the host's: their size is given apart from the peak.
    const double records = double(jobs->allocated) * sizeof(zkJ::_JobBasics_largePath) / 1048576.0;
    state.counters["jobs"] = jobs->count;
    if (scene.lines > 0) {
        state.counters["us_per_line"]
            = state.counters["fastest_s"].value * 1e6 / double(scene.lines);
        state.counters["cpu_us_per_line"]
            = state.counters["cpu_s"].value * 1e6 / double(scene.lines);
    }
    state.counters["records_MB"] = records;
    state.counters["own_MB"] = state.counters["peak_MB"].value - records;
}

/// The line source as the scanner's slowest path uses it: every raw line, no decoding.
void lineSourceRaw(benchmark::State& state, Scene& scene)
{
    qint64 lines = 0;
    measure(state, scene, [&] {
        QFile file(scene.path);
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        LineSource source(stream);
        QByteArrayView line;
        lines = 0;
        while (source.nextRaw(line))
            ++lines;
    });
    state.counters["lines"] = double(lines);
}

/// The line source as a reader that decodes everything uses it.
void lineSourceDecoded(benchmark::State& state, Scene& scene)
{
    measure(state, scene, [&] {
        QFile file(scene.path);
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        LineSource source(stream);
        QByteArrayView raw;
        while (source.nextRaw(raw))
            benchmark::DoNotOptimize(LineSource::decode(raw));
    });
}

/// The plain Qt way, for comparison: a text-mode file read line by line.
void textModeReadLine(benchmark::State& state, Scene& scene)
{
    measure(state, scene, [&] {
        QFile file(scene.path);
        file.open(QIODevice::ReadOnly | QIODevice::Text);
        QTextStream stream(&file);
        QString line;
        while (stream.readLineInto(&line)) { }
    });
}

/// Registers one benchmark for every scene, scene by scene; whole loads come
/// first, so their peak memory is not that of a benchmark before them.
void registerBenchmarks(std::vector<Scene>& all)
{
    using Function = void (*)(benchmark::State&, Scene&);
    const struct
    {
        const char* name;
        Function function;
        bool once;
    } benchmarks[] = {
        { "LoadScene", loadScene, false },
        { "LineSourceRaw", lineSourceRaw, false },
        { "LineSourceDecoded", lineSourceDecoded, true },
        { "TextModeReadLine", textModeReadLine, true },
    };
    for (const auto& b : benchmarks) {
        for (Scene& scene : all) {
            if (scene.hostile && b.function != loadScene)
                continue;
            const std::string name = std::string(b.name) + "/" + scene.name;
            Scene* target = &scene;
            auto* registered = benchmark::RegisterBenchmark(
                name.c_str(), [b, target](benchmark::State& state) { b.function(state, *target); })
                                   ->UseManualTime()
                                   ->Unit(benchmark::kMillisecond);
            if (b.once || scene.hostile)
                registered->Iterations(1);
            else
                registered->MinTime(2.0);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const QDir temp(QDir::tempPath());
    const QString size = QString::number(sceneMegabytes());
    scenes().push_back(
        { "real", temp.filePath(QStringLiteral("zkScanBench_real_%1MB.hip").arg(size)) });
    scenes().push_back(
        { "generated", temp.filePath(QStringLiteral("zkScanBench_%1MB.hip").arg(size)) });
    if (!prepare(scenes()[0], writeCorpusScene)) {
        std::fprintf(
            stderr, "no corpus at %s: real-text figures skipped\n", qPrintable(corpusDir()));
        scenes().erase(scenes().begin());
    }
    if (!prepare(scenes().back(), writeBenchScene)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(scenes().back().path));
        return 1;
    }
    const QString lineSize = QString::number(longLineMegabytes());
    const struct
    {
        const char* name;
        QByteArray head;
        char filler;
        QByteArray tail;
    } longLines[] = {
        { "nul-line", QByteArray(), '\0', QByteArray() },
        { "header-line", "obj/geo1/", 'a', ".parm {\n" },
        { "set-line", "set -g X = '", 'a', "'\n" },
    };
    for (const auto& l : longLines) {
        Scene scene { l.name,
            temp.filePath(
                QStringLiteral("zkScanBench_%1_%2MB.hip").arg(QLatin1String(l.name), lineSize)) };
        scene.hostile = true;
        const auto write = [&](const QString& path, qint64 bytes) {
            return writeLongLine(path, bytes, l.head, l.filler, l.tail);
        };
        if (prepare(scene, write, longLineMegabytes()))
            scenes().push_back(scene);
    }
    const struct
    {
        const char* name;
        qint64 count;
        QByteArray (*block)(qint64);
    } floods[] = {
        { "take-flood", 4000000,
            [](qint64 i) { return "take name take" + QByteArray::number(i) + " -flags 0\n"; } },
        { "camera-flood", 1000000,
            [](qint64 i) {
                return "obj/cam" + QByteArray::number(i)
                    + ".parm {\nres\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)\n}\n";
            } },
        { "lop-flood", 1000000,
            [](qint64 i) {
                return "stage/hdprman" + QByteArray::number(i)
                    + ".parm {\npicture\t[ 0\tlocks=0 ]\t(\t\"/r/a.$F4.exr\"\t)\n}\n";
            } },
        { "render-settings-flood", 1000000,
            [](qint64 i) {
                return "stage/rendersettings" + QByteArray::number(i)
                    + ".parm {\nxn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t"
                      "\"/r/a.rs\"\t)\n}\n";
            } },
        // Archive members as real scenes write them: a cpio header line, the
        // member's name, a NUL and its first line.
        { "init-flood", 1000000,
            [](qint64 i) {
                return "070707" + QByteArray(70, '0') + "obj/geo/file" + QByteArray::number(i)
                    + ".init" + '\0' + "type = file\n";
            } },
        { "inputs-flood", 500000,
            [](qint64 i) {
                const QByteArray name = "obj/geo/merge" + QByteArray::number(i);
                return "070707" + QByteArray(70, '0') + name + ".init" + '\0' + "type = merge\n"
                    + "070707" + QByteArray(70, '0') + name + ".def" + '\0'
                    + "comment \"\"\nflags =  bypass off display on\ninputs\n{\n0 \tmerge"
                    + QByteArray::number(i + 1) + " 0 1\n1 \tmerge" + QByteArray::number(i + 2)
                    + " 0 1\n}\nend\n";
            } },
    };
    const qint64 floodMb = floodMegabytes();
    for (const auto& f : floods) {
        const QString size = floodMb > 0 ? QString::number(floodMb) + QStringLiteral("MB")
                                         : QString::number(f.count);
        Scene scene { f.name,
            temp.filePath(
                QStringLiteral("zkScanBench_%1_%2.hip").arg(QLatin1String(f.name), size)) };
        scene.hostile = true;
        qint64 lines = 0;
        const auto write = [&](const QString& path, qint64) {
            return writeFlood(path, f.count, floodMb << 20, f.block, lines);
        };
        if (prepare(scene, write)) {
            // A kept scene from an earlier run: its lines are counted again.
            if (lines == 0) {
                QFile kept(scene.path);
                kept.open(QIODevice::ReadOnly);
                while (!kept.atEnd())
                    lines += kept.read(1 << 20).count('\n');
            }
            scene.lines = lines;
            scenes().push_back(scene);
        }
    }
    registerBenchmarks(scenes());
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    if (qEnvironmentVariableIsEmpty("ZK_BENCH_KEEP")) {
        for (const Scene& scene : scenes())
            QFile::remove(scene.path);
    }
    return 0;
}
