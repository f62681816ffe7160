// Waits written from a hand-filled wire graph, through a take fan-out.
#include "plugin/completion.h"
#include "plugin/jobWalk.h"

#include <gtest/gtest.h>

namespace {

std::vector<int> waitsOf(const zkJ::_JobBasics_largePath& job)
{
    return std::vector<int>(job.waitForPreIDs, job.waitForPreIDs + job.waitForPreIDCount);
}

} // namespace

TEST(WireWaits, ExportFirstThenWiresInsideTheTake)
{
    zkJ::_JobBasicsArray jobs;
    zkP::_dataPARS_LoadSceneFile record { nullptr, &jobs, nullptr };
    LoadContext ctx;
    ctx.data = &record;
    Scene scene(ctx);
    // A cache, an export pair and a comp of its own take, as readers leave them.
    for (const char* layer : { "/obj/geo1/cache", "/out/ifd", "/out/ifd", "/out/comp" }) {
        zkJ::_JobBasics_largePath* job = appendJob(jobs);
        job->layer.set(QString::fromLatin1(layer));
        job->preID = static_cast<unsigned char>(jobs.count);
        scene.noteOf(jobs.count - 1).driverNode = QString::fromLatin1(layer + 1);
    }
    jobs.records[2].addWaitForPreID(2);
    scene.noteOf(3).take = QStringLiteral("t1");
    scene.takes = QStringList { QStringLiteral("t0"), QStringLiteral("t1") };

    // ifd <- merge1 <- { fetch1 (stands for the cache), comp }; comp <- ifd.
    WireGraph::addInput(*scene.wires.insert(u"out/ifd"), { 0, QStringLiteral("merge1") });
    WireNode& merge = *scene.wires.insert(u"out/merge1");
    WireGraph::addInput(merge, { 0, QStringLiteral("fetch1") });
    WireGraph::addInput(merge, { 1, QStringLiteral("comp") });
    WireGraph::addInput(merge, { 2, QStringLiteral("fetch1") });
    scene.wires.setType(u"out/fetch1", u"fetch");
    scene.wires.insert(u"out/fetch1")->fetchSource = QStringLiteral("/obj/geo1/cache");
    WireGraph::addInput(*scene.wires.insert(u"out/comp"), { 0, QStringLiteral("ifd") });

    ASSERT_EQ(waitForWiredDrivers(scene), LoadOk);
    ASSERT_EQ(fanOutJobs(scene), LoadOk);
    // Take copies (preIDs 5 to 7) of the cache and the pair wait for each
    // other's copies and for the comp, which has none.
    const std::vector<std::vector<int>> expected { {}, { 1, 4 }, { 2, 1, 4 }, { 3 }, {}, { 5, 4 },
        { 6, 5, 4 } };
    ASSERT_EQ(jobs.count, int(expected.size()));
    for (int j = 0; j < jobs.count; ++j)
        EXPECT_EQ(waitsOf(jobs.records[j]), expected[std::size_t(j)]) << "job " << j;
}
