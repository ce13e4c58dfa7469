#pragma once

#include <QString>

#include <optional>

/// What the store knows of a reader. Throws RunTimeError.

/// The description it was given; nothing if the reader has never been taught.
std::optional<QString> ReaderDescription(const QString& readerId);

/// The reader as it is shown: "4B5831A7 - Night shift", or its identifier alone if it has never
/// been taught.
QString ReaderText(const QString& readerId);
