#include "elementSection.h"
#include "plugin/loadResult.h"
#include "plugin/parserState.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/paths/imageTokens.h"
#include "readerCommon.h"

using namespace elementSection;

namespace {

enum class RSKeyword { End, Camera, EnableControl, Enable, FileNameControl, FileName, None };

struct RSKeywordRow
{
    QLatin1String keyword;
    RSKeyword kind;
};

/// Tried in this order: "..._archive_enable" is a prefix of "..._archive_enable_control",
/// and "..._fileName" of "..._fileName_control", so the longer keywords come first.
const RSKeywordRow RSKeywords[] = {
    { QLatin1String("}"), RSKeyword::End },
    { QLatin1String("camera\t"), RSKeyword::Camera },
    { QLatin1String("xn__redshiftglobalRS_archive_enable_control"), RSKeyword::EnableControl },
    { QLatin1String("xn__redshiftglobalRS_archive_enable"), RSKeyword::Enable },
    { QLatin1String("xn__redshiftglobalRS_archive_fileName_control"), RSKeyword::FileNameControl },
    { QLatin1String("xn__redshiftglobalRS_archive_fileName"), RSKeyword::FileName },
};

RSKeyword classify(const QString& line)
{
    for (const RSKeywordRow& row : RSKeywords) {
        if (hasKeyword(line, row.keyword))
            return row.kind;
    }
    return RSKeyword::None;
}

/// The bracket value; a value that refers to its own parameter ("[ name]") loses
/// that reference.
QString settingValue(const QString& line)
{
    const qsizetype tab = line.indexOf(u'\t');
    const QString name = line.left(tab < 0 ? line.size() : tab);
    QString value = bracketValue(line);
    const QString selfRef = QStringLiteral("[ ") + name;
    if (!value.contains(selfRef))
        return value;
    value.remove(selfRef);
    value.remove(u']');
    return value.trimmed();
}

/// The archive file becomes the image output of every Houdini job of the
/// entry's first registered driver, expanded and split again. 7 when the
/// array yields no record for an index below its count.
int rewriteDriverJobs(zkP::_dataPARS_LoadSceneFile* data, const _USD_RendersettingNode& entry)
{
    if (entry.renderNodes.isEmpty() || !data || !data->jobs || data->jobs->count <= 0)
        return LoadOk;

    const _zkString<25> houdini(appNameHoudini);
    const _zkString<150> driver(entry.renderNodes.first());
    const _zkString<1000> name(houdiniNodeName(entry.nodePath));
    const _zkString<500> noScene;
    const _zkString<500>& sceneFile = data->sceneFile ? *data->sceneFile : noScene;

    zkJ::_JobBasicsArray& jobs = *data->jobs;
    for (int i = 0; i < jobs.count; ++i) {
        zkJ::_JobBasics_largePath* job = jobs.at(i);
        if (!job)
            return LoadNoJobRecord;
        if (!job->renderApp.appName.isEqual(houdini) || !job->layer.isEqual(driver))
            continue;
        job->imageFileName.set(entry.archiveFile);
        job->imageDir.clear();
        job->imageExtension.clear();
        job->imageFileName.replace(_zkString<1000>("$OS"), name);
        job->imageFileName.replace(_zkString<1000>("${OS}"), name);
        job->imageFileName.set(
            replaceHoudiniVariables(job->imageFileName.toQString(), job, hVariables, sceneFile));
        job->splitImageFileInto_DirFileExt(true);
    }
    return LoadOk;
}

} // namespace

int load_USD_RS_Node(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    _USD_RendersettingNode node;
    node.nodePath = nodePathStage(line);

    // The first letters of the keywords of RSKeywords besides "}".
    while (nextLineFor(in, line, "cx")) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        switch (classify(line)) {
        case RSKeyword::End: {
            const int index = USD_RSList.add(node);
            return rewriteDriverJobs(data, USD_RSList.list.at(index));
        }
        case RSKeyword::Camera: {
            const QString camera = settingValue(line);
            // A channel expression names no camera the plugin could resolve.
            if (!camera.contains(QLatin1String("chs("))
                && !camera.contains(QLatin1String("chsop(")))
                node.camera = camera;
            break;
        }
        case RSKeyword::EnableControl:
        case RSKeyword::FileNameControl:
            node.archiveControlSet = settingValue(line).contains(QLatin1String("set"));
            break;
        case RSKeyword::Enable:
            node.archiveEnabled = settingValue(line).contains(QLatin1String("on"));
            break;
        case RSKeyword::FileName: {
            bool singleFile = false;
            replaceImageOutVars(line, false, node.archiveFile, node.imageUsesTake, singleFile);
            break;
        }
        case RSKeyword::None:
            break;
        }
    }
    return LoadOk;
}
