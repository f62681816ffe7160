// The two entry points as the host sees them: the built library loaded with
// dlopen, the records built from their documented layouts, never with the
// plugin's own constructors.
#include "tools/host/hostRecords.h"

#include <QByteArray>
#include <QTemporaryDir>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <sys/stat.h>

namespace {

using HostLoad = zkHost::SceneLoad;

constexpr unsigned char Pattern = 0xCD;

zkHost::Plugin plugin;

struct EntryPoints : ::testing::Test
{
    static void SetUpTestSuite()
    {
        QString error;
        ASSERT_TRUE(plugin.open(QStringLiteral(ZK_PLUGIN_PATH), error)) << qPrintable(error);
    }
};

const QString ExampleScene = QStringLiteral(ZK_SOURCE_DIR "/examples/simple.hip");

bool untouched(const void* p, size_t n)
{
    const auto* b = static_cast<const unsigned char*>(p);
    return std::all_of(b, b + n, [](unsigned char c) { return c == Pattern; });
}

// ---- pInfo ----------------------------------------------------------------

TEST_F(EntryPoints, InfoWritesItsFieldsAndOnlyThose)
{
    for (const unsigned short identifier : { 45061, 1234 }) {
        const bool matching = identifier == 45061;
        auto r = std::make_unique<zkP::_dataPARS_PluginInfo>();
        std::memset(static_cast<void*>(r.get()), Pattern, sizeof(*r));
        r->structureID = identifier;
        EXPECT_EQ(plugin.info(r.get()), matching ? 1 : 5);
        // Qt's version is cut to 25 characters; the author is not empty.
        EXPECT_EQ(QStringList({ QString::number(r->structureID), QString::number(r->infoVersion),
                                  r->appName.toQString(), r->pluginVersion.toQString(),
                                  r->managerVersion.toQString(), r->qtVersion.toQString() })
                      .join(u'|'),
            QStringLiteral("45061|1|Houdini|1.0| 8.4.00|") + QLatin1String(qVersion()).left(25));
        EXPECT_TRUE(r->author.length > 0 && r->author.length <= 100);
        EXPECT_EQ(r->author.data[r->author.length] + r->qtVersion.data[r->qtVersion.length], 0);
        // Bytes the plugin does not own keep the host's values; with a foreign
        // identifier neither the flag byte nor the file filter is written.
        EXPECT_TRUE(untouched(r->reserved4, sizeof(r->reserved4))
            && untouched(r->reserved1F3, sizeof(r->reserved1F3))
            && untouched(&r->appName.data[8], 2 * (50 - 7)));
        if (!matching) {
            EXPECT_TRUE(r->flag == Pattern && untouched(&r->fileFilter, sizeof(r->fileFilter)));
            continue;
        }
        EXPECT_EQ(r->flag, 0);
        EXPECT_EQ(r->fileFilter.toQString(), QStringLiteral("*.hip;*.hipnc;*.hiplc;"));
        EXPECT_EQ(r->fileFilter.data[22], 0);
        EXPECT_TRUE(untouched(&r->fileFilter.data[23], 2 * (100 - 22)));
    }
}

// ---- pLoadSceneFile: refusals ---------------------------------------------

TEST_F(EntryPoints, UnsupportedArrayIsRefusedBeforeAnythingIsRead)
{
    const struct
    {
        unsigned int recordSize;
        unsigned short structureVersion, structureID;
    } rows[] = { { 30376, 1, 1033 }, { 226968, 0, 1033 }, { 226968, 1, 1 } };
    for (const auto& row : rows) {
        HostLoad host(ExampleScene);
        host.jobs.array->recordSize = row.recordSize;
        host.jobs.array->structureVersion = row.structureVersion;
        host.jobs.array->structureID = row.structureID;
        // Reading the arguments or the scene path would crash on these.
        host.settings.block->argc = 1000;
        host.settings.block->argv = reinterpret_cast<char**>(std::uintptr_t(8));
        host.record.sceneFile = reinterpret_cast<_zkString<500>*>(std::uintptr_t(8));
        EXPECT_EQ(plugin.load(&host.record), 5) << row.recordSize << ' ' << row.structureID;
        EXPECT_TRUE(host.jobs.array->count == 0 && host.jobs.array->records == nullptr);
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
        EXPECT_EQ(plugin.load(&host.record), 3) << qPrintable(path);
        EXPECT_EQ(host.jobs.array->count, 0);
        EXPECT_TRUE(host.jobs.array->arrayText.isEmpty());
    }
}

// ---- pLoadSceneFile: loads --------------------------------------------------

TEST_F(EntryPoints, NoSettingsBlockOrNullArgumentsAreHarmless)
{
    HostLoad host(ExampleScene, { QStringLiteral("-customRenVer_Arnold") });
    host.settings.argv[1] = nullptr; // a hole in the vector
    EXPECT_EQ(plugin.load(&host.record), 1);
    host.record.settings = nullptr;
    EXPECT_EQ(plugin.load(&host.record), 1);
}

} // namespace
