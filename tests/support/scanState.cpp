#include "scanState.h"

#include <QTextStream>

namespace zkTest {

QString describeScan(LoadResult result, const Scene& scan)
{
    QString text;
    QTextStream out(&text);
    const auto list = [](const QStringList& items) { return items.join(u'|'); };
    out << "result " << result << " takes " << list(scan.takes) << " version "
        << scan.houdiniVersion << ' ' << scan.houdiniMajor << ' ' << scan.houdiniMinorForJobs << ' '
        << scan.houdiniMinorForReaders << " range " << scan.frameStart << ' ' << scan.frameEnd
        << '\n';
    for (const SceneVariable& v : scan.variables)
        out << "var " << v.name << '=' << v.value << '\n';
    for (const CameraNode& c : scan.cameras.list)
        out << "cam " << c.name.toQString() << ' ' << c.resX << 'x' << c.resY << ' ' << c.isStereo
            << ' ' << list(c.renderNodes) << '\n';
    for (const LopNode& l : scan.lops.list)
        out << "lop " << l.nodePath << ' ' << l.imageOut << ' ' << l.renderer << ' '
            << l.imageUsesTake << ' ' << list(l.renderNodes) << '\n';
    for (const RenderSettingsNode& r : scan.renderSettings.list)
        out << "rs " << r.nodePath << ' ' << r.camera << ' ' << r.imageUsesTake << r.archiveEnabled
            << r.archiveControlSet << ' ' << r.archiveFile << '\n';
    for (const WedgeNode& w : scan.wedges) {
        out << "wedge " << w.prefix << ' ' << w.nodePath << ' ' << w.driver << ' ' << w.wedgeMethod;
        for (const WedgeParameter& p : w.params)
            out << ' ' << p.name << ':' << p.rangeStart << ':' << p.rangeEnd << ':' << p.steps;
        out << '\n';
    }
    for (int i = 0; i < scan.jobs.count; ++i) {
        const zkJ::_JobBasics_largePath* job = scan.jobs.at(i);
        if (job)
            out << "job " << job->imageDir.toQString() << job->imageFileName.toQString()
                << job->imageExtension.toQString() << '\n';
    }
    return text;
}

} // namespace zkTest
