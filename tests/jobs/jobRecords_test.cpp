#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>

namespace {

using zkJ::_JobBasics;
using zkJ::_JobBasics_largePath;
using FirstLayer = zkJ::_JobBasics_noSettings_noPaths;

const unsigned char* bytesOf(const void* p)
{
    return static_cast<const unsigned char*>(p);
}

template <typename Field>
size_t offsetIn(const FirstLayer& r, const Field& f)
{
    return size_t(bytesOf(&f) - bytesOf(&r));
}

template <int N>
void addReservedUnit(std::set<size_t>& skip, const FirstLayer& r, const _zkString<N>& s)
{
    skip.insert(offsetIn(r, s.reserved));
    skip.insert(offsetIn(r, s.reserved) + 1);
}

// ---- copies ---------------------------------------------------------------

TEST(FirstLayerCopy, CopiesFieldsButNotReservedUnitsOrGaps)
{
    FirstLayer src;
    FirstLayer dst;
    auto* s = reinterpret_cast<unsigned char*>(static_cast<void*>(&src));
    auto* d = reinterpret_cast<unsigned char*>(static_cast<void*>(&dst));
    for (size_t i = 0; i < sizeof(FirstLayer); ++i) {
        s[i] = static_cast<unsigned char>(i * 7 + 1);
        d[i] = static_cast<unsigned char>(i * 13 + 5);
    }
    src.imageSingleOutputFile = true; // a bool holds only 0 or 1
    dst.imageSingleOutputFile = false;
    std::vector<unsigned char> before(d, d + sizeof(FirstLayer));

    // Bytes that keep the target's value: each UTF-16 string's reserved unit
    // and the alignment gaps between fields.
    std::set<size_t> keep;
    addReservedUnit(keep, src, src.renderApp.appName);
    addReservedUnit(keep, src, src.renderApp.rendererName);
    addReservedUnit(keep, src, src.renderApp.rendererNameExtra);
    addReservedUnit(keep, src, src.renderApp.appType);
    addReservedUnit(keep, src, src.renderApp.rendererVersion);
    for (const auto* str : { &src.camera, &src.layer })
        addReservedUnit(keep, src, *str);
    for (const auto* str : { &src.channel, &src.sceneState, &src.auxName, &src.colorSpace })
        addReservedUnit(keep, src, *str);
    addReservedUnit(keep, src, src.auxText);
    addReservedUnit(keep, src, src.renderLicenses);
    addReservedUnit(keep, src, src.imageFormatOverride);
    for (const auto& row : src.shortNameTable) {
        for (const auto& cell : row)
            addReservedUnit(keep, src, cell);
    }
    addReservedUnit(keep, src, src.imageStereoL);
    addReservedUnit(keep, src, src.imageStereoM);
    addReservedUnit(keep, src, src.imageStereoR);
    for (size_t gap : { size_t(2561), size_t(2599), size_t(3458), size_t(3459), size_t(3501) })
        keep.insert(gap);
    ASSERT_EQ(keep.size(), 2u * (5 + 8 + 1 + 30 + 3) + 5);

    FirstLayer& result = (dst = src);
    EXPECT_EQ(&result, &dst);
    int wrong = 0;
    for (size_t i = 0; i < sizeof(FirstLayer) && wrong < 10; ++i) {
        const unsigned char expected = keep.count(i) ? before[i] : s[i];
        if (d[i] != expected) {
            ADD_FAILURE() << "byte " << i;
            ++wrong;
        }
    }
}

TEST(FirstLayerCopy, CopiesStaleUnitsBehindTheText)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics_largePath>();
    src->camera.set(QStringLiteral("camera_long_name"));
    src->camera.setLength(3);
    static_cast<FirstLayer&>(*dst) = *src;
    EXPECT_EQ(dst->camera.toQString(), QStringLiteral("cam"));
    EXPECT_EQ(dst->camera.data[4], u'r');
}

// ---- initialisers ---------------------------------------------------------

TEST(RecordInit, ClearKeepsTheHeadAndZeroesTheRest)
{
    auto r = std::make_unique<_JobBasics>();
    std::memset(static_cast<void*>(r.get()), 0x5A, sizeof(_JobBasics));
    r->imageSingleOutputFile = false;
    r->structureID = 4;
    r->structureVersion = 9;
    r->zkClearBasics();
    EXPECT_EQ(r->structureID, 4);
    EXPECT_EQ(r->structureVersion, 9);
    EXPECT_EQ(r->structureReserved[15], 0x5A);
    EXPECT_EQ(r->initMarker, 3);
    EXPECT_EQ(r->padding, 4);
    EXPECT_EQ(r->seqStart, 1.0);
    EXPECT_EQ(r->settingText4.toQString(), QStringLiteral("<auto>"));
    EXPECT_EQ(r->gap3686[0], 0);
    EXPECT_EQ(r->reservedTail[79], 0);
    EXPECT_EQ(r->channelBufferUsed, 0);
    EXPECT_EQ(r->settingsReservedTail[51], 0);

    r->initialize();
    EXPECT_EQ(r->structureID, 1033);
    EXPECT_EQ(r->structureVersion, 1);
    EXPECT_EQ(r->structureReserved[15], 0);

    r->structureID = 4;
    r->structureReserved[0] = 1;
    r->camera.set(QStringLiteral("kept"));
    r->setStructureIDs();
    EXPECT_EQ(r->structureID, 1033);
    EXPECT_EQ(r->structureReserved[0], 0);
    EXPECT_EQ(r->camera.toQString(), QStringLiteral("kept"));
}

// ---- toJobsBasic ----------------------------------------------------------

TEST(ToJobsBasic, CutsPathsToTheCompactCapacities)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics>();
    src->sceneName.set(QString(600, u's'));
    src->sceneDatabaseDir.set(QString(501, u'd'));
    src->auxPath.set(QStringLiteral("aux"));
    src->imageDir.set(QString(1000, u'i'));
    src->imageFileName.set(QString(300, u'f'));
    src->auxImageName.set(QString(251, u'a'));
    src->imageExtension.set(QString(25, u'e'));
    src->camera.set(QStringLiteral("cam1"));
    src->seqStart = 5;
    src->seqEnd = 50;
    src->customDataCount = 1;
    src->customData[17] = 'x';
    src->auxByte4 = 9;
    dst->auxByte4 = 2;

    src->toJobsBasic(*dst);
    EXPECT_EQ(dst->sceneName.length, 500);
    EXPECT_EQ(dst->sceneName.data[500], 0);
    EXPECT_EQ(dst->sceneDatabaseDir.length, 500);
    EXPECT_EQ(dst->auxPath.toQString(), QStringLiteral("aux"));
    EXPECT_EQ(dst->imageDir.length, 500);
    EXPECT_EQ(dst->imageFileName.length, 250);
    EXPECT_EQ(dst->imageFileName.data[250], 0);
    EXPECT_EQ(dst->auxImageName.length, 250);
    EXPECT_EQ(dst->imageExtension.length, 25);
    EXPECT_EQ(dst->camera.toQString(), QStringLiteral("cam1"));
    EXPECT_EQ(dst->seqStart, 5.0);
    EXPECT_EQ(dst->seqEnd, 50.0);
    EXPECT_EQ(dst->customDataCount, 1);
    EXPECT_EQ(dst->customData[17], 'x');
    // The settings are copied whole: the source's empty texts replace "<auto>".
    EXPECT_TRUE(dst->settingText2.isEmpty());
    EXPECT_EQ(dst->auxByte4, 2);
}

TEST(ToJobsBasic, SourceLengthIsTheZeroTerminatedText)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics>();
    src->imageDir.set(QStringLiteral("/render/"));
    src->imageDir.length = 900; // a stale length field does not count
    src->imageFileName.set(QStringLiteral("beauty.exr"));
    src->imageFileName.length = 2;
    src->toJobsBasic(*dst);
    EXPECT_EQ(dst->imageDir.toQString(), QStringLiteral("/render/"));
    EXPECT_EQ(dst->imageFileName.toQString(), QStringLiteral("beauty.exr"));
}

TEST(ToJobsBasic, TextWithoutTerminatorIsCutAtItsField)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics>();
    // The last slot's extension and every byte behind it, up to the record's
    // end, hold no zero unit: the copy must stay inside the field.
    _zkString<25>& last = src->channels[99].extension;
    src->channels[99].fileName.set(QStringLiteral("n"));
    auto* from = reinterpret_cast<unsigned char*>(&last.data[0]);
    auto* end = reinterpret_cast<unsigned char*>(src.get() + 1);
    std::memset(from, 'e', size_t(end - from));
    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 1);
    EXPECT_EQ(dst->channelExtension(0).length, 25);
}

TEST(ToJobsBasic, PacksChannelsThatFitAndSkipsTheRest)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics>();
    dst->channelCount = 3; // the target's old table is replaced
    const QString exr = QStringLiteral(".exr");
    // Slots 0..89: 100-unit names, 104 units with the extension; 76 fit (7904).
    for (int k = 0; k < 90; ++k) {
        src->channels[k].fileName.set(QString(100, QChar(u'A' + k % 26)));
        src->channels[k].extension.set(exr);
    }
    src->channels[90].fileName.set(QString(80, u'x')); // 7904 + 84 = 7988: fits
    src->channels[90].extension.set(exr);
    src->channels[91].fileName.set(QString(8, u'y')); // 7988 + 12 = 8000: skipped
    src->channels[91].extension.set(exr);
    src->channels[92].fileName.set(QString(7, u'z')); // 7988 + 11 = 7999: fits
    src->channels[92].extension.set(exr);
    src->channels[93].extension.set(exr); // no file name: no channel

    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 78);
    EXPECT_EQ(dst->channelBufferUsed, 7999);
    EXPECT_EQ(dst->channelFileName(0).toQString(), QString(100, u'A'));
    EXPECT_EQ(dst->channelFileName(75).toQString(), QString(100, QChar(u'A' + 75 % 26)));
    EXPECT_EQ(dst->channelFileName(76).toQString(), QString(80, u'x'));
    EXPECT_EQ(dst->channelFileName(77).toQString(), QString(7, u'z'));
    EXPECT_EQ(dst->channelExtension(77).toQString(), exr);
}

TEST(ToJobsBasic, CutsChannelNamesAndSkipsEmptySlots)
{
    auto src = std::make_unique<_JobBasics_largePath>();
    auto dst = std::make_unique<_JobBasics>();
    src->channels[3].fileName.set(QString(700, u'n'));
    src->channels[3].extension.set(QStringLiteral(".tif"));
    src->channels[99].fileName.set(QStringLiteral("last"));
    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 2);
    EXPECT_EQ(dst->channelFileNameLength[0], 500);
    EXPECT_EQ(dst->channelExtension(0).toQString(), QStringLiteral(".tif"));
    EXPECT_EQ(dst->channelFileName(1).toQString(), QStringLiteral("last"));
    EXPECT_TRUE(dst->channelExtension(1).isEmpty());
    EXPECT_EQ(dst->channelBufferUsed, 500 + 4 + 4);
}

// ---- versions -------------------------------------------------------------

TEST(RenderAppVersion, SetVersionMinorPadsToFive)
{
    const struct
    {
        const char* in;
        const char* stored;
    } rows[] = { { "5.303", "5.303" }, { "1", "10000" }, { "", "00000" }, { "123456", "12345" } };
    for (const auto& r : rows) {
        zkRA::_RenderAppBasic app {};
        app.setVersionMinor(QLatin1String(r.in));
        EXPECT_EQ(app.versionMinor.toQString(), QLatin1String(r.stored)) << r.in;
    }
}

TEST(RenderAppVersion, MinorDisplay)
{
    const struct
    {
        const char* minor;
        bool removeDot;
        unsigned char minDigits;
        const char* shown;
    } rows[] = {
        { "50", true, 1, "5" },
        { "50", false, 2, "50" },
        { "5.370", true, 1, "537" },
        { "5.370", false, 1, "5.37" },
        { "10000", false, 1, "1" },
        { "000", true, 1, "0" },
        { "000", false, 0, "" },
        { "5.300", false, 1, "5.3" },
        { "", true, 1, "" },
    };
    for (const auto& r : rows) {
        zkRA::_RenderAppBasic app {};
        app.versionMinor.setLatin1(r.minor);
        EXPECT_EQ(app.getVersionMinorDisplay(r.removeDot, r.minDigits), QLatin1String(r.shown))
            << r.minor << " " << r.removeDot << " " << int(r.minDigits);
    }
}

// ---- wait-for list --------------------------------------------------------

TEST(WaitForList, SetClampsTheIndexAndCutsBehindIt)
{
    auto job = std::make_unique<_JobBasics_largePath>();
    job->setWaitForPreID(40, 7);
    EXPECT_EQ(job->waitForPreIDs[29], 7);
    EXPECT_EQ(job->waitForPreIDCount, 30);
    job->setWaitForPreID(-3, 8);
    EXPECT_EQ(job->waitForPreIDs[0], 8);
    EXPECT_EQ(job->waitForPreIDCount, 1);
    job->setWaitForPreID(5, 9);
    EXPECT_EQ(job->waitForPreIDCount, 6);
    job->setWaitForPreID(2, 1);
    EXPECT_EQ(job->waitForPreIDCount, 3);
    EXPECT_EQ(job->waitForPreIDs[5], 9); // cut from the list, not erased
}

TEST(WaitForList, AddAppendsUpToTwentyNine)
{
    auto job = std::make_unique<_JobBasics_largePath>();
    job->addWaitForPreID(4);
    EXPECT_EQ(job->waitForPreIDs[0], 4);
    EXPECT_EQ(job->waitForPreIDCount, 1);
    for (int i = 1; i < 30; ++i)
        job->addWaitForPreID(static_cast<unsigned char>(10 + i));
    EXPECT_EQ(job->waitForPreIDCount, 29);
    EXPECT_EQ(job->waitForPreIDs[28], 38);
    EXPECT_EQ(job->waitForPreIDs[29], 0); // the 30th call was ignored
}

// ---- command password -----------------------------------------------------

_passHash digestOf(const char* text)
{
    return zkCRC_SHA1_16B(
        reinterpret_cast<const unsigned char*>(text), static_cast<unsigned int>(std::strlen(text)));
}

TEST(CommandPassword, OpenWithoutPasswordOnlyTheDigestOtherwise)
{
    auto job = std::make_unique<_JobBasics_largePath>();
    EXPECT_TRUE(job->isRightCommandPW(_passHash()));
    EXPECT_TRUE(job->isRightCommandPW(digestOf("anything")));

    job->setCommandPassword(_zkString8_allSize<40>("secret"));
    EXPECT_EQ(job->commandPassword.length, 16);
    EXPECT_TRUE(job->commandPassword.isEqual(digestOf("secret")));
    EXPECT_EQ(std::memcmp(job->commandPassword.data, "secret", 6) == 0, false);
    EXPECT_TRUE(job->isRightCommandPW(digestOf("secret")));
    EXPECT_FALSE(job->isRightCommandPW(digestOf("Secret")));
    EXPECT_FALSE(job->isRightCommandPW(_passHash()));

    // A damaged length is bounded by the capacity.
    _zkString8_allSize<40> damaged("secret");
    damaged.length = 60000;
    job->setCommandPassword(damaged);
    EXPECT_EQ(job->commandPassword.length, 16);

    // A new password replaces the old digest entirely.
    job->setCommandPassword(_zkString8_allSize<40>("other"));
    EXPECT_FALSE(job->isRightCommandPW(digestOf("secret")));
    EXPECT_TRUE(job->isRightCommandPW(digestOf("other")));
}

} // namespace
