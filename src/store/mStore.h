#pragma once

#include "DateTime.h"
#include "StorePassword.h"

#include <QString>

/// The store: how it is tested, compacted and opened, and the helpers that look at or change its
/// structure. All but the first four work on the shared connection gConn.

/// The text that stands before a path in a connection text.
inline const QString ProviderText = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=");

/// The store as a connection text.
QString ConnectionText(const QString& path, const QString& password);

/// True if the store can be opened. Tells the operator if not.
bool ADOTest(const QString& path, const QString& password);

/// Opens gConn; true if it is open. Tells the operator if not.
bool ADOInit(const QString& path, const QString& password);

/// Rewrites the store without its waste: a copy into the temporary file, which then atomically
/// takes the store's place. A failure leaves the store as it was and says nothing.
void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password);

/// A date, or date and time, as SQL text; to stand between "#" signs.
QString SqlDateFmt(DateTime date);
QString SqlDateTimeFmt(DateTime date);

bool TableExists(const QString& name);

/// Makes tblReportTemp if it is not there, and empties it.
bool InitRptTmp();
bool CreateTblReportTemp(const QString& name);

int CountReaders();
int CountTours();

/// True if the reader has been taught, that is, stands in tblReaders. Throws RunTimeError.
bool IsKnownReader(const QString& readerId);
