#include "AppVersion.h"

#include "Version.h"

int AppMajor() { return WARDLOCK_VERSION_MAJOR; }
int AppMinor() { return WARDLOCK_VERSION_MINOR; }
int AppRevision() { return WARDLOCK_VERSION_REVISION; }
const char* AppVersionText() { return WARDLOCK_VERSION; }
