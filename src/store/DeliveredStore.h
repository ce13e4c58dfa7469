#pragma once

#include <QString>

enum class StoreContent {
    Empty, ///< the tables without rows, as delivered
    Demo   ///< the demonstration installation (DemoStore)
};

/// Makes a store file. It gets its name only when it is complete, and never replaces another file.
/// Throws RunTimeError.
void MakeDeliveredStore(const QString& path, StoreContent content);
