#include "readerCommon.h"

int loadOutNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line, bool& takeFound,
    const int& houdiniMajor, const QString& houdiniMinorForReaders)
{
    (void)data;
    (void)takeFound;
    (void)houdiniMajor;
    (void)houdiniMinorForReaders;
    // Output drivers do not make jobs yet; their sections are consumed whole.
    skipSection(in, line);
    return 1;
}
