#include "elementSection.h"
#include "plugin/parserState.h"
#include "readerCommon.h"

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
void readRange(const QString& line, _wedgeParams& param)
{
    QString value = bracketValue(line);
    value.replace(u',', u'.');
    const qsizetype tab = value.indexOf(u'\t');
    param.rangeStart = value.left(tab < 0 ? value.size() : tab).trimmed().toDouble();
    param.rangeEnd = value.mid(tab + 1).trimmed().toDouble();
}

/// A numbered parameter line ("name2", "steps2", "range2"), its keyword at the
/// start of \p line.
ParamLine readParamLine(const QString& line, const ParamKeyword& kw, _wedgeNode& wedge)
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
        wedge.params.append(_wedgeParams());
    _wedgeParams& param = wedge.params[number - 1];
    switch (kw.kind) {
    case ParamKind::Name:
        param.name = bracketValue(line);
        break;
    case ParamKind::Steps:
        param.steps = bracketValue(line).toInt();
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

bool isListed(_wedgeNode& wedge)
{
    return !wedge.driver.isEmpty() && wedge.totalWedges() > 0
        && wedge.wedgeMethod.compare(QLatin1String("channel"), Qt::CaseInsensitive) == 0;
}

} // namespace

bool loadWedgeNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    _wedgeNode wedge;
    wedge.nodePath = nodePathOutObj(line);
    bool invalid = false;

    // The first letters of prefix, driver, wedgemethod and the numbered name, steps, range.
    while (nextLineFor(in, line, "pdwnsr")) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'}')) {
            if (!invalid && isListed(wedge))
                wedges.append(wedge);
            return true;
        }
        if (hasKeyword(line, QLatin1String("prefix\t"))) {
            wedge.prefix = bracketValue(line);
            continue;
        }
        if (hasKeyword(line, QLatin1String("driver\t"))) {
            wedge.driver = absoluteDriver(bracketValue(line), wedge.nodePath);
            continue;
        }
        if (hasKeyword(line, QLatin1String("wedgemethod\t"))) {
            wedge.wedgeMethod = bracketValue(line);
            continue;
        }
        for (const ParamKeyword& kw : ParamKeywords) {
            if (!hasKeyword(line, kw.keyword))
                continue;
            const ParamLine result = readParamLine(line, kw, wedge);
            if (result == ParamLine::EndsSection)
                return true;
            if (result == ParamLine::Invalid)
                invalid = true;
            break;
        }
    }
    return true;
}
