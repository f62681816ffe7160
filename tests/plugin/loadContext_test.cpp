// The switches reach the jobs in the scene cases (scanner_version_build,
// completion_compressed_ifd); what the runner cannot vary is here: element 0,
// null elements, a missing block or vector, a negative count.
#include "plugin/loadContext.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

TEST(SubmitterArguments, WholeWordsAnyCaseFromElementOne)
{
    const struct
    {
        std::vector<const char*> argv; // empty: no vector
        int argc;
        const char* arguments; // "|" between them
        bool buildVersion, compressed;
    } rows[] = {
        { { "submitter", "-HOUDINIBUILDVERSION", "-houdinicompressedifd" }, 3,
            "-HOUDINIBUILDVERSION|-houdinicompressedifd", true, true },
        { { "-houdiniBuildVersion" }, 1, "", false, false },
        { { "submitter", "-houdiniBuild", "-houdiniBuildVersion2" }, 3,
            "-houdiniBuild|-houdiniBuildVersion2", false, false },
        { { "submitter", nullptr, "-houdiniCompressedIFD", "" }, 4, "|-houdiniCompressedIFD|",
            false, true },
        { {}, 2, "", false, false },
        { { "submitter", "-houdiniBuildVersion" }, -5, "", false, false },
    };
    for (const auto& row : rows) {
        auto block = std::make_unique<zkP::_submitterSettings>();
        block->argc = row.argc;
        block->argv = row.argv.empty() ? nullptr : const_cast<char**>(row.argv.data());
        LoadContext ctx;
        ctx.buildVersionSwitch = true;
        readSubmitterArguments(ctx, block.get());
        const QString arguments = QString::fromUtf8(row.arguments);
        EXPECT_EQ(ctx.arguments.join(u'|'), arguments) << row.argc << ' ' << row.arguments;
        EXPECT_EQ(ctx.arguments.size(), arguments.isEmpty() ? 0 : arguments.count(u'|') + 1);
        EXPECT_EQ(ctx.buildVersionSwitch, row.buildVersion) << row.arguments;
        EXPECT_EQ(ctx.compressedExportSwitch, row.compressed) << row.arguments;
    }
    LoadContext ctx;
    ctx.buildVersionSwitch = true;
    readSubmitterArguments(ctx, nullptr);
    EXPECT_TRUE(ctx.arguments.isEmpty());
    EXPECT_FALSE(ctx.buildVersionSwitch);
}
