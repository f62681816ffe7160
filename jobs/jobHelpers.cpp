#include "ZK_DataTypes_jobs0_Basics.h"
#include "ZK_DataTypes_jobs_defines.h"

namespace zkJ {

QString _JobBasics::getSceneDisplayName() const
{
    QString s = sceneName.toQString();
    // "!"-names are placeholders the host shows as they are.
    if (s.startsWith(u'!'))
        return s;
    const qsizetype dot = s.lastIndexOf(u'.');
    if (dot > 3)
        s.truncate(dot);

    // Folder names every project has say nothing about the scene.
    for (const QString& noise : { QStringLiteral("/RENDER_PICTURES"), QStringLiteral("/Scenes"),
             QStringLiteral("/<FN4>"), QStringLiteral("<FN4>") })
        s.remove(noise, Qt::CaseInsensitive);
    for (const QString& token :
        { QStringLiteral("<FN"), QStringLiteral("<"), QStringLiteral(">"), QStringLiteral("//") })
        s.remove(token, Qt::CaseSensitive);

    // Keep the last folder and the name.
    const qsizetype last = s.lastIndexOf(u'/');
    if (last > 0) {
        const qsizetype before = s.lastIndexOf(u'/', last - 1);
        if (before > 0)
            s = QStringLiteral("...") + s.mid(before);
    }

    QString out;
    out.reserve(s.size() + 16);
    for (qsizetype i = 0; i < s.size(); ++i) {
        out.append(s.at(i));
        if (s.at(i) == u'/' && (i == 0 || s.at(i - 1) != u':'))
            out.append(QStringLiteral("    "));
    }
    return out;
}

QString _JobBasics::authStr() const
{
    const unsigned long long crc
        = zkCRCCalc64(sceneName.data, static_cast<unsigned long>(sceneName.length) * 2);
    return QStringLiteral("auth") + zkJ::ID2strFull(crc ^ ID) + QStringLiteral("auth");
}

void _JobBasics_largePath::replaceSquareBracketVariables()
{
    replaceSquareBracketVariablesSub(imageFileName);
    replaceSquareBracketVariablesSub(imageDir);
    for (_channelSlot& slot : channels)
        replaceSquareBracketVariablesSub(slot.fileName);
}

} // namespace zkJ
