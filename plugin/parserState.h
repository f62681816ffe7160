// Module state of the parser: what the scan learns about one scene, shared by
// the scanner, the readers, the completion pass and the fan-out. Hidden from
// the host (the library exports only its entry points and job methods).
#pragma once

#include "plugin/readers/cameraList.h"
#include "plugin/readers/lopList.h"
#include "plugin/readers/usdRenderSettingsList.h"
#include "plugin/readers/wedgeList.h"
#include "shared/zkString.h"

#include <QList>
#include <QMap>
#include <QString>

/// A scene or environment variable: its name without "$" and its value.
struct _namevalue
{
    QString name;
    QString value;
};

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

extern int GLseqStart;
extern int GLseqEnd;
extern int seqStart;
extern int seqEnd;
extern int seqStep;
extern QString DatabaseDir;
extern QList<_namevalue> hVariables;
extern QMap<QString, QString> nodeActiveTakes; // keyed by the job's layer text
/// Resolution fraction of drivers whose size is a fraction of their camera's,
/// keyed like nodeActiveTakes, so both jobs of an export pair find it.
extern QMap<QString, double> nodeResFractions;
extern QList<_wedgeNode> wedges;
extern _camList camList;
extern _LOPList LOPList;
extern _USD_RSList USD_RSList;
extern bool trange;
extern bool emptyNodesfound;
extern bool mantraIFDJob;
extern bool HIPFound_DisableLocalScene;

/// Assigns every variable above its initial value. Each load starts with it,
/// so one load of the library serves any number of scenes.
void resetParserState();
