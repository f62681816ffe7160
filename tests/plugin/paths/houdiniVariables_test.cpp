// Variable expansion is reached by every picture line of a driver and pinned
// by the scene cases (paths_variables, scanner_environment). A variable
// without a name is skipped: taken literally it would turn every "$" of a
// path into its value.
#include "plugin/paths/houdiniVariables.h"

#include <gtest/gtest.h>

#include <memory>

TEST(HoudiniVariables, AVariableWithoutANameIsSkipped)
{
    auto job = std::make_unique<zkJ::_JobBasics_largePath>();
    job->initialize();
    job->layer.set(QStringLiteral("/out/mantra1"));
    QList<SceneVariable> variables { { QString(), QStringLiteral("oops") } };
    EXPECT_EQ(replaceHoudiniVariables(
                  QStringLiteral("$OS.$F4"), job.get(), variables, _zkString<500>("/s/a.hip")),
        QStringLiteral("mantra1.$F4"));
}
