#pragma once

#include <QString>

/// True if gConn has a table of exactly this name. Throws RunTimeError.
bool TableExists(const QString& name);
