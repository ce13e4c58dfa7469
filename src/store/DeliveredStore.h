#pragma once

#include <QString>

enum class StoreContent {
    Empty, ///< the tables and no row, as the store is delivered
    Demo   ///< the demonstration installation (DemoStore)
};

/// Makes a store file. It appears under its name only when it is complete, and never in the place
/// of another file. Throws RunTimeError.
void MakeDeliveredStore(const QString& path, StoreContent content);
