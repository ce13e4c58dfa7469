#include "EventArchive.h"

#include "Connection.h"
#include "FileReplacement.h"
#include "Format.h"
#include "OutputFile.h"
#include "Rows.h"
#include "SqlDate.h"
#include "mTranslations.h"

#include <QDir>

#include <array>

namespace {

constexpr qsizetype WrittenAtOnce = qsizetype{64} * 1024;

const QString InRange =
    QStringLiteral("FROM tblEvents WHERE (dtDateTime >= ?) AND (dtDateTime <= ?)");
/// The same rows. The "+" keeps the engine from using the index on the time: it would have to sort
/// the rows into the order in which they were stored, all of them in memory. So it reads the whole
/// table in that order instead.
const QString InRangeAsStored =
    QStringLiteral("FROM tblEvents WHERE (+dtDateTime >= ?) AND (+dtDateTime <= ?)");

Values BoundsOf(const ArchiveRange& range) {
    return {range.StartDate.DatePart() + DateTime::FromTime(0, 0, 1),
            range.EndDate.DatePart() + DateTime::FromTime(23, 59, 59)};
}

/// The file with its lines, written in large pieces. Every failure throws FileError.
class ArchiveFile {
public:
    explicit ArchiveFile(const QString& path) : m_file(path, OutputFile::Older::Keep) {
        m_buffer.reserve(WrittenAtOnce + WrittenAtOnce / 4);
        m_buffer += "\xEF\xBB\xBF"; // so that spreadsheets show the names correctly
    }

    void AddField(const QByteArray& text) {
        m_buffer += m_lineBegins ? "\"" : ",\"";
        m_buffer += text;
        m_buffer += '"';
        m_lineBegins = false;
    }
    void EndLine() {
        m_buffer += "\r\n";
        m_lineBegins = true;
        if (m_buffer.size() >= WrittenAtOnce)
            WriteBuffer();
    }
    /// Complete and on the disk, but without its name.
    void Finish() {
        WriteBuffer();
        m_file.Finish();
    }
    void Commit() { m_file.Commit(); }

private:
    void WriteBuffer() {
        m_file.Write(m_buffer);
        m_buffer.resize(0); // keeps the memory
    }

    OutputFile m_file;
    QByteArray m_buffer;
    bool m_lineBegins = true;
};

/// Dates and times of touches. Most touches are on the day of the one before, and a day has 1440
/// minutes.
class MomentTexts {
public:
    const QByteArray& DateOf(DateTime moment) {
        if (m_dayText.isEmpty() || moment.DatePart() != m_day) {
            m_day = moment.DatePart();
            m_dayText = SqlDateFmt(m_day).toUtf8();
        }
        return m_dayText;
    }
    const QByteArray& TimeOf(DateTime moment) {
        QByteArray& text =
            m_minutes[static_cast<std::size_t>(moment.TimePart().Milliseconds() / 60'000)];
        if (text.isEmpty())
            text = Format(moment, QStringLiteral("Hh:Nn")).toUtf8();
        return text;
    }

private:
    DateTime m_day;
    QByteArray m_dayText;
    std::array<QByteArray, std::size_t{24} * 60> m_minutes;
};

void WriteHeader(ArchiveFile& file) {
    for (const char* name :
         {QT_TR_NOOP("Date"), QT_TR_NOOP("Time"), QT_TR_NOOP("Button ID"), QT_TR_NOOP("Type"),
          QT_TR_NOOP("Group Name"), QT_TR_NOOP("Button Name"), QT_TR_NOOP("Reader ID")})
        file.AddField(Translate(name).toUtf8());
    file.EndLine();
}

/// `written` counts the events while they are written.
void WriteEvents(ArchiveFile& file, const Values& bounds, int& written) {
    Recordset rows; // a server cursor: one row at a time
    rows.Open(QStringLiteral("SELECT dtDLDateTime, tPipeID, dtDateTime, tButtonCode, tButtonName, "
                             "tButtonDesc, wGroupType, tGroupName, tGroupDesc ") +
                  InRangeAsStored,
              bounds, *gConn, adOpenForwardOnly, adLockReadOnly);
    const int moment = rows.Column(u"dtDateTime"), code = rows.Column(u"tButtonCode"),
              type = rows.Column(u"wGroupType"), group = rows.Column(u"tGroupName"),
              name = rows.Column(u"tButtonName"), reader = rows.Column(u"tPipeID");
    const QHash<QString, QByteArray> types = {
        {QString::number(UserGroup), Translate("User").toUtf8()},
        {QString::number(SiteGroup), Translate("Location").toUtf8()},
        {QString::number(EventBookGroup), Translate("Event").toUtf8()}};
    MomentTexts texts;
    for (; !rows.Eof(); rows.MoveNext(), ++written) {
        const DateTime touched = rows.FieldAt(moment).Date();
        file.AddField(texts.DateOf(touched));
        file.AddField(texts.TimeOf(touched));
        file.AddField(rows.FieldAt(code).Text().toUtf8());
        file.AddField(types.value(rows.FieldAt(type).Text()));
        file.AddField(rows.FieldAt(group).Text().toUtf8());
        file.AddField(rows.FieldAt(name).Text().toUtf8());
        file.AddField(rows.FieldAt(reader).Text().toUtf8());
        file.EndLine();
    }
}

std::optional<int> Archive(const ArchiveRange& range, const QString& path,
                           const WorkProgress& progress) {
    ArchiveFile file(path);
    Transaction transaction(*gConn);
    const Values bounds = BoundsOf(range);
    int all = CountArchived(range), done = 0, written = 0, deleted = 0;
    bool cancelled = false;
    try {
        const Supervision supervision(*gConn, [&] {
            cancelled = !progress(done, all);
            return !cancelled;
        });
        WriteHeader(file);
        WriteEvents(file, bounds, done);
        file.Finish();
        written = std::exchange(done, 0);
        all = 0; // the engine does not say how many rows it has deleted so far
        deleted = gConn->Execute(QStringLiteral("DELETE * ") + InRange, bounds);
    } catch (const RunTimeError&) {
        if (cancelled)
            return {};
        throw;
    }
    if (deleted != written)
        throw RunTimeError(
            RunTimeErrorNumber::StoreEngine,
            FormatStr(Translate("%0:s events were written, but the database deleted %1:s. Nothing "
                                "was archived."),
                      {QString::number(written), QString::number(deleted)}));
    file.Commit();
    try {
        transaction.Commit();
    } catch (const RunTimeError& error) {
        throw RunTimeError(
            error.Number(),
            FormatStr(Translate("The events were written to %0:s, but they are still "
                                "in the database: %1:s"),
                      {QDir::toNativeSeparators(path), CauseOf(error, gDatabasePath)}));
    }
    return written;
}

} // namespace

int CountArchived(const ArchiveRange& range) { return CountOf(InRange, BoundsOf(range)); }

QString ArchiveFileName(const ArchiveRange& range) {
    return QStringLiteral("Archive") + SqlDateFmt(range.StartDate) + QStringLiteral("_to_") +
           SqlDateFmt(range.EndDate) + QStringLiteral(".csv");
}

std::optional<int> ArchiveEventsOf(const ArchiveRange& range, const QString& path,
                                   const WorkProgress& progress) {
    try {
        return Archive(range, path, progress);
    } catch (const FileError& error) {
        throw ArchiveNotSaved(error.Number(),
                              Translate("File Save Error: Archive Not Saved.  Please Try again.") +
                                  u'\n' + CauseOf(error, gDatabasePath));
    } catch (const RunTimeError& error) {
        throw ExplainedError(error.Number(), CauseOf(error, gDatabasePath));
    }
}

QString ArchivedText(int events, const QString& path) {
    return Translate("Events Archived Successfully") + u'\n' + Translate("Number of Events =") +
           u' ' + QString::number(events) + u'\n' + Translate("FileName = ") + u' ' +
           QDir::toNativeSeparators(path);
}
