#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace zkJ;

namespace {

struct SplitIn
{
    const char* fileName;
    const char* dir = "";
    bool printfStyle = false;
    const char* scene = "";
    const char* database = "";
    const char* extension = "";
    bool singleFile = false;
    unsigned char padding = 9;
};

/// The split as "dir|fileName|extension|single|padding", single as 0 or 1.
template <int DirCap, int FileCap>
std::string described(const SplitIn& in)
{
    _zkString<FileCap> fileName(QString::fromUtf8(in.fileName));
    _zkString<DirCap> dir(QString::fromUtf8(in.dir));
    _zkString<25> extension(QString::fromUtf8(in.extension));
    bool single = in.singleFile;
    unsigned char padding = in.padding;
    template_splitImageFileInto_DirFileExt<DirCap, FileCap>(in.printfStyle, fileName, dir,
        extension, single, padding, _zkString<DirCap>(QString::fromUtf8(in.database)),
        _zkString<DirCap>(QString::fromUtf8(in.scene)));
    return (QStringList { dir.toQString(), fileName.toQString(), extension.toQString(),
                QString::number(single), QString::number(padding) }
                .join(u'|'))
        .toStdString();
}

} // namespace

// A picture value reaches the split with no directory, no extension and the
// printf flag set: those rows are the drivers of the scene case split_pictures.
// Here are the forms a picture cannot give, and scene folders (a driver's job
// has no scene name yet when it is split). Padding 9 means "unchanged".
TEST(ImageNameSplit, FormsAPictureCannotGive)
{
    const char* scene = "/projects1/shots/seq01/sh010/scene.hip";
    const struct
    {
        SplitIn in;
        const char* out;
    } rows[] = {
        { { "beauty.%04d.exr", "/r/" }, "/r/|beauty.%04d|.exr|0|9" }, // printf off
        { { "scene", "/r/", false, "", "", ".vrscene" }, "/r/|scene|.vrscene|0|9" },
        { { "beauty.exr", "/r/", false, "", "", ".exr" }, "/r/|beauty|.exr|0|9" },
        { { "movie", "/r/", false, "", "", ".mov", true }, "/r/|movie.mov||1|9" },
        { { "img.#.exr", "C:\\out\\sub" }, "C:/out/sub/|img.|.exr|0|1" },
        { { "beauty.#.exr", "C:render" }, "C:/render/|beauty.|.exr|0|1" },
        { { "img.#.exr", "/r//x" }, "/r/x/|img.|.exr|0|1" },
        { { "/r/<ValueVar @$AOV./>/i.#.exr" }, "/r/|<ValueVar @$AOV./>/i.|.exr|0|1" },
        { { "/projects1/shots/seq01/sh010/render/i.#.exr", "", false, scene },
            "<SceneFolder>render/|i.|.exr|0|1" },
        { { "/projects1/shots/seq01/comp/i.#.exr", "", false, scene },
            "<SceneFolder>../comp/|i.|.exr|0|1" },
        { { "/projects1/shots/other/i.#.exr", "", false, scene },
            "<SceneFolder>../../other/|i.|.exr|0|1" },
        { { "/projects1/renders/i.#.exr", "", false, scene },
            "<SceneFolder>../../../renders/|i.|.exr|0|1" },
        // A folder of 10 characters is too short; case matters.
        { { "/projects/x/i.#.exr", "", false, "/projects/s.hip" }, "/projects/x/|i.|.exr|0|1" },
        { { "/Projects1/shots/seq01/sh010/i.#.exr", "", false, scene },
            "/Projects1/shots/seq01/sh010/|i.|.exr|0|1" },
        { { "C:\\projects\\sh010\\render\\i.#.exr", "", false, "C:/projects/sh010/scene.hip" },
            "<SceneFolder>render\\|i.|.exr|0|1" },
        { { "/proj/shots/out/i.#.exr", "", false, "/proj/shots/sh010/s.hip" },
            "<SceneFolder>../out/|i.|.exr|0|1" },
        { { "/proj/db/render/i.#.exr", "", false, "", "/proj/db" },
            "<Database>/render/|i.|.exr|0|1" },
        { { "/proj/db/render/i.#.exr", "", false, "", "/proj/db/" },
            "<Database>render/|i.|.exr|0|1" },
        { { "/proj/dbx/i.#.exr", "", false, "", "/proj/db" }, "/proj/dbx/|i.|.exr|0|1" },
        // The scene folder before the database, the database before the parents.
        { { "/proj/db/scenes/render/i.#.exr", "", false, "/proj/db/scenes/a.hip", "/proj/db" },
            "<SceneFolder>render/|i.|.exr|0|1" },
        { { "/proj/database/render/i.#.exr", "", false, "/proj/database/scenes/a.hip",
              "/proj/database" },
            "<Database>/render/|i.|.exr|0|1" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ((described<1000, 1000>(row.in)), row.out) << row.in.fileName;
        EXPECT_EQ((described<500, 250>(row.in)), row.out) << row.in.fileName;
    }
}

TEST(ImageNameSplit, ResultsAreCutToTheirCapacities)
{
    // A 500-unit directory has no room for the closing separator; the
    // scene-folder token is longer than the folder it replaces.
    const std::string longDir(500, 'a');
    const std::string dir = "/abcdefghij/" + std::string(488, 'x');
    const std::string dir1000 = "/abcdefghij/" + std::string(988, 'x');
    EXPECT_EQ((described<500, 250>({ "img.#.exr", longDir.c_str() })), longDir + "|img.|.exr|0|1");
    EXPECT_EQ((described<500, 250>({ "img.#.exr", dir.c_str(), false, "/abcdefghij/s.hip" })),
        "<SceneFolder>" + std::string(487, 'x') + "|img.|.exr|0|1");
    EXPECT_EQ((described<1000, 1000>({ "img.#.exr", dir1000.c_str(), false, "/abcdefghij/s.hip" })),
        "<SceneFolder>" + std::string(987, 'x') + "|img.|.exr|0|1");

    // A single file's name and extension together are cut to the file capacity.
    const std::string name(250, 'm');
    EXPECT_EQ((described<500, 250>({ name.c_str(), "/r/", false, "", "", ".mov", true })),
        "/r/|" + name + "||1|9");
    EXPECT_EQ((described<500, 500>({ name.c_str(), "/r/", false, "", "", ".mov", true })),
        "/r/|" + name + ".mov||1|9");
}

/// The main image, then every non-empty channel slot, as "dir+file|ext".
template <typename Job>
std::string images(const Job& job, const QStringList& channels)
{
    QStringList out { job.imageDir.toQString() + job.imageFileName.toQString() + u'|'
        + job.imageExtension.toQString() + u'|' + QString::number(job.padding) };
    return (out + channels).join(u' ').toStdString();
}

TEST(ImageNameSplit, ChannelsAreSplitFirstWithTheGivenDirectory)
{
    auto compact = std::make_unique<_JobBasics>();
    compact->imageFileName.set(QStringLiteral("/projects1/sh/render/beauty.####.exr"));
    compact->sceneName.set(QStringLiteral("/projects1/sh/scene.hip"));
    for (const char* name :
        { "diffuse.####.exr", "/projects1/sh/aov/spec.%03d.exr", "<Channel>.####.exr" })
        compact->channelAdd(_zkString<500>(name), _zkString<25>());
    compact->splitImageFileInto_DirFileExt(true);
    QStringList channels;
    for (int k = 0; k < compact->channelCount; ++k)
        channels << compact->channelFileName(k).toQString() + u'|'
                + compact->channelExtension(k).toQString();
    // The directory was still empty when the channels were split; their own
    // padding does not reach the job.
    EXPECT_EQ(images(*compact, channels),
        "<SceneFolder>render/beauty.|.exr|4 diffuse.|.exr <SceneFolder>aov/spec.|.exr "
        "<Channel>.|.exr");

    auto large = std::make_unique<_JobBasics_largePath>();
    large->imageDir.set(QStringLiteral("C:\\render\\"));
    large->imageFileName.set(QStringLiteral("beauty.####.exr"));
    large->channels[0].fileName.set(QStringLiteral("diff.####.exr"));
    large->channels[2].fileName.set(QStringLiteral("D:/aov/spec.#.exr"));
    large->channels[3].fileName.set(QStringLiteral("x"));
    large->splitImageFileInto_DirFileExt(false);
    channels.clear();
    for (const auto& slot : large->channels) {
        if (!slot.fileName.isEmpty())
            channels << slot.fileName.toQString() + u'|' + slot.extension.toQString();
    }
    EXPECT_EQ(images(*large, channels),
        "C:/render/beauty.|.exr|4 C:\\render\\diff.|.exr D:/aov/spec.|.exr C:\\render\\x|");
}
