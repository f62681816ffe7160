#include "jobJson.h"

#include <QJsonArray>
#include <QtEndian>

#include <iterator>
#include <memory>

namespace zkHost {

namespace {

QString byteChar(unsigned char c)
{
    return c ? QString(QChar(char16_t(c))) : QString();
}

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

} // namespace

std::unique_ptr<zkJ::_JobBasics> compactJob(const zkJ::_JobBasics_largePath& job)
{
    auto compact = std::make_unique<zkJ::_JobBasics>();
    job.toJobsBasic(*compact);
    return compact;
}

namespace {

QJsonArray varsJson(const _varValList& vars)
{
    QJsonArray out;
    for (const _varValue& v : vars.items)
        out.append(QJsonObject {
            { QStringLiteral("name"), v.name }, { QStringLiteral("value"), v.value } });
    return out;
}

} // namespace

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

QJsonObject loadJson(const HostJobArray& jobs, int result, const QString& scene, bool withVars)
{
    QJsonArray list;
    for (int i = 0; i < jobs.readableCount(); ++i)
        list.append(jobJson(jobs.array->records[i], i, withVars));
    return QJsonObject {
        { QStringLiteral("scene"), scene },
        { QStringLiteral("result"), result },
        { QStringLiteral("resultText"), resultText(result) },
        { QStringLiteral("arrayText"), jobs.array ? text(jobs.array->arrayText) : QString() },
        { QStringLiteral("jobs"), list },
    };
}

} // namespace zkHost
