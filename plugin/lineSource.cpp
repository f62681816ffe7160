#include "lineSource.h"

bool LineSource::next(QString& line)
{
    if (in.atEnd()) {
        line.clear();
        return false;
    }
    line = in.readLine();
    line.remove(u'\r');
    line = line.trimmed();
    return true;
}
