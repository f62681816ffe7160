// hipjobs: loads the scene parser plugin the way the render-queue manager
// does (dlopen, entry points resolved by name, host-built records) and prints
// the jobs of one scene, as a table or as JSON.
//
// The job array is built from its documented binary layout (tools/host), not
// with the plugin's constructor: the tool must see exactly what a host sees,
// and a layout drift between the two sides shows up as a failed load, not as
// a quietly consistent pair. The job methods the host may call on records
// (conversion, identifiers, display name, job variables) come from the plugin
// library the tool is linked with; the entry points always through dlsym.
#include "tools/host/hostRecords.h"
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

namespace {

using namespace zkHost;

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
    if (result == 1)
        return ExitOk;
    if (result < 0 || result > MaxMappedResult)
        return ExitResultOutOfRange;
    return ExitResultBase + result;
}

void printError(const QString& text)
{
    const QByteArray line = QStringLiteral("hipjobs: %1\n").arg(text).toLocal8Bit();
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

void printOut(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
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

void printJson(const HostJobArray& jobs, int result, const QString& scene, bool withVars)
{
    printOut(
        QJsonDocument(loadJson(jobs, result, scene, withVars)).toJson(QJsonDocument::Indented));
}

void printVars(const HostJobArray& jobs)
{
    QString out;
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
        printOut(QJsonDocument(o).toJson(QJsonDocument::Indented));
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
    return QStringLiteral(
        "\nExit status:\n"
        "  0          the scene loaded (plugin result 1)\n"
        "  2          usage error\n"
        "  3          the plugin could not be loaded or lacks an entry point\n"
        "  4          --info: the plugin rejected the information record\n"
        "  10 + r     plugin result r for r in 0..245, r != 1:\n"
        "             13 cannot open scene file, 15 job array layout not supported,\n"
        "             16 internal error, 17 no job record, 35 drivers without jobs\n"
        "  255        any other plugin result\n");
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("hipjobs"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Loads a Houdini scene through the scene parser plugin, as the "
                       "render-queue manager does, and prints its jobs."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption jsonOption(
        QStringLiteral("json"), QStringLiteral("Print every job field as JSON."));
    const QCommandLineOption infoOption(
        QStringLiteral("info"), QStringLiteral("Print the plugin information."));
    const QCommandLineOption pluginOption(QStringLiteral("plugin"),
        QStringLiteral("The plugin library to load (default: ../lib/%1 beside this program).")
            .arg(QLatin1String(PluginFileName)),
        QStringLiteral("path"));
    const QCommandLineOption varsOption(QStringLiteral("vars"),
        QStringLiteral("Print each job's exported job variables, one name and value per line "
                       "(with --json: a \"vars\" array in each job)."));
    parser.addOption(jsonOption);
    parser.addOption(varsOption);
    parser.addOption(infoOption);
    parser.addOption(pluginOption);
    parser.addPositionalArgument(QStringLiteral("scene"), QStringLiteral("The scene file to load."),
        QStringLiteral("SCENE"));
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

    // Everything after "--" belongs to the submitter; the scene stands before it.
    const QStringList raw = QCoreApplication::arguments();
    const qsizetype separator = raw.indexOf(QStringLiteral("--"));
    const QStringList submitterArgs = separator < 0 ? QStringList() : raw.mid(separator + 1);
    const QStringList positional = parser.positionalArguments();
    const QStringList sceneArgs = positional.mid(0, positional.size() - submitterArgs.size());
    const bool wantInfo = parser.isSet(infoOption);
    if (sceneArgs.size() > 1 || (sceneArgs.isEmpty() && !wantInfo)) {
        printError(sceneArgs.isEmpty() ? QStringLiteral("no scene file given (see --help)")
                                       : QStringLiteral("more than one scene file given; put "
                                                        "submitter arguments after \"--\""));
        return ExitUsage;
    }

    const QString pluginPath = parser.isSet(pluginOption)
        ? parser.value(pluginOption)
        : QDir(QCoreApplication::applicationDirPath())
              .filePath(QStringLiteral("../lib/%1").arg(QLatin1String(PluginFileName)));
    Plugin plugin;
    QString error;
    if (!plugin.open(pluginPath, error)) {
        printError(error);
        return ExitPluginLoad;
    }

    const bool json = parser.isSet(jsonOption);
    if (wantInfo) {
        const int status = showInfo(plugin, json);
        if (status != ExitOk || sceneArgs.isEmpty())
            return status;
    }

    const QString scene = sceneArgs.first();
    const QString absoluteScene = QFileInfo(scene).absoluteFilePath();
    if (absoluteScene.size() > SceneNameCapacity) {
        printError(QStringLiteral("scene path longer than %1 characters: %2")
                       .arg(SceneNameCapacity)
                       .arg(scene));
        return ExitUsage;
    }
    SceneLoad load(absoluteScene, submitterArgs, QByteArrayLiteral("hipjobs"));
    const HostJobArray& jobs = load.jobs;
    if (!jobs.array) {
        printError(QStringLiteral("out of memory"));
        return ExitResultOutOfRange;
    }

    const int result = plugin.load(&load.record);
    const bool vars = parser.isSet(varsOption);
    if (json)
        printJson(jobs, result, absoluteScene, vars);
    else if (vars)
        printVars(jobs);
    else
        printTable(jobs, result, absoluteScene);
    if (result != 1)
        printError(QStringLiteral("%1: %2").arg(resultText(result), scene));
    return exitStatusForResult(result);
}
