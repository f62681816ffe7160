#include "plugin/elements/elementSection.h"
#include "plugin/parameterLine.h"
#include "plugin/paths/nodeReferences.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

namespace {

const QLatin1String ResolutionKeyword("res\t");

/// "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)": width before the first tab, height
/// after it; a value without a tab gives both the same number.
void readResolution(const QString& line, CameraNode& cam, bool declared)
{
    QString value = parameterLine::unquotedBracketValue(line);
    if (declared)
        value = withCachedValues(value).simplified().replace(u' ', u'\t');
    const qsizetype tab = value.indexOf(u'\t');
    cam.resX = value.left(tab < 0 ? value.size() : tab).trimmed().toInt();
    cam.resY = value.mid(tab + 1).trimmed().toInt();
}

} // namespace

LoadResult readCameraSection(Scene& scene, LineSource& in, QString& line)
{
    CameraNode cam;
    const bool declared = !scene.section.path.isEmpty();
    cam.name.set(sectionNodePath(scene, nodePathOutObj(line)));
    cam.isStereo = declared ? scene.section.type == u"stereocamrig"
                            : cam.name.indexOf(_zkString8_allSize<150>("stereo"), 0) >= 0;

    static const sectionLoop::KeywordStarts starts { ResolutionKeyword };
    const sectionLoop::SectionEnd end
        = sectionLoop::readSection(in, line, starts, [&](const sectionLoop::SectionLine& l) {
              if (l.startsWith(ResolutionKeyword))
                  readResolution(l.text(), cam, declared);
              return true;
          });
    // A camera cut off by the end of the file is not trusted.
    if (end == sectionLoop::SectionEnd::Closed)
        scene.cameras.add(cam);
    return LoadOk;
}
