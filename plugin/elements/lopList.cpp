#include "lopList.h"

#include "elementSection.h"

namespace {

struct RendererKeyword
{
    QLatin1String keyword;
    QLatin1String renderer;
};

/// Tried in this order; the first keyword found names the renderer.
const RendererKeyword RendererKeywords[] = {
    { QLatin1String("karma"), QLatin1String("karma") },
    { QLatin1String("hdprman"), QLatin1String("prman") },
    { QLatin1String("vray"), QLatin1String("vray") },
    { QLatin1String("redshift"), QLatin1String("redshift") },
    { QLatin1String("arnold"), QLatin1String("arnold") },
};

} // namespace

void LopNode::setRenderer(QString const& hint)
{
    const QString& text = hint.isEmpty() ? nodePath : hint;
    for (const RendererKeyword& row : RendererKeywords) {
        if (text.contains(row.keyword, Qt::CaseInsensitive)) {
            renderer = row.renderer;
            return;
        }
    }
}

QString LopNode::renderName() const
{
    if (renderer.isEmpty())
        return QStringLiteral("usd");
    return QStringLiteral("usd_") + renderer;
}

QString LopNode::exportName() const
{
    if (renderer.isEmpty())
        return QStringLiteral("createUSD");
    return QStringLiteral("createUSD_") + renderer;
}

int LopList::findByPath(QString const& nodePath, bool const& create)
{
    return elementSection::findByNodePath(list, byPath, nodePath, create, bound);
}

int LopList::findByDriver(QString const& driverPath) const
{
    return elementSection::findByRenderNode(list, byDriver, driverPath);
}

int LopList::addDriver(QString lopPath, QString const& driverPath)
{
    const int index = findByPath(elementSection::unwrapChsop(lopPath), true);
    elementSection::addRenderNode(list, byDriver, index, driverPath, bound);
    return index;
}

void LopList::add(LopNode& node)
{
    const int index = findByPath(node.nodePath, true);
    if (index < 0)
        return;
    LopNode& entry = list[index];
    entry.nodePath = node.nodePath;
    entry.imageOut = node.imageOut;
    entry.imageUsesTake = node.imageUsesTake;
    entry.setRenderer(QString());
}
