// Names the plugin writes into job records, the same for every load.
#pragma once

#include <QString>

extern const char* const zkVersion;

extern const QString appNameHoudini;
extern const QString appNameHoudini_Archive;
extern const QString appNameMantra;
extern const QString appNameArnold;
extern const QString appNameArnold_singlefile;
extern const QString appNameRedshift;
extern const QString appNameVRay;
extern const QString appNameRenderman;
extern const QString appNameUSD;
extern const QString appNameUSDsingle;
