#include "plugin/paths/houdiniVariables.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <utility>

namespace {

struct ExpansionCase
{
    const char* path;
    const char* expected;
};

class HoudiniVariables : public ::testing::Test
{
protected:
    void SetUp() override
    {
        job = std::make_unique<zkJ::_JobBasics_largePath>();
        job->initialize();
        job->sceneDatabaseDir.set(QStringLiteral("/proj/shot/"));
        job->layer.set(QStringLiteral("/out/mantra1"));
        job->seqStart = 1001;
        job->seqEnd = 1100;
        sceneFile.set(QStringLiteral("/proj/shot/scene.hip"));
    }

    QString expand(const char* path)
    {
        return replaceHoudiniVariables(QString::fromUtf8(path), job.get(), variables, sceneFile);
    }

    void addVariable(const char* name, const char* value)
    {
        variables.append({ QString::fromUtf8(name), QString::fromUtf8(value) });
    }

    std::unique_ptr<zkJ::_JobBasics_largePath> job;
    QList<_namevalue> variables;
    _zkString<500> sceneFile;
};

TEST_F(HoudiniVariables, BuiltInNames)
{
    const ExpansionCase cases[] = {
        { "$HIP/render/$HIPNAME.$F4.exr", "/proj/shot//render/scene.$F4.exr" },
        { "$HIPNAME:r", "scene" },
        { "$hipname:r", "scene" },
        { "${HIPNAME}:r", "scene" },
        { "${hipname}", "scene" },
        { "$HIPNAME:e", "scene:e" },
        { "$HIP:r", "/proj/shot/:r" },
        { "$Hip/a", "/proj/shot//a" },
        { "${HIP}/a", "/proj/shot//a" },
        { "$HIPPATH|${hippath}", "/proj/shot/|/proj/shot/" },
        { "$HIPX", "/proj/shot/X" },
        { "$OS.${OS}.$os", "mantra1.mantra1.mantra1" },
        { "$RFSTART-${RFEND}", "1001-1100" },
        { "", "" },
        { "$F4 $ACTIVETAKE $WEDGE $WEDGENUM `chs(\"x\")` $UNKNOWN",
            "$F4 $ACTIVETAKE $WEDGE $WEDGENUM `chs(\"x\")` $UNKNOWN" },
    };
    for (const ExpansionCase& c : cases)
        EXPECT_EQ(expand(c.path), QString::fromUtf8(c.expected)) << c.path;
}

TEST_F(HoudiniVariables, NodeNameOnlyAfterAnInnerSlash)
{
    const ExpansionCase layers[] = {
        { "/out/mantra1", "mantra1" },
        { "mantra1", "mantra1" },
        { "/mantra1", "/mantra1" },
        { "obj/a/rop", "rop" },
    };
    for (const ExpansionCase& c : layers) {
        job->layer.set(QString::fromUtf8(c.path));
        EXPECT_EQ(expand("$OS"), QString::fromUtf8(c.expected)) << c.path;
    }
}

TEST_F(HoudiniVariables, FrameNumbersUseSixSignificantDigits)
{
    const struct
    {
        double value;
        const char* text;
    } cases[] = { { 1, "1" }, { 1001, "1001" }, { 12.5, "12.5" }, { 1234567, "1.23457e+06" },
        { 1000000, "1e+06" }, { -3, "-3" } };
    for (const auto& c : cases) {
        job->seqStart = c.value;
        job->seqEnd = c.value;
        EXPECT_EQ(
            expand("$RFSTART/$RFEND"), QString::fromUtf8(c.text) + u'/' + QString::fromUtf8(c.text))
            << c.value;
    }
}

TEST_F(HoudiniVariables, SceneVariables)
{
    const struct
    {
        std::initializer_list<std::pair<const char*, const char*>> variables;
        const char* path;
        const char* expected;
    } rows[] = {
        // ":r" drops the scene extensions; a longer name is not a match.
        { { { "SHOT", "/jobs/a.hip" } }, "$SHOT:r|$SHOT|${SHOT}:r|${shot}|$SHOTDIR",
            "/jobs/a|/jobs/a.hip|/jobs/a|/jobs/a.hip|/jobs/a.hipDIR" },
        { { { "MULTI", "/x.hiplc/y.hip/z.hipnc" } }, "$MULTI:r", "/x/y/z" },
        // List order decides between names that prefix one another.
        { { { "SHOTDIR", "/d" }, { "SHOT", "/s" } }, "$SHOTDIR/$SHOT", "/d//s" },
        // Scene variables come after the built-in names, before node and range.
        { { { "A", "$HIP/x" }, { "B", "$OS-$RFSTART" }, { "HIPNAME", "never" },
              { "OS", "custom" } },
            "$A|$B|$HIPNAME", "$HIP/x|custom-1001|scene" },
        // Inserted text is not scanned again within one step.
        { { { "LOOP", "$LOOP$LOOP" } }, "$LOOP", "$LOOP$LOOP" },
        { { { "", "oops" } }, "$F4.exr", "$F4.exr" },
    };
    for (const auto& row : rows) {
        variables.clear();
        for (const auto& [name, value] : row.variables)
            addVariable(name, value);
        EXPECT_EQ(expand(row.path), QString::fromUtf8(row.expected)) << row.path;
    }
}

} // namespace
