#include "plugin/elements/elementSection.h"
#include "plugin/parameterLine.h"
#include "plugin/paths/imageTokens.h"
#include "readerCommon.h"
#include "sectionLoop.h"

using namespace elementSection;

namespace {

enum class RSKeyword { Camera, EnableControl, Enable, FileNameControl, FileName, None };

struct RSKeywordRow
{
    QLatin1String keyword;
    RSKeyword kind;
};

/// Tried in this order: "..._archive_enable" is a prefix of "..._archive_enable_control",
/// and "..._fileName" of "..._fileName_control", so the longer keywords come first.
const RSKeywordRow RSKeywords[] = {
    { QLatin1String("camera\t"), RSKeyword::Camera },
    { QLatin1String("xn__redshiftglobalRS_archive_enable_control"), RSKeyword::EnableControl },
    { QLatin1String("xn__redshiftglobalRS_archive_enable"), RSKeyword::Enable },
    { QLatin1String("xn__redshiftglobalRS_archive_fileName_control"), RSKeyword::FileNameControl },
    { QLatin1String("xn__redshiftglobalRS_archive_fileName"), RSKeyword::FileName },
};

RSKeyword classify(const sectionLoop::SectionLine& line)
{
    for (const RSKeywordRow& row : RSKeywords) {
        if (line.startsWith(row.keyword))
            return row.kind;
    }
    return RSKeyword::None;
}

/// The bracket value; a value that refers to its own parameter ("[ name]") loses
/// that reference.
QString settingValue(const QString& line)
{
    return parameterLine::withoutSelfReference(
        parameterLine::unquotedBracketValue(line), parameterLine::parameterName(line));
}

} // namespace

LoadResult readRenderSettingsSection(Scene& scene, LineSource& in, QString& line)
{
    RenderSettingsNode node;
    node.nodePath = sectionNodePath(scene, nodePathStage(line));

    static const sectionLoop::KeywordStarts starts = [] {
        sectionLoop::KeywordStarts s;
        for (const RSKeywordRow& row : RSKeywords)
            s.add(row.keyword);
        return s;
    }();
    const sectionLoop::SectionEnd end
        = sectionLoop::readSection(in, line, starts, [&](const sectionLoop::SectionLine& l) {
              switch (classify(l)) {
              case RSKeyword::Camera: {
                  const QString camera = settingValue(l.text());
                  if (!parameterLine::isChannelExpression(camera))
                      node.camera = camera;
                  break;
              }
              case RSKeyword::EnableControl:
              case RSKeyword::FileNameControl:
                  node.archiveControlSet = settingValue(l.text()).contains(QLatin1String("set"));
                  break;
              case RSKeyword::Enable:
                  node.archiveEnabled = settingValue(l.text()).contains(QLatin1String("on"));
                  break;
              case RSKeyword::FileName: {
                  bool singleFile = false;
                  replaceImageOutVars(
                      l.text(), false, node.archiveFile, node.imageUsesTake, singleFile);
                  break;
              }
              case RSKeyword::None:
                  break;
              }
              return true;
          });
    if (end == sectionLoop::SectionEnd::Closed)
        scene.renderSettings.add(node);
    return LoadOk;
}
