// The real boundary: the input is written to a scene file and loaded by the
// built plugin, opened with dlopen and called through pLoadSceneFile as the
// host does, into a job array the host allocated from its documented layout.
#include "fuzz/fuzzInput.h"
#include "fuzz/hostChecks.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

namespace {

using LoadFn = int (*)(zkP::_dataPARS_LoadSceneFile*);

LoadFn load = nullptr;
std::string scenePath;

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // Loaded before the first input, so the plugin's coverage counters count.
    void* plugin = dlopen(ZK_PLUGIN_PATH, RTLD_NOW | RTLD_LOCAL);
    if (!plugin) {
        std::fprintf(stderr, "cannot load the plugin: %s\n", dlerror());
        std::exit(1);
    }
    load = reinterpret_cast<LoadFn>(dlsym(plugin, "pLoadSceneFile"));
    if (!load) {
        std::fprintf(stderr, "the plugin has no pLoadSceneFile\n");
        std::exit(1);
    }
    const char* tmp = std::getenv("TMPDIR");
    std::string dir = std::string(tmp && *tmp ? tmp : "/tmp") + "/zkfuzz.XXXXXX";
    if (!mkdtemp(dir.data())) {
        std::perror("mkdtemp");
        std::exit(1);
    }
    scenePath = dir + "/scene.hip";
    static const std::string folder = dir;
    std::atexit([] {
        std::remove(scenePath.c_str());
        rmdir(folder.c_str());
    });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    zkFuzz::FuzzInput input(data, size);
    FILE* file = std::fopen(scenePath.c_str(), "wb");
    if (!file)
        std::abort();
    const size_t bytes = size_t(input.scene.size());
    if (std::fwrite(input.scene.constData(), 1, bytes, file) != bytes || std::fclose(file) != 0)
        std::abort();

    // The host's own allocation: zeroed memory with the documented header.
    auto* jobs = static_cast<zkJ::_JobBasicsArray*>(std::calloc(1, sizeof(zkJ::_JobBasicsArray)));
    jobs->structureID = zkJ::JobStructureID;
    jobs->structureVersion = zkJ::JobStructureVersion;
    jobs->recordSize = sizeof(zkJ::_JobBasics_largePath);
    _zkString<500> sceneName;
    sceneName.set(QString::fromStdString(scenePath));
    zkP::_dataPARS_LoadSceneFile record { &sceneName, jobs, input.settings.get() };

    const int result = load(&record);
    zkFuzz::checkLoad(result, *jobs);
    std::free(static_cast<void*>(jobs->records));
    std::free(jobs);
    return 0;
}
