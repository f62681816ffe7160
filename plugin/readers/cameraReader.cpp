#include "plugin/elements/elementSection.h"
#include "plugin/parameterLine.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

namespace {

const QLatin1String ResolutionKeyword("res\t");

/// "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)": width before the first tab, height
/// after it; a value without a tab gives both the same number.
void readResolution(const QString& line, CameraNode& cam)
{
    const QString value = parameterLine::unquotedBracketValue(line);
    const qsizetype tab = value.indexOf(u'\t');
    cam.resX = value.left(tab < 0 ? value.size() : tab).trimmed().toInt();
    cam.resY = value.mid(tab + 1).trimmed().toInt();
}

} // namespace

LoadResult readCameraSection(Scene& scene, LineSource& in, QString& line)
{
    CameraNode cam;
    cam.name.set(nodePathOutObj(line));
    cam.isStereo = cam.name.indexOf(_zkString8_allSize<150>("stereo"), 0) >= 0;

    static const sectionLoop::KeywordStarts starts { ResolutionKeyword };
    const sectionLoop::SectionEnd end
        = sectionLoop::readSection(in, line, starts, [&](const sectionLoop::SectionLine& l) {
              if (l.startsWith(ResolutionKeyword))
                  readResolution(l.text(), cam);
              return true;
          });
    // A camera cut off by the end of the file is not trusted.
    if (end == sectionLoop::SectionEnd::Closed)
        scene.cameras.add(cam);
    return LoadOk;
}
