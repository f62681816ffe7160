#include "readerCommon.h"

bool loadWedgeNode(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    skipSection(in, line);
    return true;
}
