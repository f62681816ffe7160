// The fixed limits of the lists one scan fills. Real scenes hold at most a few
// hundred takes, cameras, LOP and render-settings nodes and a few dozen
// variables; every limit is far above that, so only a hostile or broken scene
// meets one, and then the load costs a constant instead of its file's size. A
// list at its limit keeps what it holds and takes nothing more; the load then
// names the list on its first job.
#pragma once

#include <QString>

#include <initializer_list>

namespace listLimits {

/// The fuzz build lowers every limit, as it lowers the job record cap, so that
/// inputs of a few kilobytes reach them.
constexpr int lowered(int limit)
{
#ifdef ZK_MAX_LIST_ITEMS
    return limit < ZK_MAX_LIST_ITEMS ? limit : ZK_MAX_LIST_ITEMS;
#else
    return limit;
#endif
}

enum List { Takes, Cameras, Wedges, Lops, RenderSettings, Variables, ListCount };

struct Limit
{
    /// The word the first job's "zkSceneLimitsReached" entry names the list by.
    const char* name;
    int size;
};

/// In the order the first job names them.
constexpr Limit Limits[ListCount] = {
    // Every take past the first copies the jobs of each driver without a take
    // of its own: 4096 takes of one such driver already fill 930 MB of records.
    { "takes", lowered(4096) },
    // Each camera keeps its name, size and drivers: a million camera
    // sections held 400 MB.
    { "cameras", lowered(10000) },
    // Each wedge driver copies its driver's jobs once per variant: 1000
    // wedges of ten variants are past the job array's 10,000 records.
    { "wedges", lowered(1000) },
    // Each node keeps its path, output and drivers: a million sections of
    // either kind held over 400 MB.
    { "lops", lowered(10000) },
    { "rendersettings", lowered(10000) },
    // Every expanded path walks the whole variable list.
    { "variables", lowered(256) },
};

/// One list's limit in one load, and whether the scene asked for more. Items
/// and driver links are counted apart, each against the list's limit: a
/// flood of drivers naming one camera must not grow it either.
class Bound
{
public:
    explicit Bound(List list)
        : list(list)
    { }

    /// Whether a list now holding \p size items may take one more; a refusal
    /// is remembered.
    bool roomFor(qsizetype size)
    {
        const bool room = size < Limits[list].size;
        cut = cut || !room;
        return room;
    }

    /// Whether one more driver may be linked to an item of the list.
    bool roomForLink() { return roomFor(links++); }

    /// "cameras=10000" when the list was cut, else empty.
    QString said() const
    {
        return cut ? QLatin1String(Limits[list].name) + u'=' + QString::number(Limits[list].size)
                   : QString();
    }

private:
    List list;
    bool cut = false;
    qsizetype links = 0;
};

/// The lists of \p bounds that were cut, "takes=4096 cameras=10000"; empty when none was.
inline QString said(std::initializer_list<const Bound*> bounds)
{
    QString text;
    for (const Bound* bound : bounds) {
        const QString one = bound->said();
        if (!one.isEmpty())
            text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + one;
    }
    return text;
}

} // namespace listLimits
