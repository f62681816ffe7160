#include "plugin/elements/elementSection.h"
#include "plugin/paths/imageTokens.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

LoadResult readLopSection(Scene& scene, LineSource& in, QString& line)
{
    LopNode node;
    node.nodePath = sectionNodePath(scene, nodePathStage(line));

    static const QLatin1String picture("picture\t");
    static const sectionLoop::KeywordStarts starts { picture };
    const sectionLoop::SectionEnd end = sectionLoop::readSection(
        in, line, starts, [&](const sectionLoop::SectionLine& l) {
            if (l.startsWith(picture)) {
                bool singleFile = false;
                replaceImageOutVars(l.text(), false, node.imageOut, node.imageUsesTake, singleFile);
            }
            return true;
        });
    if (end == sectionLoop::SectionEnd::Closed)
        scene.lops.add(node);
    return LoadOk;
}
