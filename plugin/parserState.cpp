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

int GLseqStart = 1;
int GLseqEnd = 100;
int seqStart = 1;
int seqEnd = 100;
int seqStep = 1;
QString DatabaseDir;
QList<_namevalue> hVariables;
QMap<QString, QString> nodeActiveTakes;
QMap<QString, double> nodeResFractions;
QList<_wedgeNode> wedges;
_camList camList;
_LOPList LOPList;
_USD_RSList USD_RSList;
bool trange = false;
bool emptyNodesfound = false;
bool mantraIFDJob = false;
bool HIPFound_DisableLocalScene = false;

void resetParserState()
{
    GLseqStart = 1;
    GLseqEnd = 100;
    seqStart = 1;
    seqEnd = 100;
    seqStep = 1;
    DatabaseDir.clear();
    hVariables.clear();
    nodeActiveTakes.clear();
    nodeResFractions.clear();
    wedges.clear();
    camList = _camList();
    LOPList = _LOPList();
    USD_RSList = _USD_RSList();
    trange = false;
    emptyNodesfound = false;
    mantraIFDJob = false;
    HIPFound_DisableLocalScene = false;
}
