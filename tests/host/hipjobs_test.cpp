// hipjobs as a user runs it: exit statuses, the one stderr line, what stdout
// holds. Job fields themselves are checked through the same JSON by the scene
// cases.
#include <QProcess>

#include <gtest/gtest.h>

namespace {

const QString Example = QStringLiteral(ZK_SOURCE_DIR "/examples/simple.hip");
const QString Missing = QStringLiteral(ZK_SOURCE_DIR "/examples/no-such-scene.hip");

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
        { { QStringLiteral("--vars"), Example }, 0, "", nullptr },
        { { Missing }, 13, "result 3 (cannot open scene file)", "cannot open scene file: " },
        { { QStringLiteral("--json"), Missing }, 13, "\"result\": 3", "cannot open scene file" },
        { {}, 2, "", "no scene file given" },
        { { QStringLiteral("--no-such-option"), Example }, 2, "", "no-such-option" },
        { { Example, Example }, 2, "", "more than one scene file" },
        { { QStringLiteral("--plugin"), Example, Example }, 3, "", "cannot load plugin" },
        // Words after "--" belong to the submitter, not to the tool.
        { { Example, QStringLiteral("--"), QStringLiteral("-houdiniBuildVersion"),
              QStringLiteral("--json") },
            0, "result 1 (success)", nullptr },
        { { QStringLiteral("--help") }, 0, "13 cannot open scene file", nullptr },
        { { QStringLiteral("--info") }, 0, "*.hip;*.hipnc;*.hiplc;", nullptr },
        { { QStringLiteral("--info"), QStringLiteral("--json") }, 0, "\"structureID\": 45061",
            nullptr },
        { { QStringLiteral("--json"), Example }, 0, "\"resultText\": \"success\"", nullptr },
    };
    for (const auto& row : rows) {
        const QString command = row.args.join(u' ');
        QProcess p;
        p.start(QStringLiteral(ZK_HIPJOBS_PATH), row.args);
        ASSERT_TRUE(p.waitForFinished(60000)) << qPrintable(command);
        const QString out = QString::fromLocal8Bit(p.readAllStandardOutput());
        const QString err = QString::fromLocal8Bit(p.readAllStandardError());
        EXPECT_EQ(p.exitCode(), row.status) << qPrintable(command) << ": " << qPrintable(err);
        EXPECT_TRUE(out.contains(QLatin1String(row.out))) << qPrintable(command) << qPrintable(out);
        if (!row.err) {
            EXPECT_TRUE(err.isEmpty()) << qPrintable(command) << ": " << qPrintable(err);
            continue;
        }
        EXPECT_EQ(err.count(u'\n'), 1) << qPrintable(command) << ": " << qPrintable(err);
        EXPECT_TRUE(err.startsWith(QStringLiteral("hipjobs: ")));
        EXPECT_TRUE(err.contains(QLatin1String(row.err))) << qPrintable(command) << qPrintable(err);
    }
}

} // namespace
