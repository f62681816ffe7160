#include "ZK_DataTypes_jobs0_Basics.h"

#include <cstring>

namespace zkRA {

QString _RenderAppBasic::getVersionMinorDisplay(
    bool const& removeDot, unsigned char const& minDigits) const
{
    _zkString8_allSize<15> copy = versionMinor;
    if (removeDot)
        copy.remove('.');
    while (copy.length > minDigits && copy.endsWith('0'))
        copy.setLength(short(copy.length - 1));
    return copy.toQString();
}

void _RenderAppBasic::setVersionMinor(QString text)
{
    text.truncate(5);
    while (text.size() < 5)
        text.append(u'0');
    versionMinor.set(text);
}

} // namespace zkRA

namespace zkJ {

namespace {

// Every record initialiser starts from zero bytes and then sets these.
template <typename Record>
void setRecordDefaults(Record& r)
{
    r.structureID = JobStructureID;
    r.structureVersion = JobStructureVersion;
    r.initMarker = 3;
    r.padding = 4;
    r.seqStart = 1.0;
    r.seqEnd = 1.0;
    r.seqStep = 1;
}

template <typename Record>
void clearKeepingHead(Record& r)
{
    constexpr size_t head = 20;
    std::memset(
        reinterpret_cast<unsigned char*>(static_cast<void*>(&r)) + head, 0, sizeof(Record) - head);
    const unsigned short id = r.structureID;
    const unsigned short version = r.structureVersion;
    setRecordDefaults(r);
    r.structureID = id;
    r.structureVersion = version;
}

void setAutoTexts(_JobBasics& r)
{
    const QString autoText = QStringLiteral("<auto>");
    r.settingText2.set(autoText);
    r.settingText3.set(autoText);
    r.settingText4.set(autoText);
}

template <int N>
void copyString(_zkString<N>& to, const _zkString<N>& from)
{
    to.length = from.length;
    std::memcpy(to.data, from.data, sizeof(to.data));
}

template <int N>
void copyString8(_zkString8_allSize<N>& to, const _zkString8_allSize<N>& from)
{
    to.length = from.length;
    std::memcpy(to.data, from.data, sizeof(to.data));
}

/// Copies a large-path text into a smaller field: the source length is taken
/// up to its first zero unit, not from its length field, and the count stops
/// at the field's end: a record whose text lost its terminator must not make
/// the scan run on into the next record.
template <int To, int From>
void copyCut(_zkString<To>& to, const _zkString<From>& from)
{
    int n = 0;
    while (n < From && from.data[n] != 0)
        ++n;
    to.setUnits(from.data, n);
}

} // namespace

_JobBasics_noSettings_noPaths& _JobBasics_noSettings_noPaths::operator=(
    const _JobBasics_noSettings_noPaths& o)
{
    if (this == &o)
        return *this;
    structureID = o.structureID;
    structureVersion = o.structureVersion;
    std::memcpy(structureReserved, o.structureReserved, sizeof(structureReserved));
    initMarker = o.initMarker;
    sceneOS = o.sceneOS;
    renderApp.versionMajor = o.renderApp.versionMajor;
    std::memcpy(renderApp.reserved2, o.renderApp.reserved2, sizeof(renderApp.reserved2));
    copyString(renderApp.appName, o.renderApp.appName);
    copyString(renderApp.rendererName, o.renderApp.rendererName);
    copyString(renderApp.rendererNameExtra, o.renderApp.rendererNameExtra);
    copyString(renderApp.appType, o.renderApp.appType);
    copyString(renderApp.rendererVersion, o.renderApp.rendererVersion);
    copyString8(renderApp.versionMinor, o.renderApp.versionMinor);
    copyString(camera, o.camera);
    copyString(layer, o.layer);
    copyString(channel, o.channel);
    copyString(sceneState, o.sceneState);
    copyString(auxName, o.auxName);
    copyString(colorSpace, o.colorSpace);
    copyString(auxText, o.auxText);
    copyString(renderLicenses, o.renderLicenses);
    copyString8(commandPassword, o.commandPassword);
    imageWidth = o.imageWidth;
    imageHeight = o.imageHeight;
    auxByte1 = o.auxByte1;
    imageSingleOutputFile = o.imageSingleOutputFile;
    auxByte2 = o.auxByte2;
    copyString(imageFormatOverride, o.imageFormatOverride);
    imageMulti = o.imageMulti;
    for (int i = 0; i < 10; ++i) {
        for (int j = 0; j < 3; ++j)
            copyString(shortNameTable[i][j], o.shortNameTable[i][j]);
    }
    copyString(imageStereoL, o.imageStereoL);
    copyString(imageStereoM, o.imageStereoM);
    copyString(imageStereoR, o.imageStereoR);
    ID = o.ID;
    preID = o.preID;
    waitForPreIDCount = o.waitForPreIDCount;
    std::memcpy(waitForPreIDs, o.waitForPreIDs, sizeof(waitForPreIDs));
    auxByte3 = o.auxByte3;
    copyString8(shotgunID, o.shotgunID);
    copyString8(auxShortText1, o.auxShortText1);
    PNL = o.PNL;
    padding = o.padding;
    copyString8(auxShortText2, o.auxShortText2);
    std::memcpy(reservedTail, o.reservedTail, sizeof(reservedTail));
    return *this;
}

void _JobBasics_noSettings_noPaths::setStructureIDs()
{
    structureID = JobStructureID;
    structureVersion = JobStructureVersion;
    std::memset(structureReserved, 0, sizeof(structureReserved));
}

void _JobBasics_noSettings_noPaths::setCommandPassword(const _zkString8_allSize<40>& password)
{
    commandPassword.clear();
    // A length beyond the capacity comes from a damaged record; never hash past it.
    const unsigned int n = password.length < 40 ? password.length : 40;
    commandPassword = zkCRC_SHA1_16B(reinterpret_cast<const unsigned char*>(password.data), n);
}

bool _JobBasics_noSettings_noPaths::isRightCommandPW(const _passHash& hash) const
{
    // A job without a password accepts any; a set password needs its digest.
    if (commandPassword.isEmpty())
        return true;
    return commandPassword.isEqual(hash);
}

void _JobBasics_noSettings_noPaths::addWaitForPreID(const unsigned char& id)
{
    if (waitForPreIDCount >= 29)
        return;
    waitForPreIDs[waitForPreIDCount] = id;
    ++waitForPreIDCount;
}

void _JobBasics_noSettings_noPaths::setWaitForPreID(int index, const unsigned char& id)
{
    if (index < 0)
        index = 0;
    if (index > 29)
        index = 29;
    waitForPreIDs[index] = id;
    waitForPreIDCount = static_cast<unsigned char>(index + 1);
}

_JobBasics::_JobBasics()
{
    initialize();
}

void _JobBasics::initialize()
{
    std::memset(static_cast<void*>(this), 0, sizeof(*this));
    setRecordDefaults(*this);
    setAutoTexts(*this);
}

void _JobBasics::zkClearBasics()
{
    clearKeepingHead(*this);
    setAutoTexts(*this);
}

_JobBasics_largePath::_JobBasics_largePath()
{
    initialize();
}

void _JobBasics_largePath::initialize()
{
    std::memset(static_cast<void*>(this), 0, sizeof(*this));
    setRecordDefaults(*this);
}

void _JobBasics_largePath::zkClearBasics()
{
    clearKeepingHead(*this);
}

void _JobBasics_largePath::toJobsBasic(_JobBasics& target) const
{
    std::memcpy(static_cast<_JobSettingsScene*>(&target),
        static_cast<const _JobSettingsScene*>(this), sizeof(_JobSettingsScene));
    // The first layer and the two bytes behind it.
    std::memcpy(static_cast<void*>(&target), static_cast<const void*>(this), 3688);

    copyCut(target.sceneName, sceneName);
    copyCut(target.sceneDatabaseDir, sceneDatabaseDir);
    copyCut(target.auxPath, auxPath);
    copyCut(target.imageDir, imageDir);
    copyCut(target.imageFileName, imageFileName);
    copyCut(target.auxImageName, auxImageName);
    copyCut(target.imageExtension, imageExtension);

    target.channelClear();
    for (const _channelSlot& slot : channels) {
        _zkString<500> name;
        _zkString<25> ext;
        copyCut(name, slot.fileName);
        copyCut(ext, slot.extension);
        // channelAdd skips what is empty, over 100 channels or past the buffer.
        target.channelAdd(name, ext);
    }
}

} // namespace zkJ
