#include "elementSection.h"
#include "plugin/parserState.h"
#include "plugin/paths/imageTokens.h"
#include "readerCommon.h"

using namespace elementSection;

bool loadLOPNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    _LOPNode node;
    node.nodePath = nodePathStage(line);

    // "picture\t" is the one keyword.
    while (nextLineFor(in, line, "p")) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'}')) {
            LOPList.addLOP(node);
            return true;
        }
        if (hasKeyword(line, QLatin1String("picture\t"))) {
            bool singleFile = false;
            replaceImageOutVars(line, false, node.imageOut, node.imageUsesTake, singleFile);
        }
    }
    return true;
}
