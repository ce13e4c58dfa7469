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

/// True if the store can be opened. If not, says so to the operator, with the cause.
bool ADOTest(const QString& path, const QString& password);

/// Opens gConn; true if it is open. If not, says so to the operator, with the cause.
bool ADOInit(const QString& path, const QString& password);

/// Checks the store and rewrites it without its waste: a copy into the temporary file, which then
/// atomically takes the store's place. For a store that is a symbolic link the copy is made beside
/// the link's target. A failure leaves the store as it was and is only logged; gStoreDamaged says
/// afterwards whether the store's own content was the cause.
void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password);

/// Removes the copy that a killed compaction has left. The store must be open in gConn, for only
/// then is it certain that nobody is compacting it.
void RemoveLeftoverCopy(const QString& tempPath);

/// Checks the store that is open in gConn, without compacting it, and sets gStoreDamaged.
void CheckStore();

/// If gStoreDamaged: says so to the operator, and what to do.
void TellOfDamage();

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
