#include "ZK_DataTypes_jobs0_Basics.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#if defined(__linux__)
#    include <sys/mman.h>
#endif

namespace zkJ {

namespace {

/// Maps the pages of a range of new records before they are written. A
/// record spans 56 pages, and a page first written faults once; one request
/// for the whole range costs far less than those faults (a third of the time
/// on a virtual machine, where faults are dear). A kernel without it faults
/// the pages in as before.
void prefault(void* begin, size_t bytes)
{
#if defined(__linux__) && defined(MADV_POPULATE_WRITE)
    constexpr uintptr_t Page = 4096;
    const uintptr_t first = (reinterpret_cast<uintptr_t>(begin) + Page - 1) & ~(Page - 1);
    const uintptr_t last = (reinterpret_cast<uintptr_t>(begin) + bytes) & ~(Page - 1);
    if (last > first)
        madvise(reinterpret_cast<void*>(first), last - first, MADV_POPULATE_WRITE);
#else
    (void)begin;
    (void)bytes;
#endif
}

} // namespace

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
    prefault(grown + allocated, size_t(size - allocated) * sizeof(_JobBasics_largePath));
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
    const int initialised = allocated;
    ++count;
    setArraySize(count);
    // A count the host left negative would hand out a record before the block.
    if (count < 1 || count > allocated) {
        job = nullptr;
        return false;
    }
    job = records + (count - 1);
    // A record the growth just made is already what zkClearBasics would leave.
    if (count - 1 < initialised)
        job->zkClearBasics();
    return true;
}

} // namespace zkJ
