#include "cameraList.h"

#include "elementSection.h"

namespace {

/// Camera paths with these parts belong to rigs and helpers, not to cameras
/// a driver renders through; the match is a plain substring, ignoring case.
const char* const ExcludedCameraParts[] = { "xform", "camOrigin", "file", "constraints" };

bool isExcludedCamera(const _zkString8_allSize<150>& name)
{
    for (const char* part : ExcludedCameraParts) {
        if (name.indexOf(_zkString8_allSize<150>(part), 0) >= 0)
            return true;
    }
    return false;
}

} // namespace

int CameraList::findByName(_zkString8_allSize<150> const& name)
{
    const QString key = name.toQString();
    const int found
        = byName.find(key, int(list.size()), [&](int i) { return list.at(i).name.isEqual(name); });
    if (found >= 0)
        return found;
    if (!bound.roomFor(list.size()))
        return -1;
    // Unnamed (and so not in the index) until the caller names it.
    list.append(CameraNode());
    return int(list.size()) - 1;
}

int CameraList::findByDriver(QString const& driverPath) const
{
    return elementSection::findByRenderNode(list, byDriver, driverPath);
}

void CameraList::addDriver(const _zkString8_allSize<150>& camera, QString const& driverPath)
{
    const int index = findByName(camera);
    if (index < 0)
        return;
    name(index, camera);
    elementSection::addRenderNode(list, byDriver, index, driverPath, bound);
}

void CameraList::name(int index, const _zkString8_allSize<150>& name)
{
    list[index].name = name;
    byName.note(name.toQString(), index);
}

void CameraList::add(CameraNode& cam)
{
    if (isExcludedCamera(cam.name))
        return;
    const int index = findByName(cam.name);
    if (index < 0)
        return;
    name(index, cam.name);
    CameraNode& entry = list[index];
    entry.resX = cam.resX;
    entry.resY = cam.resY;
    entry.isStereo = cam.isStereo;
}
