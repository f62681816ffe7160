// Hostile input: every prefix of a valid scene and many damaged copies of it
// must scan to the end with a result code, never a crash or a hang. Run under
// the sanitizers, this also catches reads past a buffer.
#include "plugin/scanner.h"
#include "support/scanState.h"
#include "support/textLines.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

const QByteArray ValidScene
    = "frange 1 48\n"
      "set -g JOB = '/projects/demo'\n"
      "set -g _HIP_SAVEVERSION = '19.5.303'\n"
      "take name Main kids 1\r\n"
      "take name alt kids 0\n"
      "obj/cam1.parm {\n"
      "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)\n"
      "}\n"
      "obj/stereocam_rig.parm {\n"
      "res\t[ 0\tlocks=0 ]\t(\t640\t)\n"
      "}\n"
      "out/wedge1.parm {\n"
      "driver\t[ 0\tlocks=0 ]\t(\t../mantra1\t)\n"
      "wedgemethod\t[ 0\tlocks=0 ]\t(\tchannel\t)\n"
      "prefix\t[ 0\tlocks=0 ]\t(\twedge\t)\n"
      "name1\t[ 0\tlocks=0 ]\t(\tscale\t)\n"
      "range1\t[ 0\tlocks=0 ]\t(\t0,5\t1,5\t)\n"
      "steps1\t[ 0\tlocks=0 ]\t(\t3\t)\n"
      "}\n"
      "stage/hdprman1.parm {\n"
      "picture\t[ 0\tlocks=0 ]\t(\t\"$HIP/r/$F4.exr\"\t)\n"
      "}\n"
      "stage/rendersettings1.parm {\n"
      "camera\t[ 0\tlocks=0 ]\t(\t/cams/shot\t)\n"
      "xn__redshiftglobalRS_archive_enable\t[ 0\tlocks=0 ]\t(\t\"on\"\t)\n"
      "xn__redshiftglobalRS_archive_fileName\t[ 0\tlocks=0 ]\t(\t\"$HIP/a.$F.rs\"\t)\n"
      "}\n"
      "out/mantra1.parm {\n"
      "vm_picture\t[ 0\tlocks=0 ]\t(\t\"$HIP/render/\xc3\xa9.$F4.exr\"\t)\n"
      "}\n"
      // Forms that only the decoded text reveals: a leading no-break space,
      // U+017F (folds to 's'), blanks the byte search must step over.
      "\xc2\xa0"
      "frange 3 9\n"
      "\xc5\xbf"
      "et -g X = 'y'\n"
      " \v\f\tHou set -g Y = 'z'\n"
      "set -g _HIP_\xc5\xbf"
      "AVEVERSION = '18.0.1'\n";

class HostileScene : public ::testing::Test
{
protected:
    int scan(const QByteArray& text, ScanMode mode = ScanMode::Marked)
    {
        jobs.clear();
        zkTest::TextLines lines(text);
        LoadContext ctx;
        ctx.data = &record;
        ctx.scenePath = scenePath.toQString();
        Scene scene(ctx);
        const LoadResult result = scanScene(scene, lines.source, SectionReaders(), mode);
        state = zkTest::describeScan(result, scene);
        lists = { scene.cameras.list.size(), scene.lops.list.size(),
            scene.renderSettings.list.size(), scene.wedges.size() };
        return result;
    }

    zkJ::_JobBasicsArray jobs;
    _zkString<500> scenePath { QStringLiteral("/proj/shot/scene.hip") };
    zkP::_dataPARS_LoadSceneFile record { &scenePath, &jobs, nullptr };
    QString state; ///< what the last scan left behind
    /// Entries of the camera, LOP, render-settings and wedge lists after the last scan.
    std::vector<qsizetype> lists;
};

TEST_F(HostileScene, ValidSceneFillsEveryList)
{
    ASSERT_EQ(scan(ValidScene), 1);
    // The driver's "$HIP/render/\u00e9.$F4.exr": "$HIP/" is the scene's folder, "<Database>".
    ASSERT_EQ(jobs.count, 1);
    EXPECT_EQ(jobs.records[0].imageDir.toQString(), QStringLiteral("<Database>render/"));
    EXPECT_EQ(jobs.records[0].imageFileName.toQString(), QStringLiteral("\u00e9."));
    EXPECT_EQ(jobs.records[0].imageExtension.toQString(), QStringLiteral(".exr"));
    EXPECT_EQ(lists, (std::vector<qsizetype> { 2, 1, 1, 1 }));
}

TEST_F(HostileScene, EveryPrefixScans)
{
    for (qsizetype n = 0; n <= ValidScene.size(); ++n)
        ASSERT_EQ(scan(ValidScene.left(n)), 1) << "prefix of " << n << " bytes";
}

// The scan decodes only lines whose bytes hold what some rule needs; each
// damaged copy must leave the same state as a scan that decodes every line.
TEST_F(HostileScene, DamagedCopiesScanAsEveryLineScans)
{
    // Bytes that steer the readers: line and section ends, brackets, quotes,
    // blanks, digits, multi-byte starts, and no byte at all.
    const char steering[] = { '\n', '\r', '{', '}', '(', ')', '"', '\t', '\v', ' ', '-', '9', '.',
        '/', '_', ',', '\0', '\xc2', '\xc3', '\xc5', '\xe2', '\xa0', '\xff', '#' };
    std::mt19937 rng(20261122);
    for (int round = 0; round < 3000; ++round) {
        QByteArray text = ValidScene;
        const int edits = 1 + int(rng() % 8);
        for (int e = 0; e < edits; ++e) {
            const qsizetype at = qsizetype(rng() % quint32(text.size() + 1));
            const char byte = steering[rng() % sizeof(steering)];
            switch (rng() % 3) {
            case 0:
                if (at < text.size())
                    text[at] = byte;
                break;
            case 1:
                text.insert(at, byte);
                break;
            default:
                text.remove(at, qsizetype(rng() % 40));
            }
        }
        ASSERT_EQ(scan(text), 1) << "round " << round << ": "
                                 << text.toPercentEncoding().constData();
        const QString marked = state;
        scan(text, ScanMode::EveryLine);
        ASSERT_EQ(marked, state) << "round " << round << ": "
                                 << text.toPercentEncoding().constData();
    }
}

} // namespace
