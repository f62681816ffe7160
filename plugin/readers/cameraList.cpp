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

int _camList::findCamIndex(_zkString8_allSize<150> const& name)
{
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).name.isEqual(name))
            return i;
    }
    list.append(_camNode());
    return int(list.size()) - 1;
}

int _camList::findCamIndexByRenderNode(QString const& driverPath) const
{
    return elementSection::findByRenderNode(list, driverPath);
}

void _camList::addCamFromOutNode(_zkString8_allSize<150> camera, QString const& driverPath)
{
    if (camera.startsWith("`chsop(\\")) {
        camera.remove(0, 9);
        camera.setLength(short(camera.length - 1));
    }
    _camNode& entry = list[findCamIndex(camera)];
    entry.name = camera;
    entry.renderNodes.append(driverPath);
}

void _camList::addCam(_camNode& cam)
{
    if (isExcludedCamera(cam.name))
        return;
    _camNode& entry = list[findCamIndex(cam.name)];
    entry.name = cam.name;
    entry.resX = cam.resX;
    entry.resY = cam.resY;
    entry.isStereo = cam.isStereo;
}
