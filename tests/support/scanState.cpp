#include "scanState.h"

#include "plugin/parserState.h"

#include <QTextStream>

namespace zkTest {

QString describeScan(const ScanResult& scan, zkJ::_JobBasicsArray& jobs)
{
    QString text;
    QTextStream out(&text);
    const auto list = [](const QStringList& items) { return items.join(u'|'); };
    out << "result " << scan.result << " takes " << list(scan.takes) << " version "
        << scan.houdiniVersion << ' ' << scan.houdiniMajor << ' ' << scan.houdiniMinorForJobs << ' '
        << scan.houdiniMinorForReaders << " range " << GLseqStart << ' ' << GLseqEnd << '\n';
    for (const _namevalue& v : hVariables)
        out << "var " << v.name << '=' << v.value << '\n';
    for (const _camNode& c : camList.list)
        out << "cam " << c.name.toQString() << ' ' << c.resX << 'x' << c.resY << ' ' << c.isStereo
            << ' ' << list(c.renderNodes) << '\n';
    for (const _LOPNode& l : LOPList.list)
        out << "lop " << l.nodePath << ' ' << l.imageOut << ' ' << l.renderer << ' '
            << l.imageUsesTake << ' ' << list(l.renderNodes) << '\n';
    for (const _USD_RendersettingNode& r : USD_RSList.list)
        out << "rs " << r.nodePath << ' ' << r.camera << ' ' << r.imageUsesTake << r.archiveEnabled
            << r.archiveControlSet << r.spareFlag << ' ' << r.archiveFile << ' '
            << list(r.renderNodes) << '\n';
    for (const _wedgeNode& w : wedges) {
        out << "wedge " << w.prefix << ' ' << w.nodePath << ' ' << w.driver << ' ' << w.wedgeMethod;
        for (const _wedgeParams& p : w.params)
            out << ' ' << p.name << ':' << p.rangeStart << ':' << p.rangeEnd << ':' << p.steps;
        out << '\n';
    }
    for (int i = 0; i < jobs.count; ++i) {
        const zkJ::_JobBasics_largePath* job = jobs.at(i);
        if (job)
            out << "job " << job->imageDir.toQString() << job->imageFileName.toQString()
                << job->imageExtension.toQString() << '\n';
    }
    return text;
}

} // namespace zkTest
