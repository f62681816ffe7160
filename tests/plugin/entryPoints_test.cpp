// The two entry points as the host sees them: the built library loaded with
// dlopen, the records built from their documented layouts, never with the
// plugin's own constructors.
#include "plugin/zkPluginRecords.h"

#include <QByteArray>
#include <QDir>
#include <QTemporaryDir>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

using InfoFn = int (*)(zkP::_dataPARS_PluginInfo*);
using LoadFn = int (*)(zkP::_dataPARS_LoadSceneFile*);

constexpr unsigned char Pattern = 0xCD;

class EntryPoints : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        handle = dlopen(ZK_PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(handle, nullptr) << dlerror();
        info = reinterpret_cast<InfoFn>(dlsym(handle, "pInfo"));
        load = reinterpret_cast<LoadFn>(dlsym(handle, "pLoadSceneFile"));
        ASSERT_NE(info, nullptr);
        ASSERT_NE(load, nullptr);
    }
    static void TearDownTestSuite()
    {
        if (handle)
            dlclose(handle);
        handle = nullptr;
    }

    static void* handle;
    static InfoFn info;
    static LoadFn load;
};

void* EntryPoints::handle = nullptr;
InfoFn EntryPoints::info = nullptr;
LoadFn EntryPoints::load = nullptr;

/// A host-side load: raw job array memory with the documented header, the
/// settings block with argc/argv, the scene path. Frees what the plugin allocated.
struct HostLoad
{
    explicit HostLoad(const QString& scene, const QStringList& args = {})
        : memory(std::calloc(1, sizeof(zkJ::_JobBasicsArray)))
        , array(static_cast<zkJ::_JobBasicsArray*>(memory))
        , settings(new zkP::_submitterSettings())
    {
        array->structureID = 1033;
        array->structureVersion = 1;
        array->recordSize = 226968;
        sceneName.set(scene);
        words.append(QByteArrayLiteral("submitter"));
        for (const QString& a : args)
            words.append(a.toLocal8Bit());
        for (QByteArray& w : words)
            argv.push_back(w.data());
        argv.push_back(nullptr);
        settings->argc = int(words.size());
        settings->argv = argv.data();
        record.sceneFile = &sceneName;
        record.jobs = array;
        record.settings = settings.get();
    }
    ~HostLoad()
    {
        std::free(static_cast<void*>(array->records));
        std::free(memory);
    }
    HostLoad(const HostLoad&) = delete;
    HostLoad& operator=(const HostLoad&) = delete;

    QByteArray jobBytes() const
    {
        if (!array->records || array->count <= 0)
            return {};
        return QByteArray(reinterpret_cast<const char*>(array->records),
            qsizetype(array->count) * qsizetype(sizeof(zkJ::_JobBasics_largePath)));
    }

    void* memory;
    zkJ::_JobBasicsArray* array;
    std::unique_ptr<zkP::_submitterSettings> settings;
    _zkString<500> sceneName;
    QList<QByteArray> words;
    std::vector<char*> argv;
    zkP::_dataPARS_LoadSceneFile record {};
};

QString exampleScene()
{
    return QStringLiteral(ZK_SOURCE_DIR "/examples/simple.hip");
}

std::unique_ptr<zkP::_dataPARS_PluginInfo> patternedInfo(unsigned short identifier)
{
    auto r = std::make_unique<zkP::_dataPARS_PluginInfo>();
    std::memset(static_cast<void*>(r.get()), Pattern, sizeof(*r));
    r->structureID = identifier;
    return r;
}

bool untouched(const void* p, size_t n)
{
    const auto* b = static_cast<const unsigned char*>(p);
    for (size_t i = 0; i < n; ++i) {
        if (b[i] != Pattern)
            return false;
    }
    return true;
}

// ---- pInfo ----------------------------------------------------------------

TEST_F(EntryPoints, InfoWithMatchingIdentifier)
{
    auto r = patternedInfo(45061);
    EXPECT_EQ(info(r.get()), 1);
    EXPECT_EQ(r->structureID, 45061);
    EXPECT_EQ(r->infoVersion, 1);
    EXPECT_EQ(r->appName.toQString(), QStringLiteral("Houdini"));
    EXPECT_GT(r->author.length, 0);
    EXPECT_LE(r->author.length, 100);
    EXPECT_EQ(r->author.data[r->author.length], 0);
    EXPECT_EQ(r->pluginVersion.toQString(), QStringLiteral("1.0"));
    EXPECT_EQ(r->managerVersion.toQString(), QStringLiteral(" 8.4.00"));
    EXPECT_EQ(r->flag, 0);
    EXPECT_EQ(r->fileFilter.toQString(), QStringLiteral("*.hip;*.hipnc;*.hiplc;"));
    EXPECT_EQ(r->fileFilter.data[22], 0);

    // Bytes the plugin does not own keep the host's values.
    EXPECT_TRUE(untouched(r->reserved4, sizeof(r->reserved4)));
    EXPECT_TRUE(untouched(r->reserved1F3, sizeof(r->reserved1F3)));
    EXPECT_TRUE(untouched(&r->fileFilter.data[23], 2 * (100 - 22)));
    EXPECT_TRUE(untouched(&r->appName.data[8], 2 * (50 - 7)));
}

TEST_F(EntryPoints, InfoQtVersionIsCutToTwentyFive)
{
    auto r = patternedInfo(45061);
    ASSERT_EQ(info(r.get()), 1);
    const QByteArray qt(qVersion());
    const int expected = qMin(int(qt.size()), 25);
    ASSERT_EQ(r->qtVersion.length, expected);
    EXPECT_EQ(r->qtVersion.toQString(), QString::fromLatin1(qt.left(25)));
    EXPECT_EQ(r->qtVersion.data[expected], 0);
}

TEST_F(EntryPoints, InfoWithMismatchingIdentifier)
{
    auto r = patternedInfo(1234);
    EXPECT_EQ(info(r.get()), 5);
    EXPECT_EQ(r->structureID, 45061);
    EXPECT_EQ(r->infoVersion, 1);
    EXPECT_EQ(r->appName.toQString(), QStringLiteral("Houdini"));
    EXPECT_EQ(r->pluginVersion.toQString(), QStringLiteral("1.0"));
    EXPECT_EQ(r->managerVersion.toQString(), QStringLiteral(" 8.4.00"));
    EXPECT_FALSE(r->qtVersion.isEmpty());
    // Neither the flag byte nor the file filter is written.
    EXPECT_EQ(r->flag, Pattern);
    EXPECT_TRUE(untouched(&r->fileFilter, sizeof(r->fileFilter)));
    EXPECT_TRUE(untouched(r->reserved1F3, sizeof(r->reserved1F3)));
}

// ---- pLoadSceneFile: refusals ---------------------------------------------

TEST_F(EntryPoints, UnsupportedArrayIsRefusedBeforeAnythingIsRead)
{
    struct Row
    {
        const char* what;
        unsigned int recordSize;
        unsigned short structureVersion;
        unsigned short structureID;
    };
    const Row rows[] = {
        { "compact record size", 30376, 1, 1033 },
        { "layout version 0", 226968, 0, 1033 },
        { "foreign structure", 226968, 1, 1 },
    };
    for (const Row& row : rows) {
        HostLoad host(exampleScene());
        host.array->recordSize = row.recordSize;
        host.array->structureVersion = row.structureVersion;
        host.array->structureID = row.structureID;
        // Reading the arguments or the scene path would crash on these.
        host.settings->argc = 1000;
        host.settings->argv = reinterpret_cast<char**>(std::uintptr_t(8));
        host.record.sceneFile = reinterpret_cast<_zkString<500>*>(std::uintptr_t(8));
        EXPECT_EQ(load(&host.record), 5) << row.what;
        EXPECT_EQ(host.array->count, 0);
        EXPECT_EQ(host.array->records, nullptr);
    }
}

TEST_F(EntryPoints, UnreadableScenesGiveThree)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString fifo = dir.filePath(QStringLiteral("pipe.hip"));
    ASSERT_EQ(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);

    // A FIFO with no writer would block an open for reading forever.
    for (const QString& path :
        { dir.filePath(QStringLiteral("missing.hip")), dir.path(), fifo, QString() }) {
        HostLoad host(path);
        EXPECT_EQ(load(&host.record), 3) << qPrintable(path);
        EXPECT_EQ(host.array->count, 0);
        EXPECT_TRUE(host.array->arrayText.isEmpty());
    }
}

// ---- pLoadSceneFile: loads --------------------------------------------------

TEST_F(EntryPoints, ExampleSceneLoads)
{
    HostLoad host(exampleScene());
    EXPECT_EQ(load(&host.record), 1);
    EXPECT_GE(host.array->count, 0);
    EXPECT_LE(host.array->count, host.array->allocated);
}

TEST_F(EntryPoints, NoSettingsBlockOrNullArgumentsAreHarmless)
{
    HostLoad host(exampleScene(), { QStringLiteral("-customRenVer_Arnold") });
    host.argv[1] = nullptr; // a hole in the vector
    EXPECT_EQ(load(&host.record), 1);

    HostLoad bare(exampleScene());
    bare.record.settings = nullptr;
    EXPECT_EQ(load(&bare.record), 1);
}

TEST_F(EntryPoints, SameSceneTwiceGivesIdenticalJobs)
{
    HostLoad first(exampleScene());
    HostLoad second(exampleScene());
    ASSERT_EQ(load(&first.record), 1);
    ASSERT_EQ(load(&second.record), 1);
    ASSERT_EQ(first.array->count, second.array->count);
    EXPECT_EQ(first.jobBytes(), second.jobBytes());
    EXPECT_EQ(first.array->arrayText.toQString(), second.array->arrayText.toQString());
}

} // namespace
