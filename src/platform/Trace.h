#pragma once

#include <QLoggingCategory>

/// The developer's trace channel of the reader link. Silent, unless switched on by
/// QT_LOGGING_RULES="wardlock.trace.debug=true"; nothing depends on it.
Q_DECLARE_LOGGING_CATEGORY(traceLog)

inline void Trace(const QString& text) { qCDebug(traceLog).noquote() << text; }
