// hipjobs as a user runs it: exit statuses, the one stderr line, what stdout
// holds, runs over many scenes and folders, the summary and the progress line.
// Job fields themselves are checked through the same JSON by the scene cases.
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString Examples = QStringLiteral(ZK_SOURCE_DIR "/examples");
const QString Example = Examples + QStringLiteral("/simple.hip");
const QString Missing = Examples + QStringLiteral("/no-such-scene.hip");

struct Outcome
{
    int status;
    QString out;
    QString err;
};

Outcome hipjobs(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(ZK_HIPJOBS_PATH), args);
    EXPECT_TRUE(p.waitForFinished(60000)) << qPrintable(args.join(u' '));
    return { p.exitCode(), QString::fromLocal8Bit(p.readAllStandardOutput()),
        QString::fromLocal8Bit(p.readAllStandardError()) };
}

QStringList lines(const QString& out)
{
    return out.split(u'\n', Qt::SkipEmptyParts);
}

TEST(Hipjobs, ExitStatusesAndOutput)
{
    const struct
    {
        QStringList args;
        int status;
        const char* out; // a text stdout holds
        const char* err; // a text the one stderr line holds; nullptr: no stderr
    } rows[] = {
        { { Example }, 0, ": result 1 (success), 1 job(s)", nullptr },
        { { QStringLiteral("--vars"), Example }, 0, "scene /", nullptr },
        { { Missing }, 13, "result 3 (cannot open scene file)", "cannot open scene file: " },
        { { QStringLiteral("--json"), Missing }, 13, "\"result\":3", "cannot open scene file" },
        // Many scenes: the first failure decides, and the run goes on past it.
        { { Example, Missing, Example }, 13, "simple.hip: result 1 (success), 1 job(s)\n",
            "cannot open scene file" },
        { { Example, Example }, 0, "1 job(s)\n\n#", nullptr },
        { {}, 2, "", "no scene file given" },
        { { QStringLiteral("--no-recurse"), QStringLiteral(ZK_SOURCE_DIR "/schema") }, 2, "",
            "no scene files in" },
        { { QStringLiteral("--no-such-option"), Example }, 2, "", "no-such-option" },
        { { QStringLiteral("--plugin"), Example, Example }, 3, "", "cannot load plugin" },
        // Words after "--" belong to the submitter, not to the tool.
        { { Example, QStringLiteral("--"), QStringLiteral("-houdiniBuildVersion"),
              QStringLiteral("--json") },
            0, "result 1 (success)", nullptr },
        { { QStringLiteral("--help") }, 0, "13 cannot open scene file", nullptr },
        { { QStringLiteral("--version") }, 0, "hipjobs " ZK_VERSION "\nplugin 1.0 (", nullptr },
        { { QStringLiteral("--info") }, 0, "*.hip;*.hipnc;*.hiplc;", nullptr },
        { { QStringLiteral("--info"), QStringLiteral("--json") }, 0, "\"structureID\":45061",
            nullptr },
        { { QStringLiteral("--json"), Example }, 0, "\"resultText\":\"success\"", nullptr },
        { { QStringLiteral("--dot"), Example }, 0, "digraph jobs {\n", nullptr },
        { { QStringLiteral("--dot"), QStringLiteral("--summary"), Example }, 2, "",
            "--dot prints" },
    };
    for (const auto& row : rows) {
        const QString command = row.args.join(u' ');
        const Outcome r = hipjobs(row.args);
        EXPECT_EQ(r.status, row.status) << qPrintable(command) << ": " << qPrintable(r.err);
        EXPECT_TRUE(r.out.contains(QLatin1String(row.out)))
            << qPrintable(command) << qPrintable(r.out);
        if (!row.err) {
            EXPECT_TRUE(r.err.isEmpty()) << qPrintable(command) << ": " << qPrintable(r.err);
            continue;
        }
        EXPECT_EQ(r.err.count(u'\n'), 1) << qPrintable(command) << ": " << qPrintable(r.err);
        EXPECT_TRUE(r.err.startsWith(QStringLiteral("hipjobs: ")));
        EXPECT_TRUE(r.err.contains(QLatin1String(row.err)))
            << qPrintable(command) << qPrintable(r.err);
    }
}

// One library load serves a folder's scenes, and each line is what a run of
// that scene alone prints: nothing of one load reaches the next.
TEST(Hipjobs, FolderRunEqualsSingleRuns)
{
    const QStringList all = lines(hipjobs({ QStringLiteral("--json"), Examples }).out);
    const QStringList names
        = QDir(Examples).entryList({ QStringLiteral("*.hip") }, QDir::Files, QDir::Name);
    ASSERT_EQ(all.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        const Outcome alone = hipjobs({ QStringLiteral("--json"), Examples + u'/' + names[i] });
        EXPECT_EQ(all[i] + u'\n', alone.out) << qPrintable(names[i]);
    }
}

TEST(Hipjobs, FolderSearch)
{
    QTemporaryDir root;
    for (const char* name :
        { "b.hip", "a.hipnc", "a.hip.bak", "sub/c.hiplc", "sub/deeper/a.hip" }) {
        const QString path = root.filePath(QLatin1String(name));
        QDir().mkpath(QFileInfo(path).path());
        ASSERT_TRUE(QFile::copy(Example, path));
    }
    const auto scenes = [&](const QStringList& options) {
        QStringList found;
        for (const QString& line : lines(hipjobs(options + QStringList { root.path() }).out)) {
            const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
            found.append(o.value(QStringLiteral("scene")).toString().mid(root.path().size() + 1));
        }
        return found;
    };
    EXPECT_EQ(scenes({ QStringLiteral("--json") }),
        QStringList({ QStringLiteral("a.hipnc"), QStringLiteral("b.hip"),
            QStringLiteral("sub/c.hiplc"), QStringLiteral("sub/deeper/a.hip") }));
    EXPECT_EQ(scenes({ QStringLiteral("--json"), QStringLiteral("--no-recurse") }),
        QStringList({ QStringLiteral("a.hipnc"), QStringLiteral("b.hip") }));
}

// mantra_ifd.hip: the IFD export (1001-1100), its Mantra render waiting for it
// (1001-1100) and a preview render (1001-1020).
TEST(Hipjobs, Summary)
{
    const Outcome r = hipjobs({ QStringLiteral("--summary"), QStringLiteral("--json"),
        Examples + QStringLiteral("/mantra_ifd.hip"), Missing });
    EXPECT_EQ(r.status, 13);
    const QStringList out = lines(r.out);
    ASSERT_EQ(out.size(), 3);
    const QJsonObject scene = QJsonDocument::fromJson(out[0].toUtf8()).object();
    const QJsonObject renderers { { QStringLiteral("Houdini/createIFD"), 1 },
        { QStringLiteral("Mantra_StdA"), 1 }, { QStringLiteral("Houdini"), 1 } };
    EXPECT_EQ(scene.value(QStringLiteral("renderers")).toObject(), renderers);
    const QJsonObject total = QJsonDocument::fromJson(out[2].toUtf8()).object();
    for (const QJsonObject& o : { scene, total }) {
        EXPECT_EQ(o.value(QStringLiteral("jobCount")).toInt(), 3);
        EXPECT_EQ(o.value(QStringLiteral("frames")).toInt(), 220);
        EXPECT_EQ(o.value(QStringLiteral("waits")).toInt(), 1);
    }
    EXPECT_EQ(total.value(QStringLiteral("scenes")).toInt(), 2);
    EXPECT_EQ(total.value(QStringLiteral("failed")).toInt(), 1);
    const QStringList table = lines(hipjobs({ QStringLiteral("--summary"), Examples }).out);
    const qsizetype examples = QDir(Examples).entryList({ QStringLiteral("*.hip") }).size();
    EXPECT_EQ(table.size(), 1 + examples + 1);
    EXPECT_TRUE(table.last().startsWith(QStringLiteral("total: %1 scene(s) ").arg(examples)));
    EXPECT_TRUE(table.last().contains(QStringLiteral(" 0 failed ")));
}

// The progress line appears only on a terminal's stderr; `script` gives the
// run one.
TEST(Hipjobs, ProgressOnlyOnATerminal)
{
    for (const bool quiet : { false, true }) {
        const QString command = QStringLiteral("'%1' --summary %2 '%3' '%3'")
                                    .arg(QStringLiteral(ZK_HIPJOBS_PATH),
                                        quiet ? QStringLiteral("--quiet") : QString(), Example);
        QProcess p;
        p.start(QStringLiteral("script"),
            { QStringLiteral("-qec"), command, QStringLiteral("/dev/null") });
        ASSERT_TRUE(p.waitForFinished(60000));
        const QString out = QString::fromLocal8Bit(p.readAllStandardOutput());
        EXPECT_EQ(out.contains(QStringLiteral("[1/2] ")), !quiet) << qPrintable(out);
        EXPECT_EQ(out.contains(QStringLiteral("\r\033[K")), !quiet) << qPrintable(out);
    }
}

} // namespace
