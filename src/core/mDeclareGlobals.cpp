#include "mDeclareGlobals.h"

bool IsDevelopmentRun() { return qgetenv("WARDLOCK_DEVELOPMENT") == "1"; }

bool gDebugMode = false;
bool gDemoMode = false;
int gEdition = 0;
int gLanguage = -1;
std::unique_ptr<Dictionary> gDictionary;
QString gDatabasePath;
QString gConnectionString;
std::unique_ptr<Connection> gConn;
bool gStoreDamaged = false;
bool gAutoSetTime = true;
std::array<QString, 4> gCompanyInfo;
bool gDockingDetected = false;
bool gCommActive = false;
bool gWaitCancelled = false;
