#include "ZK_DataTypes_jobs0_Basics.h"
#include "ZK_DataTypes_jobs_defines.h"

namespace zkJ {

// ID stands at a 4-byte boundary inside the packed record: it is read into a
// local before a reference to it is formed.

QString _JobBasics::IDstr() const
{
    const unsigned long long id = ID;
    return zkJ::ID2str(id);
}

QString _JobBasics::ID2str() const
{
    return IDstr();
}

QString _JobBasics::IDstrFull() const
{
    const unsigned long long id = ID;
    return zkJ::ID2strFull(id);
}

QString _JobBasics::ID2strFull() const
{
    return IDstrFull();
}

unsigned long long _JobBasics::IDmain() const
{
    return ID & ~0xFFULL;
}

unsigned char _JobBasics::IDpre() const
{
    return static_cast<unsigned char>(ID & 0xFF);
}

} // namespace zkJ
