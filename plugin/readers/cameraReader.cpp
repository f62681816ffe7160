#include "elementSection.h"
#include "plugin/parserState.h"
#include "readerCommon.h"

using namespace elementSection;

namespace {

/// "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)": width before the first tab, height
/// after it; a value without a tab gives both the same number.
void readResolution(const QString& line, _camNode& cam)
{
    const QString value = bracketValue(line);
    const qsizetype tab = value.indexOf(u'\t');
    cam.resX = value.left(tab < 0 ? value.size() : tab).trimmed().toInt();
    cam.resY = value.mid(tab + 1).trimmed().toInt();
}

} // namespace

bool loadCamNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    _camNode cam;
    cam.name.set(nodePathOutObj(line));
    cam.isStereo = cam.name.indexOf(_zkString8_allSize<150>("stereo"), 0) >= 0;

    // "res\t" is the one keyword; nextLineFor reads past lines no keyword starts.
    while (nextLineFor(in, line, "r")) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'}')) {
            camList.addCam(cam);
            return true;
        }
        if (hasKeyword(line, QLatin1String("res\t")))
            readResolution(line, cam);
    }
    // Cut off by the end of the file: a camera without its closing brace is not trusted.
    return true;
}
