// Variable expansion is reached by every picture line of a driver and pinned
// by the scene cases (paths_variables, scanner_environment). What no driver
// can give is checked here: a layer without an inner "/" (a driver's layer
// always has its network prefix) and a scene variable without a name.
#include "plugin/paths/houdiniVariables.h"

#include <gtest/gtest.h>

#include <memory>

TEST(HoudiniVariables, LayersNoDriverHas)
{
    auto job = std::make_unique<zkJ::_JobBasics_largePath>();
    job->initialize();
    _zkString<500> sceneFile(QStringLiteral("/proj/shot/scene.hip"));
    // An empty name would turn every "$" into the value; it is skipped.
    QList<_namevalue> variables { { QString(), QStringLiteral("oops") } };
    const char* rows[][2]
        = { { "/out/mantra1", "mantra1" }, { "mantra1", "mantra1" }, { "/mantra1", "/mantra1" } };
    for (const auto& row : rows) {
        job->layer.set(QString::fromUtf8(row[0]));
        EXPECT_EQ(
            replaceHoudiniVariables(QStringLiteral("$OS.$F4"), job.get(), variables, sceneFile),
            QString::fromUtf8(row[1]) + QStringLiteral(".$F4"))
            << row[0];
    }
}
