#include "ZK_DataTypes_jobs0_Basics.h"
#include "ZK_DataTypes_jobs_defines.h"

namespace zkJ {

QString _JobBasics::IDstr() const
{
    return zkJ::ID2str(ID);
}

QString _JobBasics::ID2str() const
{
    return zkJ::ID2str(ID);
}

QString _JobBasics::IDstrFull() const
{
    return zkJ::ID2strFull(ID);
}

QString _JobBasics::ID2strFull() const
{
    return zkJ::ID2strFull(ID);
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
