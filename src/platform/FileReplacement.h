#pragma once

#include <QString>

/// Files whose content must survive a killed program and a power cut. Everything that fails throws
/// RunTimeError with the file's name and the cause; its number is DiskFull, PermissionDenied or
/// FileNotFound.

/// Writes a file's data and its folder entry through to the disk.
void SyncFile(const QString& path);
/// Atomically puts `from` in the place of `to`, which must lie in the same folder. `from` is
/// synced first. At every moment `to` is the complete old or the complete new file.
void ReplaceFile(const QString& from, const QString& to);
/// The same where `to` must not be there yet: an existing file is never replaced.
void PlaceNewFile(const QString& from, const QString& to);
/// Gives a file the owner, group and mode of another as far as the system allows. A group that it
/// cannot have gets no rights.
void KeepOwnerAndMode(const QString& from, const QString& to);

/// For a failed call of the operating system, from its present error (errno).
[[noreturn]] void ThrowFileError(const QString& path);
