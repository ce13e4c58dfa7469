#include "Downloads.h"

#include "Rows.h"

std::optional<StoredDownload> LastDownload() {
    Rows last(QStringLiteral("SELECT ID, tPipeID, dtDLDateTime FROM tblEvents "
                             "WHERE ID = (SELECT MAX(ID) FROM tblEvents)"));
    if (!last.Any())
        return {};
    const DateTime time = last.Date(u"dtDLDateTime");
    // The rows of a download are stored one after the other.
    const int touches =
        CountOf(QStringLiteral("FROM tblEvents WHERE ID > (SELECT COALESCE(MAX(ID), 0) "
                               "FROM tblEvents WHERE dtDLDateTime <> ?)"),
                {time});
    return StoredDownload{last.Text(u"tPipeID"), time, touches};
}

std::optional<DateTime> DownloadBefore(const QString& readerId, DateTime moment) {
    Rows rows(QStringLiteral("SELECT dtDLDateTime FROM tblEvents WHERE tPipeID = ? AND dtDateTime "
                             "= (SELECT MAX(dtDateTime) FROM tblEvents WHERE tPipeID = ? AND "
                             "dtDateTime < ?)"),
              {readerId, readerId, moment});
    return rows.Any() ? std::optional(rows.Date(u"dtDLDateTime")) : std::nullopt;
}
