#pragma once

#include "RunTimeError.h"

#include <QString>

#include <new>
#include <type_traits>

/// Failures: the log, the error dialog, and the handlers that catch RunTimeError at the doors of
/// the program: slots, timers, and the entry points that have a label in the log. Everything
/// further inside throws or returns.

/// Appends one line to "error.log" in the application folder: date and time, a tab, the message. If
/// that fails, a box says so and the caller goes on.
void WriteLog(const QString& message);

enum class ErrorShow { LogOnly, Dialog };

/// Logs a failure under the procedure's label. If asked, also shows it in a box whose Cancel button
/// ends the program at once, without cleaning up.
void ReportError(const QString& procedure, const RunTimeError& error,
                 ErrorShow show = ErrorShow::Dialog);

/// Shows a failure in a box, without a line in the log: "Error 13 in procedure SqlDateFmt: ...".
/// Some store code reports its failures this way.
void ShowProcedureError(const QString& procedure, const RunTimeError& error);

/// Ends the program at once, without cleaning up.
[[noreturn]] void EndProgram();

/// Runs the body and passes what it throws to `handle`. Returns the body's result, or an empty one
/// after a failure.
template <typename Body, typename Handle>
auto Trapped(Body&& body, Handle&& handle) -> std::invoke_result_t<Body> {
    try {
        return body();
    } catch (const RunTimeError& error) {
        handle(error);
    } catch (const std::bad_alloc&) {
        handle(RunTimeError(7, QStringLiteral("Out of memory")));
    }
    if constexpr (!std::is_void_v<std::invoke_result_t<Body>>)
        return {};
}

/// Runs a procedure's body. A failure is reported under the label and goes no further.
template <typename Body>
auto Guarded(const char* label, ErrorShow show, Body&& body) {
    return Trapped(body, [&](const RunTimeError& error) {
        ReportError(QString::fromUtf8(label), error, show);
    });
}
template <typename Body>
auto Guarded(const char* label, Body&& body) {
    return Guarded(label, ErrorShow::LogOnly, body);
}

/// The same, reported by ShowProcedureError.
template <typename Body>
auto GuardedWithBox(const char* procedure, Body&& body) {
    return Trapped(body, [&](const RunTimeError& error) {
        ShowProcedureError(QString::fromUtf8(procedure), error);
    });
}

/// Runs a body whose failure is expected and harmless, such as dropping a table that is not there.
/// True if it succeeded.
template <typename Body>
bool IgnoringErrors(Body&& body) {
    bool failed = false;
    Trapped(body, [&](const RunTimeError&) { failed = true; });
    return !failed;
}
