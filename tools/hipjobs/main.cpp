// hipjobs: loads the scene parser plugin the way the render-queue manager
// does (dlopen, entry points resolved by name, host-built records) and prints
// the jobs of scenes, as tables, JSON Lines, a summary or a Graphviz graph.
//
// The job array is built from its documented binary layout (tools/host), not
// with the plugin's constructor: the tool must see exactly what a host sees,
// and a layout drift between the two sides shows up as a failed load, not as
// a quietly consistent pair. The job methods the host may call on records
// (conversion, identifiers, display name, job variables) come from the plugin
// library the tool is linked with; the entry points always through dlsym.
//
// One library load serves every scene of a run, as in the host.
#include "plugin/loadResult.h"
#include "tools/hipjobs/sceneList.h"
#include "tools/hipjobs/summary.h"
#include "tools/host/hostRecords.h"
#include "tools/host/jobGraph.h"
#include "tools/host/jobJson.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

using namespace zkHost;
using namespace hipjobs;

// Exit statuses. A load result r other than 1 exits with ExitResultBase + r,
// so every result code keeps its own status; codes outside 0..245 share 255.
constexpr int ExitOk = 0;
constexpr int ExitUsage = 2;
constexpr int ExitPluginLoad = 3;
constexpr int ExitInfoRejected = 4;
constexpr int ExitResultBase = 10;
constexpr int ExitResultOutOfRange = 255;
constexpr int MaxMappedResult = 245;

const char* const PluginFileName = "libzkSceneParserHoudini.so";

int exitStatusForResult(int result)
{
    if (result == LoadOk)
        return ExitOk;
    if (result < 0 || result > MaxMappedResult)
        return ExitResultOutOfRange;
    return ExitResultBase + result;
}

void printOut(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
}

/// One line on a terminal's stderr that says how far a run of several scenes
/// is. It is taken away before anything else is written, so that neither the
/// output on the same terminal nor an error line is mixed with it.
class Progress
{
public:
    void enable(int total)
    {
        total_ = total;
        enabled_ = total > 1 && isatty(STDERR_FILENO);
    }

    void show(int done, const QString& scene)
    {
        if (!enabled_)
            return;
        std::fflush(stdout);
        QString line = QStringLiteral("[%1/%2] ").arg(done).arg(total_);
        const int room = std::max(10, terminalWidth() - 1 - int(line.size()));
        line += scene.size() > room ? QStringLiteral("...") + scene.right(room - 3) : scene;
        const QByteArray bytes = "\r\033[K" + line.toLocal8Bit();
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
        shown_ = true;
    }

    void clear()
    {
        if (!shown_)
            return;
        std::fputs("\r\033[K", stderr);
        shown_ = false;
    }

private:
    static int terminalWidth()
    {
        winsize size {};
        if (ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
            return size.ws_col;
        return 80;
    }

    int total_ = 0;
    bool enabled_ = false;
    bool shown_ = false;
};

Progress progress;

void printError(const QString& text)
{
    progress.clear();
    const QByteArray line = QStringLiteral("hipjobs: %1\n").arg(text).toLocal8Bit();
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

// ---- output ---------------------------------------------------------------

/// The frame number as the host writes it: one "#" per digit, none for a
/// single output file.
QString frameToken(const zkJ::_JobBasics_largePath& job)
{
    return job.imageSingleOutputFile ? QString() : QString(int(job.padding), u'#');
}

QString imagePath(const zkJ::_JobBasics_largePath& job)
{
    return text(job.imageDir) + text(job.imageFileName) + frameToken(job)
        + text(job.imageExtension);
}

QString frames(const zkJ::_JobBasics_largePath& job)
{
    QString f = QStringLiteral("%1-%2").arg(job.seqStart).arg(job.seqEnd);
    if (job.seqStep > 1)
        f += QStringLiteral(" x%1").arg(job.seqStep);
    const QString set = text(job.seqFrameSet);
    if (!set.isEmpty())
        f += QStringLiteral(" [%1]").arg(set);
    return f;
}

QString waits(const zkJ::_JobBasics_largePath& job)
{
    const int n = std::min<int>(job.waitForPreIDCount, int(sizeof(job.waitForPreIDs)));
    QStringList ids;
    for (int i = 0; i < n; ++i)
        ids.append(QString::number(job.waitForPreIDs[i]));
    return ids.isEmpty() ? QStringLiteral("-") : ids.join(u',');
}

QString imageSize(const zkJ::_JobBasics_largePath& job)
{
    if (job.imageWidth == 0 && job.imageHeight == 0)
        return QStringLiteral("-");
    return QStringLiteral("%1x%2").arg(job.imageWidth).arg(job.imageHeight);
}

/// Node paths can be long; a column keeps their start and their end, which
/// tell a node apart, so the image path stays in sight.
QString fitted(const QString& cell)
{
    constexpr int MaxCell = 40;
    constexpr int Tail = 24;
    if (cell.size() <= MaxCell)
        return cell;
    return cell.left(MaxCell - Tail - 3) + QStringLiteral("...") + cell.right(Tail);
}

struct Column
{
    const char* title;
    QString (*cell)(const zkJ::_JobBasics_largePath&);
    bool onlyWhenUsed; ///< shown only when some job has a value
    bool fit; ///< long values are shortened in the middle
};

const Column Columns[] = {
    { "preID", [](const zkJ::_JobBasics_largePath& j) { return QString::number(j.preID); }, false,
        false },
    { "waits", waits, false, false },
    { "application", [](const zkJ::_JobBasics_largePath& j) { return text(j.renderApp.appName); },
        false, false },
    { "renderer", [](const zkJ::_JobBasics_largePath& j) { return text(j.renderApp.rendererName); },
        false, false },
    { "layer", [](const zkJ::_JobBasics_largePath& j) { return text(j.layer); }, false, true },
    { "take", [](const zkJ::_JobBasics_largePath& j) { return text(j.channel); }, true, true },
    { "wedge", [](const zkJ::_JobBasics_largePath& j) { return text(j.sceneState); }, true, true },
    { "camera", [](const zkJ::_JobBasics_largePath& j) { return text(j.camera); }, false, true },
    { "size", imageSize, false, false },
    { "frames", frames, false, false },
    { "image", imagePath, false, false },
};

void printTable(const HostJobArray& jobs, int result, const QString& scene)
{
    QList<const Column*> shown;
    for (const Column& column : Columns) {
        bool used = !column.onlyWhenUsed;
        for (int i = 0; i < jobs.readableCount() && !used; ++i)
            used = !column.cell(jobs.array->records[i]).isEmpty();
        if (used)
            shown.append(&column);
    }
    QList<QStringList> rows;
    QList<QStringList> channels; // per row, printed under it
    if (jobs.readableCount() > 0) {
        QStringList header { QStringLiteral("#") };
        for (const Column* column : shown)
            header.append(QLatin1String(column->title));
        rows.append(header);
        channels.append(QStringList());
    }
    for (int i = 0; i < jobs.readableCount(); ++i) {
        const zkJ::_JobBasics_largePath& job = jobs.array->records[i];
        QStringList row { QString::number(i) };
        for (const Column* column : shown)
            row.append(column->fit ? fitted(column->cell(job)) : column->cell(job));
        rows.append(row);
        QStringList aovs;
        for (const zkJ::_channelSlot& slot : job.channels) {
            if (slot.fileName.length != 0)
                aovs.append(text(slot.fileName) + frameToken(job) + text(slot.extension));
        }
        channels.append(aovs);
    }
    QList<int> widths(shown.size() + 1, 0);
    for (const QStringList& row : rows) {
        for (int c = 0; c < row.size(); ++c)
            widths[c] = std::max(widths[c], int(row[c].size()));
    }
    QString out;
    for (int r = 0; r < rows.size(); ++r) {
        QStringList cells;
        for (int c = 0; c < rows[r].size(); ++c)
            cells.append(c + 1 < rows[r].size() ? rows[r][c].leftJustified(widths[c]) : rows[r][c]);
        out += cells.join(QStringLiteral("  ")) + u'\n';
        const QString indent(widths[0] + 2, u' ');
        for (const QString& aov : channels[r])
            out += indent + QStringLiteral("aov ") + aov + u'\n';
    }
    const QString array = jobs.array ? text(jobs.array->arrayText) : QString();
    if (!array.isEmpty())
        out += QStringLiteral("array options: %1\n").arg(array);
    out += QStringLiteral("%1: result %2 (%3), %4 job(s)\n")
               .arg(scene)
               .arg(result)
               .arg(resultText(result))
               .arg(jobs.readableCount());
    printOut(out.toUtf8());
}

/// JSON Lines: one compact object per line, so that a run over many scenes
/// can be read line by line.
void printJsonLine(const QJsonObject& o)
{
    printOut(QJsonDocument(o).toJson(QJsonDocument::Compact) + '\n');
}

void printVars(const HostJobArray& jobs, const QString& scene)
{
    QString out = QStringLiteral("scene %1\n").arg(scene);
    for (int i = 0; i < jobs.readableCount(); ++i) {
        const std::unique_ptr<zkJ::_JobBasics> compact = compactJob(jobs.array->records[i]);
        out += QStringLiteral("job %1 %2\n").arg(i).arg(compact->IDstr());
        const _varValList vars = compact->exportJobVarList_Basic(false);
        for (const _varValue& v : vars.items)
            out += QStringLiteral("  %1 = %2\n").arg(v.name, v.value);
    }
    printOut(out.toUtf8());
}

int showInfo(const Plugin& plugin, bool json)
{
    auto info = std::make_unique<zkP::_dataPARS_PluginInfo>();
    std::memset(static_cast<void*>(info.get()), 0, sizeof(*info));
    info->structureID = zkP::PluginInfoStructureID;
    const int result = plugin.info(info.get());
    const QList<QPair<QString, QString>> fields = {
        { QStringLiteral("application"), text(info->appName) },
        { QStringLiteral("author"), text(info->author) },
        { QStringLiteral("pluginVersion"), text(info->pluginVersion) },
        { QStringLiteral("managerVersion"), text(info->managerVersion) },
        { QStringLiteral("qtVersion"), text(info->qtVersion) },
        { QStringLiteral("fileFilter"), text(info->fileFilter) },
    };
    if (json) {
        QJsonObject o { { QStringLiteral("result"), result },
            { QStringLiteral("structureID"), info->structureID },
            { QStringLiteral("infoVersion"), info->infoVersion } };
        for (const auto& f : fields)
            o[f.first] = f.second;
        printJsonLine(o);
    } else {
        QString out;
        for (const auto& f : fields)
            out += QStringLiteral("%1: %2\n").arg(f.first.leftJustified(15), f.second);
        out += QStringLiteral("%1: %2\n")
                   .arg(QStringLiteral("result").leftJustified(15))
                   .arg(result);
        printOut(out.toUtf8());
    }
    if (result != 1) {
        printError(
            QStringLiteral("plugin rejected the information record (result %1)").arg(result));
        return ExitInfoRejected;
    }
    return ExitOk;
}

QString helpTail()
{
    QString codes;
    for (const LoadResult r : LoadResults) {
        if (r != LoadOk)
            codes += QStringLiteral("             %1 %2\n")
                         .arg(ExitResultBase + r)
                         .arg(QLatin1String(loadResultText(r)));
    }
    return QStringLiteral(
               "\nExit status (with several scenes: 0 when every scene loaded, otherwise\n"
               "the status of the first scene that did not):\n"
               "  0          the scene loaded (plugin result 1)\n"
               "  2          usage error\n"
               "  3          the plugin could not be loaded or lacks an entry point\n"
               "  4          --info: the plugin rejected the information record\n"
               "  10 + r     plugin result r for r in 0..245, r != 1:\n")
        + codes
        + QStringLiteral("             any other: a node reader's own code\n"
                         "  255        any other plugin result\n");
}

struct Options
{
    bool json = false;
    bool vars = false;
    bool info = false;
    bool summary = false;
    bool dot = false;
    bool quiet = false;
    bool recurse = true;
    bool version = false;
    QString pluginPath;
    QStringList paths;
    QStringList submitterArgs;
};

/// The installed plugin folder first, then the build tree's library folder.
QString defaultPluginPath()
{
    const QDir bin(QCoreApplication::applicationDirPath());
    const QString installed = bin.filePath(
        QStringLiteral("../" ZK_PLUGIN_INSTALL_DIR "/%1").arg(QLatin1String(PluginFileName)));
    if (QFileInfo::exists(installed))
        return QDir::cleanPath(installed);
    return QDir::cleanPath(
        bin.filePath(QStringLiteral("../lib/%1").arg(QLatin1String(PluginFileName))));
}

/// The options, or the exit status when the command line is already answered
/// (help) or wrong.
std::optional<int> parseOptions(Options& options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Loads Houdini scenes through the scene parser plugin, as the "
                       "render-queue manager does, and prints their jobs."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption versionOption(QStringLiteral("version"),
        QStringLiteral("Print the version of hipjobs and of the plugin."));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
        QStringLiteral("Print every job field as JSON, one object per scene and line."));
    const QCommandLineOption varsOption(QStringLiteral("vars"),
        QStringLiteral("Print each job's exported job variables, one name and value per line "
                       "(with --json: a \"vars\" array in each job)."));
    const QCommandLineOption summaryOption(QStringLiteral("summary"),
        QStringLiteral("Print one line per scene (result, jobs, frames, takes, wedge variants, "
                       "waits, renderers) and a total; with --json, one summary object per "
                       "scene and a total object."));
    const QCommandLineOption dotOption(QStringLiteral("dot"),
        QStringLiteral("Print the jobs of each scene as a Graphviz DOT graph (a node per job, "
                       "an edge from each job to the jobs that wait for it, takes and wedge "
                       "variants as clusters), ready for \"dot -Tsvg\"."));
    const QCommandLineOption noRecurseOption(QStringLiteral("no-recurse"),
        QStringLiteral("Search a folder given as PATH without its subfolders."));
    const QCommandLineOption quietOption({ QStringLiteral("q"), QStringLiteral("quiet") },
        QStringLiteral("No progress line on a terminal."));
    const QCommandLineOption infoOption(
        QStringLiteral("info"), QStringLiteral("Print the plugin information."));
    const QCommandLineOption pluginOption(QStringLiteral("plugin"),
        QStringLiteral("The plugin library to load (default: ../" ZK_PLUGIN_INSTALL_DIR
                       "/%1 beside this program, else ../lib/%1).")
            .arg(QLatin1String(PluginFileName)),
        QStringLiteral("path"));
    parser.addOptions({ versionOption, jsonOption, varsOption, summaryOption, dotOption,
        noRecurseOption, quietOption, infoOption, pluginOption });
    parser.addPositionalArgument(QStringLiteral("paths"),
        QStringLiteral("Scene files, and folders searched for *.hip, *.hipnc and *.hiplc."),
        QStringLiteral("PATH..."));
    parser.addPositionalArgument(QStringLiteral("submitter-args"),
        QStringLiteral("Arguments handed to the plugin as the submitter's command line."),
        QStringLiteral("[-- SUBMITTER-ARGS...]"));

    if (!parser.parse(QCoreApplication::arguments())) {
        printError(parser.errorText());
        return ExitUsage;
    }
    if (parser.isSet(helpOption) || parser.isSet(QStringLiteral("help-all"))) {
        printOut((parser.helpText() + helpTail()).toUtf8());
        return ExitOk;
    }
    options.json = parser.isSet(jsonOption);
    options.vars = parser.isSet(varsOption);
    options.info = parser.isSet(infoOption);
    options.summary = parser.isSet(summaryOption);
    options.dot = parser.isSet(dotOption);
    if (options.dot && (options.json || options.vars || options.summary)) {
        printError(QStringLiteral("--dot prints a graph: it goes with none of --json, --vars "
                                  "and --summary"));
        return ExitUsage;
    }
    options.quiet = parser.isSet(quietOption);
    options.recurse = !parser.isSet(noRecurseOption);
    options.version = parser.isSet(versionOption);
    options.pluginPath
        = parser.isSet(pluginOption) ? parser.value(pluginOption) : defaultPluginPath();

    // Everything after "--" belongs to the submitter; the paths stand before it.
    const QStringList raw = QCoreApplication::arguments();
    const qsizetype separator = raw.indexOf(QStringLiteral("--"));
    options.submitterArgs = separator < 0 ? QStringList() : raw.mid(separator + 1);
    const QStringList positional = parser.positionalArguments();
    options.paths = positional.mid(0, positional.size() - options.submitterArgs.size());
    if (options.paths.isEmpty() && !options.info && !options.version) {
        printError(QStringLiteral("no scene file given (see --help)"));
        return ExitUsage;
    }
    return std::nullopt;
}

QString pluginVersion(const Plugin& plugin)
{
    auto info = std::make_unique<zkP::_dataPARS_PluginInfo>();
    std::memset(static_cast<void*>(info.get()), 0, sizeof(*info));
    info->structureID = zkP::PluginInfoStructureID;
    if (plugin.info(info.get()) != InfoOk)
        return QStringLiteral("unknown (the plugin rejected the information record)");
    return text(info->pluginVersion);
}

/// Loads one scene and prints it as the options say; the plugin's result.
int runScene(const Plugin& plugin, const Options& options, const QString& scene,
    QList<SceneSummary>& summaries)
{
    SceneLoad load(scene, options.submitterArgs, QByteArrayLiteral("hipjobs"));
    const HostJobArray& jobs = load.jobs;
    if (!jobs.array) {
        printError(QStringLiteral("out of memory"));
        return -1;
    }
    const int result = plugin.load(&load.record);
    progress.clear();
    if (options.summary) {
        summaries.append(summarize(jobs, result, scene));
        if (options.json)
            printJsonLine(summaryJson(summaries.last()));
    } else if (options.dot) {
        printOut(jobGraphDot(graphJobs(jobs), scene).toUtf8());
    } else if (options.json) {
        printJsonLine(loadJson(jobs, result, scene, options.vars));
    } else if (options.vars) {
        printVars(jobs, scene);
    } else {
        printTable(jobs, result, scene);
    }
    if (result != LoadOk)
        printError(QStringLiteral("%1: %2").arg(resultText(result), scene));
    return result;
}

int run(const Options& options)
{
    const QStringList scenes = collectScenes(options.paths, options.recurse);
    if (scenes.isEmpty() && !options.paths.isEmpty()) {
        printError(QStringLiteral("no scene files in %1").arg(options.paths.join(u' ')));
        return ExitUsage;
    }
    for (const QString& scene : scenes) {
        if (scene.size() > SceneNameCapacity) {
            printError(QStringLiteral("scene path longer than %1 characters: %2")
                           .arg(SceneNameCapacity)
                           .arg(scene));
            return ExitUsage;
        }
    }

    Plugin plugin;
    QString error;
    if (options.version)
        printOut(QStringLiteral("hipjobs %1\n").arg(QLatin1String(ZK_VERSION)).toUtf8());
    if (!plugin.open(options.pluginPath, error)) {
        printError(error);
        return ExitPluginLoad;
    }
    if (options.version) {
        printOut(QStringLiteral("plugin %1 (%2)\n")
                     .arg(pluginVersion(plugin), QFileInfo(options.pluginPath).absoluteFilePath())
                     .toUtf8());
        if (scenes.isEmpty() && !options.info)
            return ExitOk;
    }
    if (options.info) {
        const int status = showInfo(plugin, options.json);
        if (status != ExitOk || scenes.isEmpty())
            return status;
    }

    if (!options.quiet)
        progress.enable(int(scenes.size()));
    int status = ExitOk;
    QList<SceneSummary> summaries;
    for (int i = 0; i < scenes.size(); ++i) {
        progress.show(i, scenes[i]);
        const int result = runScene(plugin, options, scenes[i], summaries);
        const int sceneStatus = result < 0 ? ExitResultOutOfRange : exitStatusForResult(result);
        if (status == ExitOk)
            status = sceneStatus;
        if (!options.summary && !options.json && !options.dot && i + 1 < scenes.size())
            printOut("\n");
    }
    progress.clear();
    if (options.summary) {
        TotalSummary total;
        for (const SceneSummary& s : summaries)
            total.add(s);
        if (options.json)
            printJsonLine(totalJson(total));
        else
            printOut(summaryTable(summaries, total).toUtf8());
    }
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("hipjobs"));
    Options options;
    if (const std::optional<int> status = parseOptions(options))
        return *status;
    return run(options);
}
