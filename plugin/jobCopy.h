// How the plugin makes one job from another: the render job of an export
// pair, and the copies of the take and wedge fan-out.
#pragma once

#include "jobs/ZK_DataTypes_jobs0_Basics.h"

#include <algorithm>
#include <iterator>

/// Makes \p to equal \p from in every field: the first layer through its own
/// assignment (which leaves the target's reserved units alone), then the
/// paths, the channel slots and the settings with their custom data.
inline void copyJob(zkJ::_JobBasics_largePath& to, const zkJ::_JobBasics_largePath& from)
{
    static_cast<zkJ::_JobBasics_noSettings_noPaths&>(to) = from;
    to.sceneName = from.sceneName;
    to.sceneDatabaseDir = from.sceneDatabaseDir;
    to.auxPath = from.auxPath;
    to.imageDir = from.imageDir;
    to.imageFileName = from.imageFileName;
    to.auxImageName = from.auxImageName;
    to.imageExtension = from.imageExtension;
    to.auxByte4 = from.auxByte4;
    std::copy(std::begin(from.channels), std::end(from.channels), std::begin(to.channels));
    static_cast<zkJ::_JobSettingsScene&>(to) = from;
}
