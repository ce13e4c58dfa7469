#pragma once

#include <QLoggingCategory>

/// The trace channel of the reader link, for developers.
/// QT_LOGGING_RULES="wardlock.trace.debug=true" switches it on. Nothing depends on it.
Q_DECLARE_LOGGING_CATEGORY(traceLog)

inline void Trace(const QString& text) { qCDebug(traceLog).noquote() << text; }
