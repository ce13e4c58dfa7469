#pragma once

#include "DateTime.h"

#include <QString>

#include <optional>

/// What the store says about downloads. A reader that was empty leaves no trace in it. These
/// routines use gConn, read few rows however many the store holds, and throw RunTimeError.

struct StoredDownload {
    QString readerId;
    DateTime time;
    int touches = 0;
};
/// The download that was stored last; nothing if the store holds no touch.
std::optional<StoredDownload> LastDownload();

/// When the touches were stored that the reader recorded last before `moment`; nothing if there are
/// none.
std::optional<DateTime> DownloadBefore(const QString& readerId, DateTime moment);
