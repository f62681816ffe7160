#include "readerCommon.h"

int load_USD_RS_Node(zkP::_dataPARS_LoadSceneFile* data, LineSource& in, QString& line)
{
    (void)data;
    skipSection(in, line);
    return 1;
}
