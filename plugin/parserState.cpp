#include "parserState.h"

const char* const zkVersion = " 8.4.00";

const QString appNameHoudini = QStringLiteral("Houdini");
const QString appNameHoudini_Archive = QStringLiteral("Hdni");
const QString appNameMantra = QStringLiteral("Mantra_StdA");
const QString appNameArnold = QStringLiteral("Arnold");
const QString appNameArnold_singlefile = QStringLiteral("Arnold-singlefile");
const QString appNameRedshift = QStringLiteral("Redshift");
const QString appNameVRay = QStringLiteral("VRay_StdA");
const QString appNameRenderman = QStringLiteral("RenderMan");
const QString appNameUSD = QStringLiteral("USD_StdA");
const QString appNameUSDsingle = QStringLiteral("USD_StdA_single");
