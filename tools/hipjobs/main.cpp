// hipjobs: loads the scene parser plugin the way the render-queue manager
// does (dlopen, entry points resolved by name, host-built records) and prints
// the jobs of one scene, as a table or as JSON.
//
// The job array is built here from its documented binary layout, not with the
// plugin's constructor: the tool must see exactly what a host sees, and a
// layout drift between the two sides shows up as a failed load, not as a
// quietly consistent pair. The job methods the host may call on records
// (conversion, identifiers, display name, job variables) come from the plugin
// library the tool is linked with; the entry points always through dlsym.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "plugin/zkPluginRecords.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <vector>

namespace {

using InfoFn = int (*)(zkP::_dataPARS_PluginInfo*);
using LoadFn = int (*)(zkP::_dataPARS_LoadSceneFile*);

// Exit statuses. A load result r other than 1 exits with ExitResultBase + r,
// so every result code keeps its own status; codes outside 0..245 share 255.
constexpr int ExitOk = 0;
constexpr int ExitUsage = 2;
constexpr int ExitPluginLoad = 3;
constexpr int ExitInfoRejected = 4;
constexpr int ExitResultBase = 10;
constexpr int ExitResultOutOfRange = 255;
constexpr int MaxMappedResult = 245;

constexpr unsigned int LargePathRecordSize = 226968;
constexpr int SceneNameCapacity = 500;

const char* const PluginFileName = "libzkSceneParserHoudini.so";

int exitStatusForResult(int result)
{
    if (result == 1)
        return ExitOk;
    if (result < 0 || result > MaxMappedResult)
        return ExitResultOutOfRange;
    return ExitResultBase + result;
}

QString resultText(int result)
{
    switch (result) {
    case 1:
        return QStringLiteral("success");
    case 3:
        return QStringLiteral("cannot open scene file");
    case 5:
        return QStringLiteral("job array layout version not supported");
    case 6:
        return QStringLiteral("internal error in the plugin");
    case 7:
        return QStringLiteral("job array could not give a job record");
    case 25:
        return QStringLiteral("output drivers found, none of them makes a job");
    default:
        return QStringLiteral("a node reader stopped the load with code %1").arg(result);
    }
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

// Readers of record texts. The plugin is the other side of a binary
// interface: a length field beyond the capacity is clamped, never trusted.
template <int N>
QString text(const _zkString<N>& s)
{
    const int n = std::min<int>(s.length, N);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(s.data), n);
}

template <int N>
QString text(const _zkString8_allSize<N>& s)
{
    const int n = std::min<int>(s.length, N);
    return QString::fromLatin1(s.data, n);
}

QString byteChar(unsigned char c)
{
    return c ? QString(QChar(char16_t(c))) : QString();
}

// ---- plugin ---------------------------------------------------------------

struct Plugin
{
    void* handle = nullptr;
    InfoFn info = nullptr;
    LoadFn load = nullptr;

    ~Plugin()
    {
        if (handle)
            dlclose(handle);
    }
};

bool openPlugin(const QString& path, Plugin& plugin, QString& error)
{
    plugin.handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!plugin.handle) {
        error = QStringLiteral("cannot load plugin: %1").arg(QString::fromLocal8Bit(dlerror()));
        return false;
    }
    plugin.info = reinterpret_cast<InfoFn>(dlsym(plugin.handle, "pInfo"));
    plugin.load = reinterpret_cast<LoadFn>(dlsym(plugin.handle, "pLoadSceneFile"));
    if (!plugin.info || !plugin.load) {
        error = QStringLiteral("cannot load plugin: %1 lacks pInfo or pLoadSceneFile").arg(path);
        return false;
    }
    return true;
}

// ---- host records ---------------------------------------------------------

/// The host's job array: raw zeroed memory filled by its documented layout.
struct HostJobArray
{
    HostJobArray()
        : memory(std::calloc(1, sizeof(zkJ::_JobBasicsArray)))
    {
        if (!memory)
            return;
        array = static_cast<zkJ::_JobBasicsArray*>(memory);
        array->structureID = zkJ::JobStructureID;
        array->structureVersion = zkJ::JobStructureVersion;
        array->arrayText.clear();
        array->recordSize = LargePathRecordSize;
        array->count = 0;
        array->allocated = 0;
        array->records = nullptr;
    }
    ~HostJobArray()
    {
        if (array)
            std::free(static_cast<void*>(array->records));
        std::free(memory);
    }
    HostJobArray(const HostJobArray&) = delete;
    HostJobArray& operator=(const HostJobArray&) = delete;

    /// Records the plugin handed out, bounded by what it allocated.
    int readableCount() const
    {
        if (!array || !array->records || array->count <= 0)
            return 0;
        return std::min(array->count, array->allocated);
    }

    void* memory = nullptr;
    zkJ::_JobBasicsArray* array = nullptr;
};

/// The submitter's settings block with argc/argv at their documented offsets.
struct HostSettings
{
    explicit HostSettings(const QStringList& arguments)
        : block(new zkP::_submitterSettings())
    {
        words.append(QByteArrayLiteral("hipjobs"));
        for (const QString& arg : arguments)
            words.append(arg.toLocal8Bit());
        for (QByteArray& w : words)
            pointers.push_back(w.data());
        pointers.push_back(nullptr);
        block->argc = int(words.size());
        block->argv = pointers.data();
    }

    QList<QByteArray> words;
    std::vector<char*> pointers;
    std::unique_ptr<zkP::_submitterSettings> block;
};

// ---- custom data block ----------------------------------------------------

struct CustomEntry
{
    QString name;
    QString value;
};

/// Walks the entry table as the job module does: kind byte "c" or "u", value
/// offset and length big-endian, zero-terminated Latin-1 name. Everything is
/// bounded by the 4000-byte area.
QList<CustomEntry> customEntries(const zkJ::_JobSettingsScene& s)
{
    constexpr int Area = zkJ::_JobSettingsScene::CustomDataBytes;
    const unsigned char* d = s.customData;
    const int tableEnd = std::clamp(s.customDataValuesStart, 0, Area);
    QList<CustomEntry> out;
    int pos = 0;
    while (pos + 5 < tableEnd && out.size() < s.customDataCount) {
        const unsigned char kind = d[pos];
        if (kind != 'c' && kind != 'u')
            break;
        const int valueStart = qFromBigEndian<quint16>(d + pos + 1);
        const int valueLength = qFromBigEndian<quint16>(d + pos + 3);
        int nameEnd = pos + 5;
        while (nameEnd < Area && d[nameEnd] != 0)
            ++nameEnd;
        CustomEntry e;
        e.name = QString::fromLatin1(reinterpret_cast<const char*>(d + pos + 5), nameEnd - pos - 5);
        const int unitBytes = kind == 'u' ? 2 : 1;
        if (valueStart + valueLength * unitBytes <= Area) {
            for (int i = 0; i < valueLength; ++i) {
                const unsigned char* v = d + valueStart + i * unitBytes;
                e.value.append(QChar(kind == 'u' ? qFromBigEndian<quint16>(v) : *v));
            }
        }
        out.append(e);
        pos = nameEnd + 1;
    }
    return out;
}

// ---- output ---------------------------------------------------------------

QString imagePath(const zkJ::_JobBasics_largePath& job)
{
    QString token;
    if (!job.imageSingleOutputFile && job.padding > 0)
        token = QString(int(job.padding), u'#');
    return text(job.imageDir) + text(job.imageFileName) + token + text(job.imageExtension);
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

void printTable(const HostJobArray& jobs, int result, const QString& scene)
{
    const QStringList header
        = { QStringLiteral("#"), QStringLiteral("preID"), QStringLiteral("waits"),
              QStringLiteral("application"), QStringLiteral("renderer"), QStringLiteral("layer"),
              QStringLiteral("camera"), QStringLiteral("frames"), QStringLiteral("image") };
    QList<QStringList> rows;
    if (jobs.readableCount() > 0)
        rows.append(header);
    for (int i = 0; i < jobs.readableCount(); ++i) {
        const zkJ::_JobBasics_largePath& job = jobs.array->records[i];
        rows.append({ QString::number(i), QString::number(job.preID), waits(job),
            text(job.renderApp.appName), text(job.renderApp.rendererName), text(job.layer),
            text(job.camera), frames(job), imagePath(job) });
    }
    QList<int> widths(header.size(), 0);
    for (const QStringList& row : rows) {
        for (int c = 0; c < row.size(); ++c)
            widths[c] = std::max(widths[c], int(row[c].size()));
    }
    QString out;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (int c = 0; c < row.size(); ++c)
            cells.append(c + 1 < row.size() ? row[c].leftJustified(widths[c]) : row[c]);
        out += cells.join(QStringLiteral("  ")) + u'\n';
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

QJsonObject renderAppJson(const zkRA::_RenderAppBasic& a)
{
    return QJsonObject {
        { QStringLiteral("versionMajor"), a.versionMajor },
        { QStringLiteral("appName"), text(a.appName) },
        { QStringLiteral("rendererName"), text(a.rendererName) },
        { QStringLiteral("rendererNameExtra"), text(a.rendererNameExtra) },
        { QStringLiteral("appType"), text(a.appType) },
        { QStringLiteral("rendererVersion"), text(a.rendererVersion) },
        { QStringLiteral("versionMinor"), text(a.versionMinor) },
    };
}

/// The job in the compact form, through the plugin's exported conversion:
/// identifiers, display name and job variables are methods of that form.
std::unique_ptr<zkJ::_JobBasics> compactJob(const zkJ::_JobBasics_largePath& job)
{
    auto compact = std::make_unique<zkJ::_JobBasics>();
    job.toJobsBasic(*compact);
    return compact;
}

QJsonArray varsJson(const _varValList& vars)
{
    QJsonArray out;
    for (const _varValue& v : vars.items)
        out.append(QJsonObject {
            { QStringLiteral("name"), v.name }, { QStringLiteral("value"), v.value } });
    return out;
}

QJsonObject jobJson(const zkJ::_JobBasics_largePath& job, int index, bool withVars)
{
    QJsonObject o;
    o[QStringLiteral("index")] = index;
    const std::unique_ptr<zkJ::_JobBasics> compact = compactJob(job);
    o[QStringLiteral("id")] = compact->IDstr();
    o[QStringLiteral("idFull")] = compact->IDstrFull();
    o[QStringLiteral("sceneDisplayName")] = compact->getSceneDisplayName();
    if (withVars)
        o[QStringLiteral("vars")] = varsJson(compact->exportJobVarList_Basic(false));
    o[QStringLiteral("structureID")] = job.structureID;
    o[QStringLiteral("structureVersion")] = job.structureVersion;
    o[QStringLiteral("initMarker")] = job.initMarker;
    o[QStringLiteral("sceneOS")] = job.sceneOS;
    o[QStringLiteral("renderApp")] = renderAppJson(job.renderApp);
    o[QStringLiteral("camera")] = text(job.camera);
    o[QStringLiteral("layer")] = text(job.layer);
    o[QStringLiteral("channel")] = text(job.channel);
    o[QStringLiteral("sceneState")] = text(job.sceneState);
    o[QStringLiteral("auxName")] = text(job.auxName);
    o[QStringLiteral("colorSpace")] = text(job.colorSpace);
    o[QStringLiteral("auxText")] = text(job.auxText);
    o[QStringLiteral("renderLicenses")] = text(job.renderLicenses);
    const int pwLength = std::min<int>(job.commandPassword.length, 16);
    o[QStringLiteral("commandPassword")]
        = QString::fromLatin1(QByteArray(job.commandPassword.data, pwLength).toHex());
    o[QStringLiteral("imageWidth")] = job.imageWidth;
    o[QStringLiteral("imageHeight")] = job.imageHeight;
    o[QStringLiteral("auxByte1")] = job.auxByte1;
    o[QStringLiteral("imageSingleOutputFile")] = job.imageSingleOutputFile;
    o[QStringLiteral("auxByte2")] = job.auxByte2;
    o[QStringLiteral("imageFormatOverride")] = text(job.imageFormatOverride);
    o[QStringLiteral("imageMulti")] = job.imageMulti;
    QJsonArray table;
    for (const auto& row : job.shortNameTable) {
        QJsonArray cells;
        for (const auto& cell : row)
            cells.append(text(cell));
        table.append(cells);
    }
    o[QStringLiteral("shortNameTable")] = table;
    o[QStringLiteral("imageStereoL")] = text(job.imageStereoL);
    o[QStringLiteral("imageStereoM")] = text(job.imageStereoM);
    o[QStringLiteral("imageStereoR")] = text(job.imageStereoR);
    // 64 bits do not survive a JSON number (a double); hex text does.
    o[QStringLiteral("ID")] = QStringLiteral("0x%1").arg(job.ID, 16, 16, QChar(u'0'));
    o[QStringLiteral("preID")] = job.preID;
    QJsonArray waitIds;
    const int waitCount = std::min<int>(job.waitForPreIDCount, int(sizeof(job.waitForPreIDs)));
    for (int i = 0; i < waitCount; ++i)
        waitIds.append(job.waitForPreIDs[i]);
    o[QStringLiteral("waitForPreIDs")] = waitIds;
    o[QStringLiteral("auxByte3")] = job.auxByte3;
    o[QStringLiteral("shotgunID")] = text(job.shotgunID);
    o[QStringLiteral("auxShortText1")] = text(job.auxShortText1);
    o[QStringLiteral("PNL")] = byteChar(job.PNL);
    o[QStringLiteral("padding")] = job.padding;
    o[QStringLiteral("auxShortText2")] = text(job.auxShortText2);

    o[QStringLiteral("sceneName")] = text(job.sceneName);
    o[QStringLiteral("sceneDatabaseDir")] = text(job.sceneDatabaseDir);
    o[QStringLiteral("auxPath")] = text(job.auxPath);
    o[QStringLiteral("imageDir")] = text(job.imageDir);
    o[QStringLiteral("imageFileName")] = text(job.imageFileName);
    o[QStringLiteral("auxImageName")] = text(job.auxImageName);
    o[QStringLiteral("imageExtension")] = text(job.imageExtension);
    o[QStringLiteral("auxByte4")] = job.auxByte4;
    QJsonArray channels;
    for (int k = 0; k < int(std::size(job.channels)); ++k) {
        const zkJ::_channelSlot& slot = job.channels[k];
        if (slot.fileName.length == 0)
            continue;
        channels.append(QJsonObject { { QStringLiteral("slot"), k },
            { QStringLiteral("fileName"), text(slot.fileName) },
            { QStringLiteral("extension"), text(slot.extension) } });
    }
    o[QStringLiteral("channels")] = channels;

    o[QStringLiteral("seqStart")] = job.seqStart;
    o[QStringLiteral("seqEnd")] = job.seqEnd;
    o[QStringLiteral("seqFrameSet")] = text(job.seqFrameSet);
    o[QStringLiteral("seqStep")] = job.seqStep;
    QJsonArray custom;
    for (const CustomEntry& e : customEntries(job))
        custom.append(QJsonObject {
            { QStringLiteral("name"), e.name }, { QStringLiteral("value"), e.value } });
    o[QStringLiteral("customData")] = custom;
    o[QStringLiteral("settingText1")] = text(job.settingText1);
    o[QStringLiteral("settingText2")] = text(job.settingText2);
    o[QStringLiteral("settingText3")] = text(job.settingText3);
    o[QStringLiteral("settingText4")] = text(job.settingText4);
    o[QStringLiteral("settingText5")] = text(job.settingText5);
    o[QStringLiteral("settingText6")] = text(job.settingText6);
    return o;
}

void printJson(const HostJobArray& jobs, int result, const QString& scene, bool withVars)
{
    QJsonArray list;
    for (int i = 0; i < jobs.readableCount(); ++i)
        list.append(jobJson(jobs.array->records[i], i, withVars));
    const QJsonObject root {
        { QStringLiteral("scene"), scene },
        { QStringLiteral("result"), result },
        { QStringLiteral("resultText"), resultText(result) },
        { QStringLiteral("arrayText"), jobs.array ? text(jobs.array->arrayText) : QString() },
        { QStringLiteral("jobs"), list },
    };
    printOut(QJsonDocument(root).toJson(QJsonDocument::Indented));
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
    if (!openPlugin(pluginPath, plugin, error)) {
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
    _zkString<SceneNameCapacity> sceneName(absoluteScene);
    HostJobArray jobs;
    if (!jobs.array) {
        printError(QStringLiteral("out of memory"));
        return ExitResultOutOfRange;
    }
    HostSettings settings(submitterArgs);
    zkP::_dataPARS_LoadSceneFile load {};
    load.sceneFile = &sceneName;
    load.jobs = jobs.array;
    load.settings = settings.block.get();

    const int result = plugin.load(&load);
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
