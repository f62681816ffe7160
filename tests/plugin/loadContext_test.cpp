#include "plugin/loadContext.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

/// A settings block as the host lays it out, with the given argument vector.
struct Settings
{
    explicit Settings(std::vector<const char*> argv)
        : vector(std::move(argv))
    {
        block->argc = int(vector.size());
        block->argv = const_cast<char**>(vector.data());
    }
    std::vector<const char*> vector;
    std::unique_ptr<zkP::_submitterSettings> block = std::make_unique<zkP::_submitterSettings>();
};

struct SwitchCase
{
    const char* name;
    std::vector<const char*> argv;
    bool buildVersion;
    bool compressed;
};

TEST(SubmitterArguments, SwitchesAreWholeWordsInAnyLetterCase)
{
    const SwitchCase cases[] = {
        { "none", { "submitter" }, false, false },
        { "exact", { "submitter", "-houdiniBuildVersion", "-houdiniCompressedIFD" }, true, true },
        { "upper", { "submitter", "-HOUDINIBUILDVERSION" }, true, false },
        { "lower", { "submitter", "-houdinicompressedifd" }, false, true },
        { "element zero is the program", { "-houdiniBuildVersion" }, false, false },
        { "prefix only", { "submitter", "-houdiniBuild" }, false, false },
        { "longer word", { "submitter", "-houdiniBuildVersion2" }, false, false },
        { "null element", { "submitter", nullptr, "-houdiniCompressedIFD" }, false, true },
    };
    for (const SwitchCase& c : cases) {
        Settings settings(c.argv);
        LoadContext ctx;
        readSubmitterArguments(ctx, settings.block.get());
        EXPECT_EQ(ctx.buildVersionSwitch, c.buildVersion) << c.name;
        EXPECT_EQ(ctx.compressedExportSwitch, c.compressed) << c.name;
        EXPECT_EQ(ctx.arguments.size(), qsizetype(c.argv.size()) - 1) << c.name;
    }
}

TEST(SubmitterArguments, KeepsEveryArgumentAfterTheProgramInOrder)
{
    Settings settings({ "submitter", "-customRenVer_Arnold", "7.1.4.1", "" });
    LoadContext ctx;
    readSubmitterArguments(ctx, settings.block.get());
    const QStringList expected { QStringLiteral("-customRenVer_Arnold"), QStringLiteral("7.1.4.1"),
        QString() };
    EXPECT_EQ(ctx.arguments, expected);
}

TEST(SubmitterArguments, MissingBlockOrVectorGivesNoArguments)
{
    LoadContext ctx;
    ctx.buildVersionSwitch = true;
    readSubmitterArguments(ctx, nullptr);
    EXPECT_TRUE(ctx.arguments.isEmpty());
    EXPECT_FALSE(ctx.buildVersionSwitch);

    Settings settings({ "submitter", "-houdiniBuildVersion" });
    settings.block->argv = nullptr;
    readSubmitterArguments(ctx, settings.block.get());
    EXPECT_TRUE(ctx.arguments.isEmpty());
    EXPECT_FALSE(ctx.buildVersionSwitch);

    Settings negative({ "submitter" });
    negative.block->argc = -5;
    readSubmitterArguments(ctx, negative.block.get());
    EXPECT_TRUE(ctx.arguments.isEmpty());
}

} // namespace
