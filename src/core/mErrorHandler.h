#pragma once

#include "RunTimeError.h"

#include <QString>

#include <new>
#include <type_traits>

/// Failures: the log and the error dialog, and the one handler that a procedure carries.

/// Appends one line to "error.log" in the application folder: date and time, a tab, the message.
/// Where that fails, a box tells of it and the caller goes on.
void WriteLog(const QString& message);

enum class ErrorShow { LogOnly, Dialog };

/// Logs a failure under the procedure's label and, if asked, shows it in a box whose Cancel ends
/// the program at once, with no clean-up.
void ReportError(const QString& procedure, const RunTimeError& error,
                 ErrorShow show = ErrorShow::Dialog);

/// A box and no line in the log: "Error 13 in procedure SqlDateFmt: ...". Some store code tells its
/// failures so.
void ShowProcedureError(const QString& procedure, const RunTimeError& error);

/// How the program ends at once. Tests put something else in its place.
using EndProgramRoutine = void (*)();
void InstallEndProgram(EndProgramRoutine routine);
void EndProgram();

/// Runs the body and hands what it throws to `handle`. Gives the body's result, or an empty one
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

/// A procedure's body with its handler: a failure is reported under the label and does not leave
/// the procedure.
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

/// The same, told by ShowProcedureError.
template <typename Body>
auto GuardedWithBox(const char* procedure, Body&& body) {
    return Trapped(body, [&](const RunTimeError& error) {
        ShowProcedureError(QString::fromUtf8(procedure), error);
    });
}

/// A body whose failure is expected and means nothing, such as dropping a table that is not there.
/// True if it succeeded.
template <typename Body>
bool IgnoringErrors(Body&& body) {
    bool failed = false;
    Trapped(body, [&](const RunTimeError&) { failed = true; });
    return !failed;
}
