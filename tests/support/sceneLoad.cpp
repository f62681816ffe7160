#include "sceneLoad.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace zkTest {

int loadSceneFile(const QString& path, zkJ::_JobBasicsArray& jobs, const QStringList& arguments)
{
    // argv[0] is the submitter's own name, as the host passes it.
    std::vector<QByteArray> storage { QByteArrayLiteral("submitter") };
    for (const QString& argument : arguments)
        storage.push_back(argument.toLocal8Bit());
    std::vector<char*> argv;
    for (QByteArray& argument : storage)
        argv.push_back(argument.data());
    argv.push_back(nullptr);

    auto settings = std::make_unique<zkP::_submitterSettings>();
    *settings = {};
    settings->argc = int(storage.size());
    settings->argv = argv.data();

    auto sceneFile = std::make_unique<_zkString<500>>();
    sceneFile->set(path);
    zkP::_dataPARS_LoadSceneFile data { sceneFile.get(), &jobs, settings.get() };
    return pLoadSceneFile(&data);
}

int loadSceneText(const QByteArray& text, zkJ::_JobBasicsArray& jobs, const QStringList& arguments,
    const QString& fileName)
{
    QTemporaryDir dir;
    if (!dir.isValid())
        return -1;
    const QString path = dir.filePath(fileName);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return -1;
    file.close();
    return loadSceneFile(path, jobs, arguments);
}

} // namespace zkTest
