// The plugin's export list, as a host's dynamic loader sees it (the entry
// points and job methods are resolved by the host tests). The record layouts
// are pinned by static_asserts under their types.
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

/// Names of the plugin's defined dynamic symbols, mangled or demangled.
QStringList exportedSymbols(bool demangle)
{
    QProcess nm;
    QStringList args { QStringLiteral("-D"), QStringLiteral("--defined-only") };
    if (demangle)
        args << QStringLiteral("-C");
    nm.start(QStringLiteral("nm"), args << QStringLiteral(ZK_PLUGIN_PATH));
    if (!nm.waitForFinished(30000) || nm.exitCode() != 0)
        return {};
    QStringList names;
    for (const QString& line :
        QString::fromLocal8Bit(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        // "address type name"; the name may hold blanks once demangled.
        const QStringList parts = line.split(u' ');
        if (parts.size() >= 3 && parts[1].size() == 1)
            names.append(parts.mid(2).join(u' '));
    }
    return names;
}

TEST(PluginExports, OnlyEntryPointsAndJobMethods)
{
    const QStringList names = exportedSymbols(false);
    if (names.isEmpty())
        GTEST_SKIP() << "nm is not available";
    // Job methods live in the job namespaces; anything else leaked from the
    // parser, or is an inline Qt or standard-library function that an
    // unoptimised build emitted and the export map failed to keep local.
    const QRegularExpression jobSymbol(
        QStringLiteral("^(pInfo|pLoadSceneFile)$|^_ZN?K?(3zkJ|4zkRA|4zkRS)"));
    for (const QString& name : names)
        EXPECT_TRUE(jobSymbol.match(name).hasMatch()) << qPrintable(name);

    const QString demangled = exportedSymbols(true).join(u'\n');
    for (const char* internal : { "scanScene", "readDriverSection", "readCameraSection",
             "readWedgeSection", "readLopSection", "loadScene", "LineSource", "SceneVariable" })
        EXPECT_FALSE(demangled.contains(QLatin1String(internal))) << internal;
}

} // namespace
