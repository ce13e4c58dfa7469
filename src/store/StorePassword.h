#pragma once

#include <QString>

/// The store's password, handed to every routine that opens the store.
inline const QString StorePassword = QStringLiteral("kelp7734");
