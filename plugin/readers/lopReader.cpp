#include "elementSection.h"
#include "plugin/parserState.h"
#include "plugin/paths/imageTokens.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

bool loadLOPNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    _LOPNode node;
    node.nodePath = nodePathStage(line);

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
        LOPList.addLOP(node);
    return true;
}
