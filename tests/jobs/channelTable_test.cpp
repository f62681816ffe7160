#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using zkJ::_JobBasics;

_zkString<500> name(const QString& s)
{
    return _zkString<500>(s);
}

_zkString<25> ext(const char* s)
{
    return _zkString<25>(QString::fromLatin1(s));
}

/// Every channel as "name|ext", then the used buffer, checked against the
/// packing invariants.
std::string table(const _JobBasics& j)
{
    QStringList out;
    int expectedStart = 0;
    for (int k = 0; k < j.channelCount; ++k) {
        EXPECT_EQ(j.channelStart[k], expectedStart) << "channel " << k;
        expectedStart += j.channelFileNameLength[k] + j.channelExtensionLength[k];
        out.append(j.channelFileName(k).toQString() + u'|' + j.channelExtension(k).toQString());
    }
    EXPECT_LE(j.channelBufferUsed, 7999);
    return (out.join(u' ') + QStringLiteral(" / ")
        + QString::fromUtf16(
            reinterpret_cast<const char16_t*>(j.channelBuffer), j.channelBufferUsed))
        .toStdString();
}

TEST(ChannelTable, EditsKeepTheBufferPacked)
{
    auto job = std::make_unique<_JobBasics>();
    job->channelAdd(name(QStringLiteral("diffuse")), ext(".exr"));
    job->channelAdd(name(QStringLiteral("spec")), ext(".tif"));
    job->channelAdd(name(QString()), ext(".exr")); // no name: ignored
    job->channelAdd(name(QStringLiteral("z")), ext(".exr"));
    EXPECT_EQ(table(*job), "diffuse|.exr spec|.tif z|.exr / diffuse.exrspec.tifz.exr");

    job->channelSetFileName(0, name(QStringLiteral("diffuse_direct")));
    job->channelSetExtension(1, ext(".tiff"));
    EXPECT_EQ(
        table(*job), "diffuse_direct|.exr spec|.tiff z|.exr / diffuse_direct.exrspec.tiffz.exr");

    job->channelSetFileName(0, name(QStringLiteral("d")));
    job->channelSetExtension(0, ext(".e"));
    job->channelSet(2, name(QStringLiteral("depth")), ext(".png"));
    EXPECT_EQ(table(*job), "d|.e spec|.tiff depth|.png / d.espec.tiffdepth.png");

    // Empty texts and bad indices change nothing.
    job->channelSetFileName(0, name(QString()));
    job->channelSetExtension(0, ext(""));
    job->channelSetFileName(3, name(QStringLiteral("x")));
    job->channelSetFileName(-1, name(QStringLiteral("x")));
    job->channelRemove(3);
    job->channelRemove(-1);
    EXPECT_EQ(table(*job), "d|.e spec|.tiff depth|.png / d.espec.tiffdepth.png");
    EXPECT_TRUE(job->channelFileName(3).isEmpty() && job->channelFileName(-1).isEmpty());
    EXPECT_TRUE(job->channelExtension(7).isEmpty());

    // Removing moves later channels forward; the old last slot's text stays
    // counted until the table is cleared.
    job->channelRemove(0);
    EXPECT_EQ(table(*job), "spec|.tiff depth|.png / spec.tiffdepth.pngdepth.png");
    job->channelAdd(name(QStringLiteral("noext")), ext(""));
    EXPECT_TRUE(job->channelExtension(2).isEmpty());
    job->channelClear();
    EXPECT_EQ(job->channelCount + job->channelBufferUsed + job->channelBuffer[0], 0);
}

TEST(ChannelTable, NeverPassesTheBufferOrTheChannelLimit)
{
    auto job = std::make_unique<_JobBasics>();
    // 15 channels of 500 + 4 units: 7560; a 16th does not fit.
    for (int k = 0; k < 16; ++k)
        job->channelAdd(name(QString(500, u'n')), ext(".exr"));
    EXPECT_EQ(job->channelCount, 15);
    EXPECT_EQ(job->channelBufferUsed, 7560);

    // Growing to 7999 exactly is allowed, one more unit is not.
    job->channelAdd(name(QString(435, u'a')), ext(".exr"));
    EXPECT_EQ(job->channelBufferUsed, 7999);
    job->channelSetExtension(15, ext(".exr5"));
    EXPECT_EQ(job->channelExtension(15).toQString(), QStringLiteral(".exr"));
    job->channelSetFileName(0, name(QString(501, u'b'))); // cut to 500: same length, allowed
    EXPECT_EQ(job->channelFileName(0).toQString(), QString(500, u'b'));
    job->channelSetFileName(3, name(QStringLiteral("short")));
    EXPECT_EQ(job->channelBufferUsed, 7999 - 495);
    EXPECT_EQ(job->channelFileName(15).toQString(), QString(435, u'a'));

    job = std::make_unique<_JobBasics>();
    for (int k = 0; k < 101; ++k)
        job->channelAdd(name(QStringLiteral("c%1").arg(k)), ext(""));
    EXPECT_EQ(job->channelCount, 100);
    EXPECT_EQ(job->channelFileName(99).toQString(), QStringLiteral("c99"));
}

TEST(ChannelTable, CorruptTableReadsAsEmpty)
{
    auto job = std::make_unique<_JobBasics>();
    job->channelAdd(name(QStringLiteral("ok")), ext(".exr"));
    for (int start : { 7990, -4 }) {
        job->channelStart[0] = start; // beyond channelBufferUsed, or negative
        EXPECT_TRUE(job->channelFileName(0).isEmpty() && job->channelExtension(0).isEmpty());
    }
}

} // namespace
