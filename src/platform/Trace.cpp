#include "Trace.h"

Q_LOGGING_CATEGORY(traceLog, "wardlock.trace", QtWarningMsg)
