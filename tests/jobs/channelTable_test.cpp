#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace {

using zkJ::_JobBasics;

_zkString<500> name(const QString& s)
{
    return _zkString<500>(s);
}

_zkString<25> ext(const QString& s)
{
    return _zkString<25>(s);
}

/// The packed buffer as text, up to channelBufferUsed.
QString buffer(const _JobBasics& j)
{
    return QString::fromUtf16(
        reinterpret_cast<const char16_t*>(j.channelBuffer), j.channelBufferUsed);
}

/// Every channel as "name|ext", checked against the packing invariants.
QStringList channels(const _JobBasics& j)
{
    QStringList out;
    int expectedStart = 0;
    for (int k = 0; k < j.channelCount; ++k) {
        EXPECT_EQ(j.channelStart[k], expectedStart) << "channel " << k;
        expectedStart += j.channelFileNameLength[k] + j.channelExtensionLength[k];
        out.append(j.channelFileName(k).toQString() + u'|' + j.channelExtension(k).toQString());
    }
    EXPECT_LE(j.channelBufferUsed, 7999);
    return out;
}

class ChannelTable : public ::testing::Test
{
protected:
    void SetUp() override
    {
        job->channelAdd(name(QStringLiteral("diffuse")), ext(QStringLiteral(".exr")));
        job->channelAdd(name(QStringLiteral("spec")), ext(QStringLiteral(".tif")));
        job->channelAdd(name(QStringLiteral("z")), ext(QStringLiteral(".exr")));
    }
    std::unique_ptr<_JobBasics> job = std::make_unique<_JobBasics>();
};

TEST_F(ChannelTable, AddPacksTextWithoutGaps)
{
    EXPECT_EQ(channels(*job),
        QStringList({ QStringLiteral("diffuse|.exr"), QStringLiteral("spec|.tif"),
            QStringLiteral("z|.exr") }));
    EXPECT_EQ(buffer(*job), QStringLiteral("diffuse.exrspec.tifz.exr"));

    job->channelAdd(name(QString()), ext(QStringLiteral(".exr"))); // no name: ignored
    EXPECT_EQ(job->channelCount, 3);
    job->channelAdd(name(QStringLiteral("noext")), ext(QString()));
    EXPECT_EQ(job->channelCount, 4);
    EXPECT_TRUE(job->channelExtension(3).isEmpty());
}

TEST_F(ChannelTable, GrowingANameMovesEverythingBehindIt)
{
    job->channelSetFileName(0, name(QStringLiteral("diffuse_direct")));
    EXPECT_EQ(buffer(*job), QStringLiteral("diffuse_direct.exrspec.tifz.exr"));
    EXPECT_EQ(channels(*job).at(2), QStringLiteral("z|.exr"));

    job->channelSetExtension(1, ext(QStringLiteral(".tiff")));
    EXPECT_EQ(buffer(*job), QStringLiteral("diffuse_direct.exrspec.tiffz.exr"));
    EXPECT_EQ(channels(*job).at(1), QStringLiteral("spec|.tiff"));
}

TEST_F(ChannelTable, ShrinkingMovesTheTailForward)
{
    job->channelSetFileName(0, name(QStringLiteral("d")));
    job->channelSetExtension(0, ext(QStringLiteral(".e")));
    EXPECT_EQ(buffer(*job), QStringLiteral("d.espec.tifz.exr"));
    EXPECT_EQ(channels(*job),
        QStringList(
            { QStringLiteral("d|.e"), QStringLiteral("spec|.tif"), QStringLiteral("z|.exr") }));

    job->channelSet(2, name(QStringLiteral("depth")), ext(QStringLiteral(".png")));
    EXPECT_EQ(buffer(*job), QStringLiteral("d.espec.tifdepth.png"));
}

TEST_F(ChannelTable, EmptyTextsAndBadIndicesChangeNothing)
{
    const QString before = buffer(*job);
    job->channelSetFileName(0, name(QString()));
    job->channelSetExtension(0, ext(QString()));
    job->channelSetFileName(3, name(QStringLiteral("x")));
    job->channelSetFileName(-1, name(QStringLiteral("x")));
    job->channelRemove(3);
    job->channelRemove(-1);
    EXPECT_EQ(buffer(*job), before);
    EXPECT_EQ(job->channelCount, 3);
    EXPECT_TRUE(job->channelFileName(3).isEmpty());
    EXPECT_TRUE(job->channelFileName(-1).isEmpty());
    EXPECT_TRUE(job->channelExtension(7).isEmpty());
}

TEST_F(ChannelTable, RemoveMovesLaterChannelsForward)
{
    job->channelRemove(0);
    EXPECT_EQ(
        channels(*job), QStringList({ QStringLiteral("spec|.tif"), QStringLiteral("z|.exr") }));
    // The old last slot's text stays counted until the table is cleared.
    EXPECT_EQ(buffer(*job).left(14), QStringLiteral("spec.tifz.exr") + QStringLiteral("z"));

    job->channelRemove(1);
    EXPECT_EQ(channels(*job), QStringList({ QStringLiteral("spec|.tif") }));
    job->channelClear();
    EXPECT_EQ(job->channelCount, 0);
    EXPECT_EQ(job->channelBufferUsed, 0);
    EXPECT_EQ(job->channelBuffer[0], 0);
}

TEST(ChannelLimits, NeverPassesTheBufferLimit)
{
    auto job = std::make_unique<_JobBasics>();
    const QString name500(500, u'n');
    // 15 channels of 500 + 4 units: 7560; a 16th does not fit.
    for (int k = 0; k < 16; ++k)
        job->channelAdd(name(name500), ext(QStringLiteral(".exr")));
    EXPECT_EQ(job->channelCount, 15);
    EXPECT_EQ(job->channelBufferUsed, 7560);

    // Growing to 7999 exactly is allowed, one more unit is not.
    job->channelAdd(name(QString(435, u'a')), ext(QStringLiteral(".exr")));
    EXPECT_EQ(job->channelBufferUsed, 7999);
    job->channelSetExtension(15, ext(QStringLiteral(".exr5")));
    EXPECT_EQ(job->channelBufferUsed, 7999);
    EXPECT_EQ(job->channelExtension(15).toQString(), QStringLiteral(".exr"));
    job->channelSetFileName(0, name(QString(501, u'b'))); // cut to 500: same length, allowed
    EXPECT_EQ(job->channelFileName(0).toQString(), QString(500, u'b'));
    job->channelSetFileName(3, name(QStringLiteral("short")));
    EXPECT_EQ(job->channelBufferUsed, 7999 - 495);
    EXPECT_EQ(job->channelFileName(15).toQString(), QString(435, u'a'));
    job->channelAdd(name(QStringLiteral("zz")), ext(QString()));
    EXPECT_EQ(job->channelCount, 17);
    for (int k = 0; k < job->channelCount; ++k)
        EXPECT_FALSE(job->channelFileName(k).isEmpty()) << k;
}

TEST(ChannelLimits, AtMostOneHundredChannels)
{
    auto job = std::make_unique<_JobBasics>();
    for (int k = 0; k < 101; ++k)
        job->channelAdd(name(QStringLiteral("c%1").arg(k)), ext(QString()));
    EXPECT_EQ(job->channelCount, 100);
    EXPECT_EQ(job->channelFileName(99).toQString(), QStringLiteral("c99"));
}

TEST(ChannelLimits, CorruptTableReadsAsEmpty)
{
    auto job = std::make_unique<_JobBasics>();
    job->channelAdd(name(QStringLiteral("ok")), ext(QStringLiteral(".exr")));
    job->channelStart[0] = 7990; // beyond channelBufferUsed
    EXPECT_TRUE(job->channelFileName(0).isEmpty());
    EXPECT_TRUE(job->channelExtension(0).isEmpty());
    job->channelStart[0] = -4;
    EXPECT_TRUE(job->channelFileName(0).isEmpty());
}

} // namespace
