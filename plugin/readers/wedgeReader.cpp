#include "plugin/elements/elementSection.h"
#include "plugin/parameterLine.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

namespace {

/// Wedge parameters are numbered in the scene; a number above this makes the
/// wedge invalid rather than growing the list to whatever the file says.
constexpr int MaxWedgeParams = 1000;

enum class ParamKind { Name, Steps, Range };

struct ParamKeyword
{
    QLatin1String keyword;
    ParamKind kind;
};

const ParamKeyword ParamKeywords[] = {
    { QLatin1String("name"), ParamKind::Name },
    { QLatin1String("steps"), ParamKind::Steps },
    { QLatin1String("range"), ParamKind::Range },
};

enum class ParamLine { Used, Ignored, Invalid, EndsSection };

/// "range1\t[ 0\tlocks=0 ]\t(\t0,5\t1,5\t)": decimal commas are accepted; a
/// value without a tab gives both ends the same number.
void readRange(const QString& line, WedgeParameter& param)
{
    QString value = parameterLine::unquotedBracketValue(line);
    value.replace(u',', u'.');
    const qsizetype tab = value.indexOf(u'\t');
    param.rangeStart = value.left(tab < 0 ? value.size() : tab).trimmed().toDouble();
    param.rangeEnd = value.mid(tab + 1).trimmed().toDouble();
}

/// A numbered parameter line ("name2", "steps2", "range2"), its keyword at the
/// start of \p line.
ParamLine readParamLine(const QString& line, const ParamKeyword& kw, WedgeNode& wedge)
{
    const QStringView rest = QStringView(line).mid(kw.keyword.size());
    const qsizetype tab = rest.indexOf(u'\t');
    bool isInteger = false;
    const int number = rest.left(tab < 0 ? rest.size() : tab).trimmed().toInt(&isInteger);
    if (!isInteger)
        return kw.kind == ParamKind::Steps ? ParamLine::Ignored : ParamLine::EndsSection;
    if (number <= 0)
        return ParamLine::Ignored;
    if (number > MaxWedgeParams)
        return ParamLine::Invalid;

    while (wedge.params.size() < number)
        wedge.params.append(WedgeParameter());
    WedgeParameter& param = wedge.params[number - 1];
    switch (kw.kind) {
    case ParamKind::Name:
        param.name = parameterLine::unquotedBracketValue(line);
        break;
    case ParamKind::Steps:
        param.steps = parameterLine::unquotedBracketValue(line).toInt();
        break;
    case ParamKind::Range:
        readRange(line, param);
        break;
    }
    return ParamLine::Used;
}

/// "../mantra1" read in /out/wedge1 names /out/mantra1; only one leading "../" is resolved.
QString absoluteDriver(const QString& driver, const QString& wedgePath)
{
    if (!driver.startsWith(QLatin1String("../")))
        return driver;
    return wedgePath.left(wedgePath.lastIndexOf(u'/') + 1) + driver.mid(3);
}

bool isListed(WedgeNode& wedge)
{
    return !wedge.driver.isEmpty() && wedge.totalWedges() > 0
        && wedge.wedgeMethod.compare(QLatin1String("channel"), Qt::CaseInsensitive) == 0;
}

} // namespace

LoadResult readWedgeSection(Scene& scene, LineSource& in, QString& line)
{
    WedgeNode wedge;
    wedge.nodePath = sectionNodePath(scene, nodePathOutObj(line));
    bool invalid = false;

    static const QLatin1String prefix("prefix\t");
    static const QLatin1String driver("driver\t");
    static const QLatin1String method("wedgemethod\t");
    static const sectionLoop::KeywordStarts starts { prefix, driver, method,
        ParamKeywords[0].keyword, ParamKeywords[1].keyword, ParamKeywords[2].keyword };
    const sectionLoop::SectionEnd end
        = sectionLoop::readSection(in, line, starts, [&](const sectionLoop::SectionLine& l) {
              if (l.startsWith(prefix)) {
                  wedge.prefix = parameterLine::unquotedBracketValue(l.text());
                  return true;
              }
              if (l.startsWith(driver)) {
                  wedge.driver = absoluteDriver(
                      parameterLine::unquotedBracketValue(l.text()), wedge.nodePath);
                  return true;
              }
              if (l.startsWith(method)) {
                  wedge.wedgeMethod = parameterLine::unquotedBracketValue(l.text());
                  return true;
              }
              for (const ParamKeyword& kw : ParamKeywords) {
                  if (!l.startsWith(kw.keyword))
                      continue;
                  const ParamLine result = readParamLine(l.text(), kw, wedge);
                  if (result == ParamLine::Invalid)
                      invalid = true;
                  return result != ParamLine::EndsSection;
              }
              return true;
          });
    if (end == sectionLoop::SectionEnd::Closed && !invalid && isListed(wedge)
        && scene.wedgesBound.roomFor(scene.wedges.size()))
        scene.wedges.append(wedge);
    return LoadOk;
}
