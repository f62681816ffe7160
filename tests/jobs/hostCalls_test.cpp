// The host calls the job methods by their symbols in the plugin library, on
// records it owns; these tests do the same.
#include "jobs/ZK_DataTypes_jobs0_Basics.h"
#include "tools/host/hostRecords.h"

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

// Member functions take the object as their first argument in the platform's
// calling convention; a by-value class result travels through a hidden pointer
// in both forms alike.
using ExportVarsFn = _varValList (*)(const _JobBasics*, const bool&);
using SetCustomFn = void (*)(_JobSettingsScene*, const QString&, const QString&);
using SplitFn = void (*)(_JobBasics_largePath*, const bool&);
using DisplayNameFn = QString (*)(const _JobBasics*);

} // namespace

TEST(HostCalls, ExportedJobMethodsAreVisible)
{
    zkHost::Plugin lib;
    QString error;
    ASSERT_TRUE(lib.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    const char* symbols[] = {
        "_ZNK3zkJ10_JobBasics22exportJobVarList_BasicERKb",
        "_ZNK3zkJ10_JobBasics19getSceneDisplayNameEv",
        "_ZNK3zkJ10_JobBasics7authStrEv",
        "_ZNK3zkJ10_JobBasics5IDstrEv",
        "_ZN3zkJ10ID2strFullERKy",
        "_ZN3zkJ17_JobSettingsScene17customDataSet_StrERK7QStringS3_",
        "_ZNK3zkJ17_JobSettingsScene14customData_StrERK7QString",
        "_ZN3zkJ20_JobBasics_largePath29splitImageFileInto_DirFileExtERKb",
        "_ZN3zkJ20_JobBasics_largePath29replaceSquareBracketVariablesEv",
        "_ZN3zkJ10_JobBasics29splitImageFileInto_DirFileExtERKb",
        "_ZN3zkJ14getDirectoryNoE7QStringii",
        "_ZN3zkJ19log_hasFrameSegmentERKNS_11_LogMessageE",
    };
    for (const char* symbol : symbols)
        EXPECT_NE(function<void*>(lib, symbol), nullptr) << symbol;
}

TEST(HostCalls, MethodsWorkOnHostOwnedRecords)
{
    zkHost::Plugin lib;
    QString error;
    ASSERT_TRUE(lib.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    const auto exportVars
        = function<ExportVarsFn>(lib, "_ZNK3zkJ10_JobBasics22exportJobVarList_BasicERKb");
    const auto setCustom
        = function<SetCustomFn>(lib, "_ZN3zkJ17_JobSettingsScene17customDataSet_StrERK7QStringS3_");
    const auto split = function<SplitFn>(
        lib, "_ZN3zkJ20_JobBasics_largePath29splitImageFileInto_DirFileExtERKb");
    const auto displayName
        = function<DisplayNameFn>(lib, "_ZNK3zkJ10_JobBasics19getSceneDisplayNameEv");
    ASSERT_TRUE(exportVars && setCustom && split && displayName);

    // The host allocates records with calloc and sets them up itself.
    auto* large = static_cast<_JobBasics_largePath*>(std::calloc(1, sizeof(_JobBasics_largePath)));
    ASSERT_NE(large, nullptr);
    new (large) _JobBasics_largePath();
    large->imageFileName.set(QStringLiteral("/proj/render/beauty.####.exr"));
    split(large, false);
    EXPECT_EQ(large->imageDir.toQString(), QStringLiteral("/proj/render/"));
    EXPECT_EQ(large->imageFileName.toQString(), QStringLiteral("beauty."));
    EXPECT_EQ(large->padding, 4);

    auto job = std::make_unique<_JobBasics>();
    large->toJobsBasic(*job);
    std::free(large);
    job->sceneName.set(QStringLiteral("/proj/shots/sh010/scene.hip"));
    setCustom(job.get(), QStringLiteral("AddCmdFlags"), QStringLiteral("-threads 8"));
    EXPECT_EQ(job->customData_Str(QStringLiteral("addcmdflags")), QStringLiteral("-threads 8"));

    const _varValList vars = exportVars(job.get(), false);
    EXPECT_EQ(vars.size(), job->exportJobVarList_Basic(false).size());
    EXPECT_EQ(vars.value(QStringLiteral("ImageDir")), QStringLiteral("/proj/render/"));
    EXPECT_EQ(
        vars.value(QStringLiteral("AdditionalCommandlineParam")), QStringLiteral("-threads 8"));
    EXPECT_EQ(displayName(job.get()), QStringLiteral(".../    sh010/    scene"));
}
