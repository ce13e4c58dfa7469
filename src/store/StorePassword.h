#pragma once

#include <QString>

/// The store's password, passed to every routine that opens the store.
inline const QString StorePassword = QStringLiteral("kelp7734");
