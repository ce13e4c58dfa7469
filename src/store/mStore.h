#pragma once

#include "StorePassword.h"

#include <QString>

class Connection;

/// Opens the store.

/// What precedes the path in a connection text.
inline const QString ProviderText = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=");

/// The store as a connection text.
QString ConnectionText(const QString& path, const QString& password);

/// Opens a store. A message says if a journal beside it did not belong to it. Throws
/// RunTimeError.
void OpenStore(Connection& connection, const QString& path, const QString& password);

/// Tells the operator that the store cannot be opened, and why.
void TellOfUnopenedStore(const QString& path, const QString& cause);

/// True if the store can be opened. If not, tells the operator why.
bool ADOTest(const QString& path, const QString& password);

/// Opens gConn. True if it is open; if not, tells the operator why.
bool ADOInit(const QString& path, const QString& password);
