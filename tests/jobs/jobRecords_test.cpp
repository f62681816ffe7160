#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

namespace {

using zkJ::_JobBasics;
using zkJ::_JobBasics_largePath;
using FirstLayer = zkJ::_JobBasics_noSettings_noPaths;

unsigned char* bytesOf(void* p)
{
    return static_cast<unsigned char*>(p);
}

// The take and wedge copies go through this operator, so a field it forgot
// would reach the host as the target's old bytes.
TEST(FirstLayerCopy, CopiesEveryFieldButNotReservedUnitsOrGaps)
{
    FirstLayer src;
    FirstLayer targets[2];
    for (size_t i = 0; i < sizeof(FirstLayer); ++i) {
        bytesOf(&src)[i] = static_cast<unsigned char>(i * 7 + 1);
        bytesOf(&targets[0])[i] = static_cast<unsigned char>(i * 13 + 5);
        bytesOf(&targets[1])[i] = static_cast<unsigned char>(i * 13 + 6);
    }
    src.imageSingleOutputFile = true; // a bool holds only 0 or 1
    for (FirstLayer& t : targets) {
        t.imageSingleOutputFile = false;
        EXPECT_EQ(&(t = src), &t);
    }
    // Bytes that kept the target's value differ between the two copies: one
    // reserved unit for each of the 47 UTF-16 strings, and 5 gap bytes.
    int kept = 0;
    for (size_t i = 0; i < sizeof(FirstLayer); ++i) {
        if (bytesOf(&targets[0])[i] != bytesOf(&targets[1])[i])
            ++kept;
        else
            EXPECT_EQ(bytesOf(&targets[0])[i], bytesOf(&src)[i]) << "byte " << i;
    }
    EXPECT_EQ(kept, 2 * 47 + 5);
    EXPECT_NE(bytesOf(&targets[0])[2561], bytesOf(&targets[1])[2561]);
}

// The initialised head of a record is in every scene case's jobs
// (scanner_frange checks it); clearing keeps the head, setting it keeps the rest.
TEST(RecordInit, ClearKeepsTheHeadSetStructureIDsOnlyTheHead)
{
    auto r = std::make_unique<_JobBasics>();
    std::memset(static_cast<void*>(r.get()), 0x5A, sizeof(_JobBasics));
    r->imageSingleOutputFile = false;
    r->structureID = 4;
    r->zkClearBasics();
    EXPECT_EQ(r->structureID, 4);
    EXPECT_EQ(r->structureReserved[15], 0x5A);
    EXPECT_EQ(r->gap3686[0] + r->reservedTail[79] + r->settingsReservedTail[51], 0);
    EXPECT_EQ(r->initMarker + r->padding * 10 + r->seqStart * 100, 143);
    EXPECT_EQ(r->settingText4.toQString(), QStringLiteral("<auto>"));

    r->camera.set(QStringLiteral("kept"));
    r->setStructureIDs();
    EXPECT_EQ(r->structureID + r->structureVersion * 10000, 11033);
    EXPECT_EQ(r->structureReserved[15], 0);
    EXPECT_EQ(r->camera.toQString(), QStringLiteral("kept"));
}

// ---- toJobsBasic: the compact form the host keeps --------------------------

struct ToBasic : ::testing::Test
{
    std::unique_ptr<_JobBasics_largePath> src = std::make_unique<_JobBasics_largePath>();
    std::unique_ptr<_JobBasics> dst = std::make_unique<_JobBasics>();
};

TEST_F(ToBasic, CutsPathsToTheCompactCapacities)
{
    src->sceneName.set(QString(600, u's'));
    src->sceneDatabaseDir.set(QString(501, u'd'));
    src->imageDir.set(QStringLiteral("/render/"));
    src->imageDir.length = 900; // a stale length field does not count
    src->imageFileName.set(QString(300, u'f'));
    src->auxImageName.set(QString(251, u'a'));
    src->imageExtension.set(QString(25, u'e'));
    src->camera.set(QStringLiteral("cam1"));
    src->seqEnd = 50;
    src->customData[17] = 'x';
    src->auxByte4 = 9;
    dst->auxByte4 = 2;

    src->toJobsBasic(*dst);
    EXPECT_EQ(
        (std::vector<int> { dst->sceneName.length, dst->sceneDatabaseDir.length,
            dst->imageFileName.length, dst->auxImageName.length, dst->imageExtension.length }),
        (std::vector<int> { 500, 500, 250, 250, 25 }));
    EXPECT_EQ(dst->sceneName.data[500] + dst->imageFileName.data[250], 0);
    EXPECT_EQ(dst->imageDir.toQString() + dst->camera.toQString(), QStringLiteral("/render/cam1"));
    EXPECT_EQ(dst->seqEnd, 50.0);
    EXPECT_EQ(dst->customData[17], 'x');
    // The settings are copied whole: the source's empty texts replace "<auto>".
    EXPECT_TRUE(dst->settingText2.isEmpty());
    EXPECT_EQ(dst->auxByte4, 2);
}

TEST_F(ToBasic, TextWithoutTerminatorIsCutAtItsField)
{
    // The last slot's extension and every byte behind it, up to the record's
    // end, hold no zero unit: the copy must stay inside the field.
    src->channels[99].fileName.set(QStringLiteral("n"));
    unsigned char* from = bytesOf(&src->channels[99].extension.data[0]);
    std::memset(from, 'e', size_t(bytesOf(src.get() + 1) - from));
    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 1);
    EXPECT_EQ(dst->channelExtension(0).length, 25);
}

TEST_F(ToBasic, PacksChannelsThatFitAndSkipsTheRest)
{
    dst->channelCount = 3; // the target's old table is replaced
    const QString exr = QStringLiteral(".exr");
    // Slots 0..89: 100-unit names, 104 units with the extension; 76 fit (7904).
    for (int k = 0; k < 90; ++k)
        src->channels[k].fileName.set(QString(100, QChar(u'A' + k % 26)));
    const struct
    {
        int slot, length;
    } tail[] = { { 90, 80 }, { 91, 8 }, { 92, 7 } }; // 7988 fits, 8000 not, 7999 fits
    for (const auto& t : tail)
        src->channels[t.slot].fileName.set(QString(t.length, u'x'));
    for (int k = 0; k < 94; ++k)
        src->channels[k].extension.set(exr); // slot 93: no file name, no channel

    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 78);
    EXPECT_EQ(dst->channelBufferUsed, 7999);
    EXPECT_EQ(dst->channelFileName(75).toQString(), QString(100, QChar(u'A' + 75 % 26)));
    EXPECT_EQ(dst->channelFileName(76).toQString(), QString(80, u'x'));
    EXPECT_EQ(dst->channelFileName(77).toQString(), QString(7, u'x'));
    EXPECT_EQ(dst->channelExtension(77).toQString(), exr);

    // A 700-unit name is cut to 500; an extension may be empty.
    src = std::make_unique<_JobBasics_largePath>();
    src->channels[3].fileName.set(QString(700, u'n'));
    src->channels[99].fileName.set(QStringLiteral("last"));
    src->toJobsBasic(*dst);
    ASSERT_EQ(dst->channelCount, 2);
    EXPECT_EQ(dst->channelFileNameLength[0], 500);
    EXPECT_EQ(dst->channelFileName(1).toQString(), QStringLiteral("last"));
    EXPECT_EQ(dst->channelBufferUsed, 504);
}

// ---- waits and password: methods the host calls ---------------------------

TEST(WaitForList, SetClampsTheIndexAddStopsAtTwentyNine)
{
    auto job = std::make_unique<_JobBasics_largePath>();
    const struct
    {
        int index, count;
    } sets[] = { { 40, 30 }, { -3, 1 }, { 5, 6 }, { 2, 3 } };
    for (const auto& s : sets) {
        job->setWaitForPreID(s.index, 7);
        EXPECT_EQ(job->waitForPreIDCount, s.count) << s.index;
    }
    EXPECT_EQ(job->waitForPreIDs[29], 7);
    EXPECT_EQ(job->waitForPreIDs[5], 7); // cut from the list, not erased

    job = std::make_unique<_JobBasics_largePath>();
    for (int i = 0; i < 30; ++i)
        job->addWaitForPreID(static_cast<unsigned char>(10 + i));
    EXPECT_EQ(job->waitForPreIDCount, 29);
    EXPECT_EQ(job->waitForPreIDs[28], 38);
    EXPECT_EQ(job->waitForPreIDs[29], 0); // the 30th call was ignored
}

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
    EXPECT_TRUE(job->isRightCommandPW(digestOf("secret")));
    EXPECT_FALSE(job->isRightCommandPW(digestOf("Secret")));
    EXPECT_FALSE(job->isRightCommandPW(_passHash()));

    _zkString8_allSize<40> damaged("secret");
    damaged.length = 60000; // bounded by the capacity
    job->setCommandPassword(damaged);
    EXPECT_EQ(job->commandPassword.length, 16);

    job->setCommandPassword(_zkString8_allSize<40>("other"));
    EXPECT_FALSE(job->isRightCommandPW(digestOf("secret")));
    EXPECT_TRUE(job->isRightCommandPW(digestOf("other")));
}

} // namespace
