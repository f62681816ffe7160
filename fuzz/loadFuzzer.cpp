// The whole load from memory: the scene bytes go through the same line
// source, scan, completion pass and fan-out as a file, without the file
// system, so this target runs many times faster than the file target.
#include "fuzz/fuzzInput.h"
#include "fuzz/hostChecks.h"
#include "plugin/load.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The host reuses its array from load to load, cleared: its records stay
    // allocated and getNewJob reinitialises each one it hands out again. That
    // spares every input the growth of the array (which the file target
    // covers), whose copies make up most of a load's time under the sanitizer.
    static zkJ::_JobBasicsArray& jobs = *[] {
        auto* array = new zkJ::_JobBasicsArray;
        array->setArraySize(zkJ::MaxJobRecords);
        return array;
    }();
    jobs.clear();
    zkFuzz::FuzzInput input(data, size);
    _zkString<500> scenePath(QStringLiteral("/fuzz/shot/scene.hip"));
    zkP::_dataPARS_LoadSceneFile record { &scenePath, &jobs, input.settings.get() };

    QBuffer device(&input.scene);
    device.open(QIODevice::ReadOnly);
    const int result = loadScene(record, &device);
    zkFuzz::checkLoad(result, jobs);
    return 0;
}
