// The job array grows one initialised record per job, within its cap. The
// layout check is tested where the host meets it (tests/host/entryPoints).
#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

using zkJ::_JobBasics_largePath;
using zkJ::_JobBasicsArray;

TEST(JobArray, GrowsOneInitialisedRecordPerJobAndClearReusesThem)
{
    _JobBasicsArray jobs;
    EXPECT_EQ(jobs.at(0), nullptr);
    _JobBasics_largePath* job = nullptr;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(jobs.getNewJob(job));
        ASSERT_EQ(job, jobs.at(i));
        job->camera.set(QStringLiteral("cam%1").arg(i));
    }
    EXPECT_EQ(jobs.count + jobs.allocated * 10, 33); // no spare capacity
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(jobs.at(i)->camera.toQString(), QStringLiteral("cam%1").arg(i)); // kept
        EXPECT_EQ(jobs.at(i)->padding, 4);
        EXPECT_TRUE(jobs.at(i)->settingText2.isEmpty()); // no "<auto>" in array records
    }
    EXPECT_EQ(jobs.at(3), nullptr);
    EXPECT_EQ(jobs.at(-1), nullptr);

    // Clearing keeps the records for reuse; a reused one is initialised anew
    // except its head.
    jobs.arrayText.set(QStringLiteral("-opt"));
    _JobBasics_largePath* first = jobs.at(0);
    first->structureID = 2000;
    std::memset(first->structureReserved, 0xAB, sizeof(first->structureReserved));
    first->channels[5].fileName.set(QStringLiteral("diffuse"));
    first->padding = 0;
    first->seqStep = 3;
    first->customDataCount = 2;
    first->ID = 99;
    jobs.clear();
    EXPECT_EQ(jobs.count + jobs.allocated * 10, 30);
    EXPECT_TRUE(jobs.arrayText.isEmpty());
    ASSERT_TRUE(jobs.getNewJob(job));
    ASSERT_EQ(job, first);
    EXPECT_EQ(job->structureID, 2000);
    EXPECT_EQ(job->structureReserved[15], 0xAB);
    EXPECT_EQ(job->padding + job->seqStep * 10 + job->customDataCount * 100, 14);
    EXPECT_TRUE(job->camera.isEmpty() && job->channels[5].fileName.isEmpty());
    const unsigned long long id = job->ID; // packed: no reference to the field itself
    EXPECT_EQ(id, 0u);
}

TEST(JobArray, SizeNeverShrinksAndStopsAtTheCap)
{
    _JobBasicsArray jobs;
    // Refused before anything is allocated: the test never asks for 2.27 GB.
    EXPECT_FALSE(jobs.setArraySize(zkJ::MaxJobRecords + 1));
    EXPECT_EQ(jobs.records, nullptr);
    ASSERT_TRUE(jobs.setArraySize(4));
    _JobBasics_largePath* const block = jobs.records;
    for (int n : { 2, 4, 0, -5 })
        EXPECT_TRUE(jobs.setArraySize(n));
    EXPECT_EQ(jobs.allocated, 4);
    EXPECT_EQ(jobs.records, block);
    // at() bounds by the allocation, not by the count.
    ASSERT_NE(jobs.at(3), nullptr);
    EXPECT_EQ(jobs.at(3)->padding, 4);

    // No record at the cap, nor for a count the host damaged.
    for (int count : { zkJ::MaxJobRecords, -1 }) {
        jobs.count = count;
        const auto sentinel = std::make_unique<_JobBasics_largePath>();
        _JobBasics_largePath* job = sentinel.get();
        EXPECT_FALSE(jobs.getNewJob(job)) << count;
        EXPECT_EQ(job, nullptr);
        EXPECT_EQ(jobs.allocated, 4);
    }
    jobs.count = 0;
}

} // namespace
