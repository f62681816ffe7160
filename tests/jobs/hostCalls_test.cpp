// The host calls the job methods by their symbols in the plugin library, on
// records it owns; these tests do the same. The scene cases call the variable
// export, the display name and toJobsBasic of the library on every job.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "tools/host/hostRecords.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <new>

using namespace zkJ;

namespace {

/// A symbol of the plugin library as a function pointer.
template <typename Fn>
Fn function(const zkHost::Plugin& lib, const char* symbol)
{
    void* p = dlsym(lib.handle, symbol);
    Fn fn = nullptr;
    static_assert(sizeof(fn) == sizeof(p), "code and data pointers of one size");
    std::memcpy(&fn, &p, sizeof(fn));
    return fn;
}

TEST(HostCalls, ExportedJobMethodsWorkOnHostOwnedRecords)
{
    zkHost::Plugin lib;
    QString error;
    ASSERT_TRUE(lib.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    for (const char* symbol : { "_ZNK3zkJ10_JobBasics22exportJobVarList_BasicERKb",
             "_ZNK3zkJ10_JobBasics19getSceneDisplayNameEv", "_ZNK3zkJ10_JobBasics7authStrEv",
             "_ZNK3zkJ10_JobBasics5IDstrEv", "_ZN3zkJ10ID2strFullERKy",
             "_ZNK3zkJ17_JobSettingsScene14customData_StrERK7QString",
             "_ZN3zkJ20_JobBasics_largePath29replaceSquareBracketVariablesEv",
             "_ZN3zkJ10_JobBasics29splitImageFileInto_DirFileExtERKb",
             "_ZN3zkJ14getDirectoryNoE7QStringii",
             "_ZN3zkJ19log_hasFrameSegmentERKNS_11_LogMessageE" })
        EXPECT_NE(function<void*>(lib, symbol), nullptr) << symbol;

    // Member functions take the object as their first argument in the
    // platform's calling convention.
    const auto setCustom = function<void (*)(_JobSettingsScene*, const QString&, const QString&)>(
        lib, "_ZN3zkJ17_JobSettingsScene17customDataSet_StrERK7QStringS3_");
    const auto split = function<void (*)(_JobBasics_largePath*, const bool&)>(
        lib, "_ZN3zkJ20_JobBasics_largePath29splitImageFileInto_DirFileExtERKb");
    ASSERT_TRUE(setCustom && split);

    // The host allocates records with calloc and sets them up itself.
    auto* large = static_cast<_JobBasics_largePath*>(std::calloc(1, sizeof(_JobBasics_largePath)));
    ASSERT_NE(large, nullptr);
    new (large) _JobBasics_largePath();
    large->imageFileName.set(QStringLiteral("/proj/render/beauty.####.exr"));
    split(large, false);
    EXPECT_EQ(large->imageDir.toQString() + large->imageFileName.toQString(),
        QStringLiteral("/proj/render/beauty."));
    EXPECT_EQ(large->padding, 4);
    setCustom(large, QStringLiteral("AddCmdFlags"), QStringLiteral("-threads 8"));
    EXPECT_EQ(large->customData_Str(QStringLiteral("addcmdflags")), QStringLiteral("-threads 8"));
    std::free(large);
}

TEST(HostCalls, CustomDataStopsAtTheEndOfItsArea)
{
    zkHost::Plugin lib;
    QString error;
    ASSERT_TRUE(lib.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    const auto setAll
        = function<void (*)(_JobSettingsScene*, const QStringList&, const QStringList&)>(
            lib, "_ZN3zkJ17_JobSettingsScene17customDataSet_AllERK5QListI7QStringES5_");
    ASSERT_TRUE(setAll);

    // Counted as 3 + 58 + 5 characters, 60 entries pass the admission limit
    // of 3990; stored, each takes 9 table bytes and 58 value bytes, and the
    // 60th would end at byte 4020 of the 4000.
    QStringList names, values;
    for (int i = 0; i < 60; ++i) {
        names << QStringLiteral("k%1").arg(i, 2, 10, QChar(u'0'));
        values << QString(58, QChar(0xC0 + i));
    }
    auto* job = static_cast<_JobBasics_largePath*>(std::calloc(1, sizeof(_JobBasics_largePath)));
    ASSERT_NE(job, nullptr);
    new (job) _JobBasics_largePath();
    job->settingText1.set(QStringLiteral("after the block"));
    setAll(job, names, values);

    EXPECT_EQ(job->customData_maxIDs(), 59);
    EXPECT_LE(job->customDataUsed, 4000);
    EXPECT_EQ(job->customData_Str(QStringLiteral("k58")), values[58]);
    EXPECT_FALSE(job->customData_Contains(QStringLiteral("k59")));
    EXPECT_EQ(job->settingText1.toQString(), QStringLiteral("after the block"));
    std::free(job);
}

} // namespace
