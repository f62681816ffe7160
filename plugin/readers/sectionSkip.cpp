#include "readerCommon.h"

void skipSection(LineSource& in, QString& line)
{
    while (in.next(line)) {
        if (line.startsWith(u'}'))
            return;
    }
}
