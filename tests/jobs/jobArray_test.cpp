#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

using zkJ::_JobBasics_largePath;
using zkJ::_JobBasicsArray;

TEST(JobArray, NewArrayIsEmptyAndSupportsVersionOne)
{
    _JobBasicsArray jobs;
    EXPECT_EQ(jobs.structureID, 1033);
    EXPECT_EQ(jobs.structureVersion, 1);
    EXPECT_EQ(jobs.recordSize, 226968u);
    EXPECT_EQ(jobs.count, 0);
    EXPECT_EQ(jobs.allocated, 0);
    EXPECT_EQ(jobs.records, nullptr);
    EXPECT_TRUE(jobs.arrayText.isEmpty());
    EXPECT_EQ(jobs.at(0), nullptr);

    EXPECT_TRUE(jobs.isVersionSupported(1));
    EXPECT_FALSE(jobs.isVersionSupported(2));
}

TEST(JobArray, VersionCheckRejectsForeignLayouts)
{
    _JobBasicsArray jobs;
    jobs.recordSize = 30376;
    EXPECT_FALSE(jobs.isVersionSupported(1));
    jobs.recordSize = 226968;
    jobs.structureID = 1034;
    EXPECT_FALSE(jobs.isVersionSupported(1));
    jobs.structureID = 1033;
    jobs.structureVersion = 0;
    EXPECT_FALSE(jobs.isVersionSupported(1));
    jobs.structureVersion = 3;
    EXPECT_TRUE(jobs.isVersionSupported(2));
}

TEST(JobArray, GrowsOneRecordPerJobAndInitialisesEach)
{
    _JobBasicsArray jobs;
    for (int i = 0; i < 3; ++i) {
        _JobBasics_largePath* job = nullptr;
        ASSERT_TRUE(jobs.getNewJob(job));
        ASSERT_EQ(job, jobs.at(i));
        job->camera.set(QStringLiteral("cam%1").arg(i));
    }
    EXPECT_EQ(jobs.count, 3);
    EXPECT_EQ(jobs.allocated, 3); // exactly what was asked, no spare capacity
    for (int i = 0; i < 3; ++i) {
        const _JobBasics_largePath* job = jobs.at(i);
        EXPECT_EQ(job->camera.toQString(), QStringLiteral("cam%1").arg(i)); // growth kept them
        EXPECT_EQ(job->structureID, 1033);
        EXPECT_EQ(job->initMarker, 3);
        EXPECT_EQ(job->padding, 4);
        EXPECT_EQ(job->seqStep, 1);
        EXPECT_TRUE(job->settingText2.isEmpty()); // no "<auto>" in array records
    }
    EXPECT_EQ(jobs.at(3), nullptr);
    EXPECT_EQ(jobs.at(-1), nullptr);
}

TEST(JobArray, SetArraySizeNeverShrinks)
{
    _JobBasicsArray jobs;
    ASSERT_TRUE(jobs.setArraySize(4));
    _JobBasics_largePath* const block = jobs.records;
    EXPECT_TRUE(jobs.setArraySize(2));
    EXPECT_TRUE(jobs.setArraySize(4));
    EXPECT_TRUE(jobs.setArraySize(0));
    EXPECT_TRUE(jobs.setArraySize(-5));
    EXPECT_EQ(jobs.allocated, 4);
    EXPECT_EQ(jobs.records, block);
    EXPECT_EQ(jobs.count, 0);
    // at() bounds by the allocation, not by the count.
    EXPECT_NE(jobs.at(3), nullptr);
    EXPECT_EQ(jobs.at(3)->padding, 4);
}

TEST(JobArray, RefusesMoreThanTheCapWithoutChanges)
{
    // Refused before anything is allocated: the test never asks for 2.27 GB.
    _JobBasicsArray jobs;
    EXPECT_FALSE(jobs.setArraySize(zkJ::MaxJobRecords + 1));
    EXPECT_EQ(jobs.allocated, 0);
    EXPECT_EQ(jobs.records, nullptr);

    ASSERT_TRUE(jobs.setArraySize(1));
    _JobBasics_largePath* const block = jobs.records;
    EXPECT_FALSE(jobs.setArraySize(10001));
    EXPECT_EQ(jobs.allocated, 1);
    EXPECT_EQ(jobs.records, block);
}

TEST(JobArray, GetNewJobFailsAtTheCap)
{
    _JobBasicsArray jobs;
    jobs.count = zkJ::MaxJobRecords; // as if 10000 jobs had been handed out
    const auto sentinel = std::make_unique<_JobBasics_largePath>();
    _JobBasics_largePath* job = sentinel.get();
    EXPECT_FALSE(jobs.getNewJob(job));
    EXPECT_EQ(job, nullptr);
    EXPECT_EQ(jobs.allocated, 0);
    EXPECT_EQ(jobs.count, zkJ::MaxJobRecords + 1);
    jobs.count = 0;
}

TEST(JobArray, NegativeCountGivesNoRecord)
{
    _JobBasicsArray jobs;
    ASSERT_TRUE(jobs.setArraySize(1));
    jobs.count = -1; // damaged by the host: record -1 does not exist
    _JobBasics_largePath* job = jobs.at(0);
    EXPECT_FALSE(jobs.getNewJob(job));
    EXPECT_EQ(job, nullptr);
}

TEST(JobArray, ClearReusesRecordsAndReinitialisesThem)
{
    _JobBasicsArray jobs;
    _JobBasics_largePath* job = nullptr;
    ASSERT_TRUE(jobs.getNewJob(job));
    ASSERT_TRUE(jobs.getNewJob(job));
    jobs.arrayText.set(QStringLiteral("-opt"));

    // Dirty the first record everywhere, including the kept head.
    _JobBasics_largePath* first = jobs.at(0);
    first->structureID = 2000;
    first->structureVersion = 7;
    std::memset(first->structureReserved, 0xAB, sizeof(first->structureReserved));
    first->camera.set(QStringLiteral("cam"));
    first->imageFileName.set(QStringLiteral("beauty."));
    first->channels[5].fileName.set(QStringLiteral("diffuse"));
    first->padding = 0;
    first->seqStart = 10;
    first->seqEnd = 20;
    first->seqStep = 3;
    first->customDataCount = 2;
    first->customData[0] = 'c';
    first->ID = 99;

    _JobBasics_largePath* const block = jobs.records;
    jobs.clear();
    EXPECT_EQ(jobs.count, 0);
    EXPECT_EQ(jobs.allocated, 2);
    EXPECT_TRUE(jobs.arrayText.isEmpty());

    ASSERT_TRUE(jobs.getNewJob(job));
    EXPECT_EQ(jobs.records, block);
    ASSERT_EQ(job, first);
    EXPECT_EQ(job->structureID, 2000);
    EXPECT_EQ(job->structureVersion, 7);
    for (unsigned char b : job->structureReserved)
        EXPECT_EQ(b, 0xAB);
    EXPECT_EQ(job->initMarker, 3);
    EXPECT_EQ(job->padding, 4);
    EXPECT_EQ(job->seqStart, 1.0);
    EXPECT_EQ(job->seqEnd, 1.0);
    EXPECT_EQ(job->seqStep, 1);
    EXPECT_TRUE(job->camera.isEmpty());
    EXPECT_TRUE(job->imageFileName.isEmpty());
    EXPECT_TRUE(job->channels[5].fileName.isEmpty());
    EXPECT_EQ(job->customDataCount, 0);
    EXPECT_EQ(job->customData[0], 0);
    const unsigned long long id = job->ID; // packed: no reference to the field itself
    EXPECT_EQ(id, 0u);
    EXPECT_EQ(jobs.count, 1);
}

} // namespace
