#include "sceneLoad.h"

#include "tools/host/hostRecords.h"

namespace zkTest {

int loadSceneFile(const QString& path, zkJ::_JobBasicsArray& jobs, const QStringList& arguments)
{
    const zkHost::HostSettings settings("submitter", arguments);
    _zkString<zkHost::SceneNameCapacity> sceneFile(path);
    zkP::_dataPARS_LoadSceneFile data { &sceneFile, &jobs, settings.block.get() };
    return pLoadSceneFile(&data);
}

} // namespace zkTest
