#include "plugin/elements/elementSection.h"
#include "plugin/parameterLine.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

namespace {

const QLatin1String ResolutionKeyword("res\t");

/// \p value with each channel reference "[ resx\t1280 ]" replaced by its
/// number: a real camera whose size is keyed writes the cached value there.
QString withoutChannelReferences(QString value)
{
    for (qsizetype open = value.indexOf(u'['); open >= 0; open = value.indexOf(u'[', open)) {
        const qsizetype close = value.indexOf(u']', open);
        if (close < 0)
            break;
        const QStringView inside = QStringView(value).mid(open + 1, close - open - 1).trimmed();
        const qsizetype blank
            = inside.lastIndexOf(u'\t') >= 0 ? inside.lastIndexOf(u'\t') : inside.lastIndexOf(u' ');
        const QString number = blank < 0 ? QString() : inside.mid(blank + 1).toString();
        value.replace(open, close - open + 1, number);
        open += number.size();
    }
    return value;
}

/// "res\t[ 0\tlocks=0 ]\t(\t1920\t1080\t)": width before the first tab, height
/// after it; a value without a tab gives both the same number.
void readResolution(const QString& line, CameraNode& cam, bool declared)
{
    QString value = parameterLine::unquotedBracketValue(line);
    if (declared)
        value = withoutChannelReferences(value).simplified().replace(u' ', u'\t');
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
