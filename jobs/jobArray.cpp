#include "ZK_DataTypes_jobs0_Basics.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace zkJ {

_JobBasicsArray::_JobBasicsArray()
    : structureID(JobStructureID)
    , structureVersion(JobStructureVersion)
    , gap2010 { 0, 0 }
    , recordSize(sizeof(_JobBasics_largePath))
    , count(0)
    , allocated(0)
    , records(nullptr)
{
    arrayText.clear();
}

_JobBasicsArray::~_JobBasicsArray()
{
    std::free(records);
}

void _JobBasicsArray::clear()
{
    count = 0;
    arrayText.clear();
}

bool _JobBasicsArray::setArraySize(const int& size)
{
    if (size <= allocated)
        return true;
    if (size > MaxJobRecords)
        return false;
    _JobBasics_largePath* grown = nullptr;
    if (records) {
        grown = static_cast<_JobBasics_largePath*>(
            std::realloc(static_cast<void*>(records), size_t(size) * sizeof(_JobBasics_largePath)));
    } else {
        grown = static_cast<_JobBasics_largePath*>(
            std::calloc(size_t(size), sizeof(_JobBasics_largePath)));
    }
    if (!grown)
        return false;
    for (int i = allocated; i < size; ++i)
        new (static_cast<void*>(grown + i)) _JobBasics_largePath();
    records = grown;
    allocated = size;
    return true;
}

_JobBasics_largePath* _JobBasicsArray::at(const int& index)
{
    if (index < 0 || index >= allocated)
        return nullptr;
    return records + index;
}

bool _JobBasicsArray::isVersionSupported(unsigned char minVersion) const
{
    return structureID == JobStructureID && structureVersion >= minVersion
        && recordSize == sizeof(_JobBasics_largePath);
}

bool _JobBasicsArray::getNewJob(_JobBasics_largePath*& job)
{
    ++count;
    setArraySize(count);
    // A count the host left negative would hand out a record before the block.
    if (count < 1 || count > allocated) {
        job = nullptr;
        return false;
    }
    job = records + (count - 1);
    job->zkClearBasics();
    return true;
}

} // namespace zkJ
