// The path functions on their own: the image token conversion of an output
// parameter line, the Houdini variable expansion and the image-name split of
// large and compact records, then the compact record's channel packing.
//
// Input lines: a parameter line; the scene path; then variables as
// "NAME<TAB>VALUE". A first byte '+' (taken off) prepends to an earlier path.
#include "fuzz/hostChecks.h"
#include "plugin/paths/houdiniVariables.h"
#include "plugin/paths/imageTokens.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const bool prepend = bytes.startsWith('+');
    if (prepend)
        bytes.remove(0, 1);
    const QList<QByteArray> lines = bytes.split('\n');
    const QString line = QString::fromUtf8(lines.value(0));
    _zkString<500> scene;
    scene.set(QString::fromUtf8(lines.value(1)));
    QList<SceneVariable> variables;
    for (qsizetype i = 2; i < lines.size(); ++i) {
        const QString text = QString::fromUtf8(lines.at(i));
        const qsizetype tab = text.indexOf(u'\t');
        variables.append({ text.left(tab), tab < 0 ? QString() : text.mid(tab + 1) });
    }

    QString imageOut = prepend ? QStringLiteral("/earlier/path.") : QString();
    bool takeFound = false;
    bool singleFile = false;
    replaceImageOutVars(line, prepend, imageOut, takeFound, singleFile);

    auto job = std::make_unique<zkJ::_JobBasics_largePath>();
    job->layer.set(QStringLiteral("/out/mantra1"));
    job->sceneDatabaseDir.set(scene.toQString().section(u'/', 0, -2) + u'/');
    const QString expanded = replaceHoudiniVariables(imageOut, job.get(), variables, scene);
    job->imageFileName.set(expanded);
    job->channels[0].fileName.set(expanded + QStringLiteral("_aov"));
    job->splitImageFileInto_DirFileExt(!prepend);
    job->splitImageFileInto_DirFileExt_Channel(!prepend);
    zkFuzz::checkJob(*job, 0);

    auto compact = std::make_unique<zkJ::_JobBasics>();
    job->toJobsBasic(*compact);
    compact->imageFileName.set(expanded);
    compact->splitImageFileInto_DirFileExt(prepend);
    compact->splitImageFileInto_DirFileExt_Channel(prepend);
    if (compact->channelCount > zkJ::_JobBasics_noSettings::MaxChannels
        || compact->channelBufferUsed > zkJ::_JobBasics_noSettings::ChannelBufferLimit + 1)
        zkFuzz::fail("compact channel table", 0);

    QString path = line;
    convertFirstDollarF(path);
    return 0;
}
