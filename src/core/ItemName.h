#pragma once

#include <QString>
#include <QStringList>

/// Why a name cannot be given to a reader or a button, as the message to show; empty where it can.
/// `name` is trimmed already; `existingNames` are compared exactly.
QString ItemNameFault(const QString& name, const QStringList& existingNames);
