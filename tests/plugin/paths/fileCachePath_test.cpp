// Constructed File Cache paths: defaults, toggles, and each part expanded on
// its own before the join.
#include "plugin/paths/fileCachePath.h"

#include <gtest/gtest.h>

namespace {

// Stands for the variable expansion. "$OS_v1" would read as one variable
// only if the parts were joined before they are expanded.
QString expand(const QString& part)
{
    if (part.contains(QStringLiteral("REFUSED")))
        return QString();
    QString out = part;
    out.replace(QStringLiteral("$HIPNAME"), QStringLiteral("shot"));
    out.replace(QStringLiteral("$HIP"), QStringLiteral("/p"));
    out.replace(QStringLiteral("$OS_v1"), QStringLiteral("WRONG"));
    return out.replace(QStringLiteral("$OS"), QStringLiteral("cache1"));
}

} // namespace

TEST(FileCachePath, Compose)
{
    const struct
    {
        std::vector<std::pair<const char16_t*, const char*>> lines;
        const char* path; // nullptr: refused
    } rows[] = { { {}, "/p/geo/shot.cache1/v1/shot.cache1_v1.$F4.bgeo.sc" },
        { { { u"enableversion", "off" } }, "/p/geo/shot.cache1/shot.cache1.$F4.bgeo.sc" },
        { { { u"timedependent", "off" }, { u"version", "3" }, { u"basedir", "$HIP/graph" },
              { u"basename", "graph" }, { u"filetype", ".bgeo" } },
            "/p/graph/graph/v3/graph_v3.bgeo" },
        { { { u"enableversion", "0" }, { u"timedependent", "1" } },
            "/p/geo/shot.cache1/shot.cache1.$F4.bgeo.sc" },
        { { { u"version", "2" }, { u"version", "5" } },
            "/p/geo/shot.cache1/v5/shot.cache1_v5.$F4.bgeo.sc" },
        { { { u"basedir", "REFUSED" } }, nullptr },
        { { { u"version", "REFUSED" }, { u"enableversion", "off" } },
            "/p/geo/shot.cache1/shot.cache1.$F4.bgeo.sc" } };
    for (const auto& r : rows) {
        FileCacheParameters p;
        for (const auto& [name, value] : r.lines)
            EXPECT_TRUE(p.take(name, QString::fromUtf8(value)));
        const QString got = composeFileCachePath(p, expand);
        EXPECT_EQ(got, r.path ? QString::fromUtf8(r.path) : QString());
        EXPECT_EQ(got.isNull(), r.path == nullptr);
    }

    EXPECT_FALSE(fileCacheConstructed(QString())); // a File Cache older than the parameter
    EXPECT_TRUE(fileCacheConstructed(QStringLiteral("constructed"))
        && fileCacheConstructed(QStringLiteral("0")));
    for (const char* explicitPath : { "explicit", "1", "" })
        EXPECT_FALSE(fileCacheConstructed(QString::fromUtf8(explicitPath)));
    EXPECT_FALSE(toggleOn(QStringLiteral(""), true)); // an empty line is no missing line
}
