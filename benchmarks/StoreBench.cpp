// Compares the store's code with the bare engine: storing a download, reading many rows, reports in
// a large store, the archive, compaction.

#include "Connection.h"
#include "DataReport.h"
#include "DatabaseReportBuilder.h"
#include "Downloads.h"
#include "DueTours.h"
#include "Engine.h"
#include "EventArchive.h"
#include "Figures.h"
#include "FileReplacement.h"
#include "IncidentReportBuilder.h"
#include "IncidentSitesBuilder.h"
#include "MemoryImage.h"
#include "Recordset.h"
#include "ReportViewer.h"
#include "Schema.h"
#include "StoreTouches.h"
#include "StoreUpkeep.h"
#include "TourReportBuilder.h"
#include "mStore.h"
#include "mWardlock.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <functional>
#include <random>
#include <sqlcipher/sqlite3.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int EventCount = 1'000'000, FewEvents = 10'000, KnownButtons = 500;
const QString Reader = QStringLiteral("4B5831A7");
const DateTime TourDay = DateTime::FromQt(QDate(2026, 6, 15));

using Step = std::function<void()>;
struct Side {
    Step prepare; ///< not timed
    Step run;
};

/// Measures both in each round, and changes their order from round to round.
void Compare(Figures& figures, const char* name, int rounds, double limit, const Side& ours,
             const Side& baseline) {
    std::vector<double> oursTimes, baselineTimes;
    const auto time = [](const Side& side, std::vector<double>& times) {
        side.prepare();
        ::sync(); // do not measure writes left over from the previous step
        QElapsedTimer timer;
        timer.start();
        side.run();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    };
    for (int round = 0; round < rounds; ++round) {
        if (round % 2 == 0)
            time(ours, oursTimes);
        time(baseline, baselineTimes);
        if (round % 2 != 0)
            time(ours, oursTimes);
    }
    const auto median = [](std::vector<double>& times) {
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    };
    figures.Report(name, "ms", median(oursTimes), median(baselineTimes), limit);
}

/// The engine with the same settings, without our code around it.
class Bare {
public:
    explicit Bare(const QString& path) {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        const QByteArray key = StorePassword.toUtf8();
        sqlite3_key(m_database, key.constData(), static_cast<int>(key.size()));
        Run("PRAGMA cipher_default_compatibility = 3");
        Run("PRAGMA cipher_compatibility = 3");
        Run("PRAGMA synchronous = EXTRA");
    }
    ~Bare() { sqlite3_close(m_database); }
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    void Run(const char* sql) {
        if (sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("%s: %s", sql, sqlite3_errmsg(m_database));
    }
    sqlite3_stmt* Prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr) != SQLITE_OK)
            qFatal("%s: %s", sql, sqlite3_errmsg(m_database));
        return statement;
    }

private:
    sqlite3* m_database = nullptr;
};

std::string TextOf(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text ? std::string(text,
                              static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                : std::string();
}

void BindText(sqlite3_stmt* statement, int position, const std::string& text) {
    sqlite3_bind_text(statement, position, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
}

const char* const InsertEvent =
    "INSERT INTO tblEvents (dtDLDateTime, dtDateTime, tButtonCode, tButtonName, tButtonDesc, "
    "wGroupType, tGroupName, tGroupDesc, tPipeID) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)";

struct Event {
    double downloaded, date;
    std::string code, name, description;
    int type;
    std::string group, groupDescription, reader;
};

void Insert(sqlite3_stmt* insert, const Event& event) {
    sqlite3_bind_double(insert, 1, event.downloaded);
    sqlite3_bind_double(insert, 2, event.date);
    BindText(insert, 3, event.code);
    BindText(insert, 4, event.name);
    BindText(insert, 5, event.description);
    sqlite3_bind_int(insert, 6, event.type);
    BindText(insert, 7, event.group);
    BindText(insert, 8, event.groupDescription);
    BindText(insert, 9, event.reader);
    if (sqlite3_step(insert) != SQLITE_DONE)
        qFatal("a row cannot be written");
    sqlite3_reset(insert);
}

std::string CodeOf(int number) {
    return QString::number(0x1A4000 + number * 7, 16).toUpper().toStdString();
}

/// Makes a store with 500 buttons in ten sites, a tour and its touches on one day. Other touches,
/// over three years and ten readers, bring the number of events to `events`.
void MakeStore(const QString& path, int events) {
    CreateStoreFile(path, StorePassword);
    {
        Connection connection;
        connection.Open(ConnectionText(path, StorePassword));
        CreateTables(connection);
    }
    Bare bare(path);
    bare.Run("BEGIN");
    for (int site = 1; site <= 10; ++site)
        bare.Run("INSERT INTO tblListItems (wType, tName, tDesc) VALUES (1, 'Harbour Warehouse', "
                 "'Pier 4, north side')");
    for (int button = 0; button < KnownButtons; ++button)
        bare.Run(
            ("INSERT INTO tblButtons (lParentID, tButtonCode, tButtonName, tButtonDesc) VALUES (" +
             std::to_string(button % 10 + 1) + ", '" + CodeOf(button) + "', 'Loading bay " +
             std::to_string(button) + "', 'Beside the roller door')")
                .c_str());
    bare.Run("INSERT INTO tblTours VALUES (1, 'Night round', 'Harbour', 5, 0.0)");
    for (int point = 1; point <= 20; ++point)
        bare.Run(("INSERT INTO tblTourPoints (lParentID, lIndex, dtTime, tButtonCode) VALUES (1, " +
                  std::to_string(point) + ", 10.0/1440, '" + CodeOf(point) + "')")
                     .c_str());
    sqlite3_stmt* insert = bare.Prepare(InsertEvent);
    const auto write = [&](DateTime date, int button, const std::string& reader) {
        Insert(insert, {std::floor(date.ToStore()) + 1.25, date.ToStore(), CodeOf(button),
                        "Loading bay " + std::to_string(button), "Beside the roller door", 1,
                        "Harbour Warehouse", "Pier 4, north side", reader});
    };
    for (int touch = 1; touch <= 60; ++touch)
        write(TourDay + DateTime::FromTime(0, touch * 3 + 5), touch % 22, Reader.toStdString());
    const double days = 3 * 365.0;
    for (int event = 60; event < events; ++event) {
        DateTime date = TourDay - DateTime::FromStore(days * (events - event) / events + 1);
        date = DateTime::FromMilliseconds(date.Milliseconds() / 60'000 * 60'000);
        write(date, event % KnownButtons, "4B5831A" + std::to_string(event % 10));
    }
    sqlite3_finalize(insert);
    bare.Run("COMMIT");
}

/// A memory image with this many touches. A new hour begins every 40 touches; every 50th code is
/// unknown.
colPackets MakeImage(int touches) {
    QByteArray records;
    const auto add = [&](int b0, int b1, int b2, int b3) {
        for (const int byte : {b0, b1, b2, b3})
            records += static_cast<char>(byte);
    };
    std::mt19937 random(1);
    for (int touch = 0; touch < touches; ++touch) {
        const int hour = touch / 40;
        const int day = 9600 + hour / 24;
        if (touch % 40 == 0)
            add(hour % 24, day & 0xff, day >> 8, Wire::MarkerByte);
        const int code = touch % 50 == 0 ? 0xEE0000 + touch % 20
                                         : 0x1A4000 + static_cast<int>(random() % KnownButtons) * 7;
        add(code & 0xff, code >> 8 & 0xff, code >> 16, touch % 40);
    }
    colPackets packets;
    for (qsizetype at = 0; at < records.size();) {
        const bool first = packets.Count() == 0;
        const int start = first ? Wire::FirstRecordOffset : Wire::RecordOffset;
        const qsizetype bytes =
            qsizetype{first ? Wire::FirstFrameRecords : Wire::FrameRecords} * Wire::RecordBytes;
        cPacket& packet = packets.Add(QByteArray(start, '\x01') +
                                      records.mid(at, bytes).leftJustified(bytes, '\0') + '\x01');
        packet.Tag = packets.Count();
        at += bytes;
    }
    return packets;
}

void BenchDownload(Figures& figures, const QTemporaryDir& folder) {
    const QString path = folder.filePath("download.mdb"), barePath = folder.filePath("bare.mdb");
    MakeStore(path, 60);
    QFile::copy(path, barePath);
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    Bare bare(barePath);
    constexpr int touchCount = 32'000;
    const colPackets image = MakeImage(touchCount);
    ButtonDirectory directory;
    std::vector<std::pair<std::string, double>> touches;
    for (const cRawButton& touch : DecodeImage(image, directory))
        touches.emplace_back(touch.ButtonCode.toStdString(), touch.DateAndTime.ToStore());

    const Side ours{[] { gConn->Execute("DELETE * FROM tblEvents"); },
                    [&] {
                        ButtonDirectory fresh;
                        int stored = 0;
                        StoreTouches(DecodeImage(image, fresh), Reader, stored);
                    }};
    const Side baseline{
        [&] { bare.Run("DELETE FROM tblEvents"); },
        [&] {
            sqlite3_stmt* find = bare.Prepare(
                "SELECT tblButtons.tButtonCode, tblListItems.wType, tblButtons.tButtonName, "
                "tblButtons.tButtonDesc, tblListItems.tName, tblListItems.tDesc FROM tblButtons "
                "INNER "
                "JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID WHERE tButtonCode = "
                "?");
            sqlite3_stmt* insert = bare.Prepare(InsertEvent);
            bare.Run("BEGIN IMMEDIATE");
            for (const auto& [code, date] : touches) {
                Event event{46400.0, date, code, "Unknown", {}, 0, {}, {}, "4B5831A7"};
                BindText(find, 1, code);
                if (sqlite3_step(find) == SQLITE_ROW)
                    event = {46400.0,
                             date,
                             code,
                             TextOf(find, 2),
                             TextOf(find, 3),
                             sqlite3_column_int(find, 1),
                             TextOf(find, 4),
                             TextOf(find, 5),
                             "4B5831A7"};
                sqlite3_reset(find);
                Insert(insert, event);
            }
            bare.Run("COMMIT");
            sqlite3_finalize(find);
            sqlite3_finalize(insert);
        }};
    Compare(figures, "store one download of 32,000 touches", 7, 2.0, ours, baseline);
    Recordset stored;
    stored.CursorLocation = adUseClient;
    stored.Open("SELECT ID FROM tblEvents WHERE tGroupName = 'Harbour Warehouse'", *gConn);
    if (stored.RecordCount() != touchCount - touchCount / 50)
        qFatal("%d known touches were stored", stored.RecordCount());
    gConn.reset();
}

/// Everything that the home page reads, on the morning after the busiest day.
void BenchHome(Figures& figures, const QString& path) {
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    constexpr int rounds = 5;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        const DateTime morning = TourDay + DateTime::FromTime(12, 0);
        if (!LastDownload() || DueTours(morning - DateTime::FromDays(1), morning).isEmpty() ||
            !DownloadBefore(Reader, TourDay))
            qFatal("the home page is empty");
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    figures.Report("what the home page reads of 1,000,000 events", "ms", times[rounds / 2], 200.0,
                   1.0);
    gConn.reset();
}

/// What the home page reads of a busy office, and what is read to offer reports after the first
/// download of a reader: 60 tours of 15 points, six
/// at each of ten sites, of which each of 20 readers walks three every day.
void BenchOffers(Figures& figures, const QString& path) {
    MakeStore(path, 60);
    constexpr int tours = 60, points = 15, readers = 20, toursOfReader = tours / readers;
    constexpr int days = EventCount / (tours * points);
    const auto codeOf = [](int tour, int point) { return CodeOf(tour % 10 * points + point); };
    const auto startOf = [](int tour) { return DateTime::FromTime(tour * 7 % 24, 0); };
    {
        Bare bare(path);
        bare.Run("BEGIN");
        bare.Run("DELETE FROM tblTours");
        bare.Run("DELETE FROM tblTourPoints");
        sqlite3_stmt* insert = bare.Prepare(InsertEvent);
        for (int tour = 0; tour < tours; ++tour) {
            const std::string id = std::to_string(tour + 1);
            bare.Run(("INSERT INTO tblTours VALUES (" + id + ", 'Round " + id + "', '', 5, " +
                      std::to_string(startOf(tour).ToStore()) + ")")
                         .c_str());
            for (int point = 0; point < points; ++point)
                bare.Run(("INSERT INTO tblTourPoints (lParentID, lIndex, dtTime, tButtonCode) "
                          "VALUES (" +
                          id + ", " + std::to_string(point) + ", 10.0/1440, '" +
                          codeOf(tour, point) + "')")
                             .c_str());
        }
        for (int day = days; day > 0; --day)
            for (int tour = 0; tour < tours; ++tour)
                for (int point = 0; point < points; ++point) {
                    const DateTime date = TourDay - DateTime::FromDays(day) + startOf(tour) +
                                          DateTime::FromTime(0, 10 * (point + 1) + day % 3);
                    Insert(insert, {TourDay.ToStore(), date.ToStore(), codeOf(tour, point),
                                    "Loading bay", "", 1, "Harbour Warehouse", "",
                                    "500000" + std::to_string(10 + tour / toursOfReader)});
                }
        sqlite3_finalize(insert);
        bare.Run("COMMIT");
    }
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    QElapsedTimer timer;
    timer.start();
    if (DueTours(TourDay - DateTime::FromDays(1), TourDay).size() < tours)
        qFatal("tours are not listed");
    const double night = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    figures.Report("60 tours of the last 24 hours, 1,000,000 events", "ms", night, 200.0, 1.0);
    timer.restart();
    const auto due = DueToursOfReader("50000010", TourDay - DateTime::FromDays(31), TourDay);
    const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    if (due.size() < 31 * toursOfReader - 2)
        qFatal("%d tours are offered", static_cast<int>(due.size()));
    figures.Report("the offers after a first download, 1,000,000 events", "ms", time, 300.0, 1.0);
    gConn.reset();
}

struct PlainRow {
    qint64 id;
    double downloaded;
    std::string reader;
    double date;
    std::string code, name, description;
    qint64 type;
    std::string group, groupDescription;
};

void BenchWalk(Figures& figures, const QString& path) {
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    double sum = 0, bareSum = 0;
    const Side ours{
        [] {},
        [&] {
            Recordset rows;
            rows.CursorLocation = adUseClient;
            rows.Open("SELECT * FROM tblEvents", *gConn);
            for (sum = 0; !rows.Eof(); rows.MoveNext())
                sum += static_cast<double>(rows.Number(u"ID")) +
                       rows.Fields(u"dtDLDateTime").Real() +
                       static_cast<double>(rows.Text(u"tPipeID").size()) +
                       rows.Fields(u"dtDateTime").Real() +
                       static_cast<double>(
                           rows.Text(u"tButtonCode").size() + rows.Text(u"tButtonName").size() +
                           rows.Text(u"tButtonDesc").size() + rows.Number(u"wGroupType") +
                           rows.Text(u"tGroupName").size() + rows.Text(u"tGroupDesc").size());
        }};
    const Side baseline{
        [] {},
        [&] {
            sqlite3_stmt* walk = nullptr;
            sqlite3_prepare_v2(gConn->OpenEngine()->Handle(), "SELECT * FROM tblEvents", -1, &walk,
                               nullptr);
            std::vector<PlainRow> rows;
            while (sqlite3_step(walk) == SQLITE_ROW)
                rows.push_back({sqlite3_column_int64(walk, 0), sqlite3_column_double(walk, 1),
                                TextOf(walk, 2), sqlite3_column_double(walk, 3), TextOf(walk, 4),
                                TextOf(walk, 5), TextOf(walk, 6), sqlite3_column_int64(walk, 7),
                                TextOf(walk, 8), TextOf(walk, 9)});
            sqlite3_finalize(walk);
            bareSum = 0;
            for (const PlainRow& row : rows)
                bareSum +=
                    static_cast<double>(row.id) + row.downloaded +
                    static_cast<double>(row.reader.size()) + row.date +
                    static_cast<double>(row.code.size() + row.name.size() + row.description.size() +
                                        row.group.size() + row.groupDescription.size()) +
                    static_cast<double>(row.type);
        }};
    Compare(figures, "walk a recordset of 1,000,000 events", 5, 2.5, ours, baseline);
    if (sum != bareSum)
        qFatal("the walks saw different values");
    gConn.reset();
}

qint64 ResidentBytes() {
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

/// Reports the memory that `measure` gives, and its baseline, in bytes. It runs in a child process,
/// so that memory freed by earlier benchmarks does not hide what is used.
void CompareMemory(Figures& figures, const char* name,
                   const std::function<std::pair<double, double>()>& measure) {
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("no pipe");
    std::pair<double, double> result;
    if (::fork() == 0) {
        result = measure();
        (void)!::write(ends[1], &result, sizeof result);
        ::_exit(0);
    }
    if (::read(ends[0], &result, sizeof result) != sizeof result)
        qFatal("memory could not be measured");
    ::wait(nullptr);
    figures.Report(name, "MB", result.first / 1e6, result.second / 1e6, 3.0);
}

void BenchMemory(Figures& figures, const QString& path) {
    CompareMemory(figures, "the memory of a recordset of 1,000,000 events", [&] {
        if (!ADOInit(path, StorePassword))
            ::_exit(1);
        const qint64 before = ResidentBytes();
        Recordset rows;
        rows.CursorLocation = adUseClient;
        rows.Open("SELECT * FROM tblEvents", *gConn);
        const auto taken = static_cast<double>(ResidentBytes() - before);
        const auto counted = static_cast<double>(rows.MemoryBytes());
        if (counted < taken * 0.9 || counted > taken * 1.1)
            qFatal("%.0f bytes counted, %.0f taken", counted, taken);
        // The baseline: dates take eight bytes, the key four, the type one, a text its length.
        double bare = 0;
        for (; !rows.Eof(); rows.MoveNext()) {
            bare += 8 + 8 + 4 + 1;
            for (const auto* name : {u"tPipeID", u"tButtonCode", u"tButtonName", u"tButtonDesc",
                                     u"tGroupName", u"tGroupDesc"})
                bare += static_cast<double>(rows.Text(name).toUtf8().size());
        }
        return std::pair(taken, bare);
    });
}

class NoViewer : public ReportViewer {
public:
    void Show(DataReport&) override { ++Shown; }
    int Shown = 0;
};

void BenchTour(Figures& figures, const QString& path, const QString& fewPath) {
    NoViewer viewer;
    const auto side = [&](const QString& store) {
        const Step build = [&] { BuildTourReport({1, TourDay, Reader, {}, true, true}, viewer); };
        return Side{[=] {
                        gConn.reset();
                        if (!ADOInit(store, StorePassword))
                            qFatal("the store does not open");
                        build();
                    },
                    [=] {
                        for (int report = 0; report < 20; ++report)
                            build();
                    }};
    };
    Compare(figures, "20 tour reports in 1,000,000 events or 10,000", 9, 1.5, side(path),
            side(fewPath));
    if (viewer.Shown != 2 * 9 * 21)
        qFatal("%d reports were shown", viewer.Shown);
    gConn.reset();
}

/// What the wait window and the command line do, without showing anything.
void BuildDatabase(ReportViewer& viewer) {
    const auto copy = [](const EventQuery& query, Recordset& rows) {
        return CopyEvents(query, rows, [](int, int) { return true; }) == CopyResult::Copied;
    };
    BuildDatabaseReport({DateTime(), TourDay + DateTime::FromDays(1)}, copy, viewer);
}

void BenchDatabase(Figures& figures, const QString& path) {
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    Bare bare(path);
    NoViewer viewer;
    const Side ours{[] {}, [&] { BuildDatabase(viewer); }};
    const Side baseline{
        [] {},
        [&] {
            bare.Run("BEGIN IMMEDIATE");
            bare.Run("DROP TABLE tblCustom");
            bare.Run("CREATE TABLE tblCustom (tDateTime TEXT, tButtonCode TEXT, tButtonName TEXT, "
                     "tLocationDesc TEXT, tGroupName TEXT, tType TEXT)");
            sqlite3_stmt* walk =
                bare.Prepare("SELECT tButtonCode, tButtonName, tButtonDesc, tGroupName FROM "
                             "tblEvents WHERE dtDateTime >= 0 AND dtDateTime <= 50000 ORDER BY "
                             "dtDateTime, ID");
            sqlite3_stmt* insert =
                bare.Prepare("INSERT INTO tblCustom VALUES ('15/06/2026 12:00:00', ?, ?, ?, ?, "
                             "'Location')");
            while (sqlite3_step(walk) == SQLITE_ROW) {
                for (int column = 0; column < 4; ++column)
                    sqlite3_bind_value(insert, column + 1, sqlite3_column_value(walk, column));
                if (sqlite3_step(insert) != SQLITE_DONE)
                    qFatal("a row cannot be written");
                sqlite3_reset(insert);
            }
            sqlite3_finalize(walk);
            sqlite3_finalize(insert);
            bare.Run("COMMIT");
        }};
    BuildDatabase(viewer); // both find a table to drop
    Compare(figures, "database report of 1,000,000 events", 3, 1.6, ours, baseline);
    if (viewer.Shown != 4)
        qFatal("%d reports were shown", viewer.Shown);
    gConn.reset();
}

/// Defines the readers of the store's events, and makes every tenth event an incident, of 50 kinds.
void AddIncidents(Bare& bare) {
    bare.Run("INSERT INTO tblListItems VALUES (11, 2, 'Incidents', '')");
    bare.Run("UPDATE tblButtons SET lParentID = 11 WHERE ID <= 50");
    bare.Run("UPDATE tblEvents SET wGroupType = 2, tGroupName = 'Incidents', (tButtonCode, "
             "tButtonName) = (SELECT tButtonCode, tButtonName FROM tblButtons WHERE ID = "
             "tblEvents.ID / 10 % 50 + 1) WHERE ID % 10 = 0");
    bare.Run("DELETE FROM tblEvents WHERE wGroupType = 1 AND tButtonCode IN (SELECT tButtonCode "
             "FROM tblButtons WHERE ID <= 50)");
    bare.Run("INSERT INTO tblReaders SELECT DISTINCT tPipeID, 'Night ' || tPipeID FROM tblEvents");
}

/// Each report against a walk over the rows that it reads.
void BenchIncidents(Figures& figures, const QTemporaryDir& folder) {
    const QString path = folder.filePath("incidents.mdb");
    MakeStore(path, 218'000);
    {
        Bare bare(path);
        AddIncidents(bare);
    }
    if (!ADOInit(path, StorePassword))
        qFatal("the store does not open");
    const DateTime first = DateTime::FromDays(0), last = DateTime::FromDays(100'000);
    IncidentReportRequest incidents{first, last, Readers(), {}};
    for (const EventButton& event : EventButtons())
        incidents.Events += event.id;
    IncidentSitesRequest oneEvent;
    oneEvent.StartDate = first;
    oneEvent.EndDate = last;
    oneEvent.EventId = incidents.Events.first();
    NoViewer viewer;
    qint64 bytes = 0;
    const auto walk = [&](const char* sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(gConn->OpenEngine()->Handle(), sql, -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW)
            for (int column = 0; column < sqlite3_column_count(statement); ++column)
                bytes += static_cast<qint64>(TextOf(statement, column).size());
        sqlite3_finalize(statement);
    };
    const char* const events = "SELECT ID, tPipeId, dtDateTime, tButtonCode, tButtonName, "
                               "wGroupType, tGroupName FROM tblEvents ORDER BY ID";
    const char* const joined =
        "SELECT tblReaders.tReaderID, tblReaders.tDescription, tblListItems.wType, "
        "tblListItems.tName, dtDateTime, tblButtons.ID, tblButtons.tButtonName, tblListItems.ID, "
        "tPipeId FROM tblEvents JOIN tblButtons ON tblEvents.tButtonCode = tblButtons.tButtonCode "
        "JOIN tblListItems ON lParentID = tblListItems.ID JOIN tblReaders ON tPipeId = tReaderId "
        "ORDER BY dtDateTime, tReaderId COLLATE PEOPLE, tblEvents.ID";
    const auto against = [&](const char* name, const char* sql, const Step& build) {
        Compare(figures, name, 5, 3.0, {[] {}, build}, {[] {}, [&] { walk(sql); }});
    };
    against("50 incidents in 200,000 events", events,
            [&] { BuildIncidentReport(incidents, viewer); });
    against("one event with sites in 200,000 events", joined,
            [&] { BuildIncidentSitesReport(oneEvent, viewer); });
    if (viewer.Shown != 10 || bytes == 0)
        qFatal("%d reports were shown", viewer.Shown);
    gConn.reset();
}

/// Measures the memory while a report is shown, and the bytes of its values.
class MeasuringViewer : public ReportViewer {
public:
    void Show(DataReport& report) override {
        taken = static_cast<double>(ResidentBytes() - m_before);
        const RowSource& rows = *report.DataSource();
        for (qsizetype row = 0; row < rows.RowCount(); ++row)
            for (int column = 0; column < rows.Columns().size(); ++column)
                bare += static_cast<double>(rows.TextAt(row, column).toUtf8().size());
    }
    double taken = 0, bare = 0;

private:
    qint64 m_before = ResidentBytes();
};

void BenchDatabaseMemory(Figures& figures, const QString& path, int argc, char* argv[]) {
    CompareMemory(figures, "the memory of the database report", [&] {
        const QGuiApplication app(argc, argv); // reports need fonts
        if (!ADOInit(path, StorePassword))
            ::_exit(1);
        MeasuringViewer viewer;
        BuildDatabase(viewer);
        return std::pair(viewer.taken, viewer.bare);
    });
}

/// The archive without our code around it: select, format, write, sync, delete.
void ArchiveBare(const QString& store, const QString& path) {
    Bare bare(store);
    const QByteArray name = QFile::encodeName(path), part = name + ".part";
    std::FILE* file = std::fopen(part.constData(), "wb");
    bare.Run("BEGIN IMMEDIATE");
    sqlite3_stmt* walk =
        bare.Prepare("SELECT tPipeID, dtDateTime, tButtonCode, tButtonName, wGroupType, tGroupName "
                     "FROM tblEvents WHERE +dtDateTime >= 0 AND +dtDateTime <= 100000 ORDER BY ID");
    const char* const types[] = {"User", "Location", "Event"};
    std::fputs("\xEF\xBB\xBF\"Date\",\"Time\",\"Button ID\",\"Type\",\"Group Name\",\"Button "
               "Name\",\"Reader ID\"\r\n",
               file);
    const auto text = [walk](int column) { return sqlite3_column_text(walk, column); };
    while (sqlite3_step(walk) == SQLITE_ROW) {
        const auto seconds =
            static_cast<time_t>(std::llround((sqlite3_column_double(walk, 1) - 25569) * 86400));
        tm moment{};
        gmtime_r(&seconds, &moment);
        std::fprintf(
            file, "\"%04d-%02d-%02d\",\"%02d:%02d\",\"%s\",\"%s\",\"%s\",\"%s\",\"%s\"\r\n",
            moment.tm_year + 1900, moment.tm_mon + 1, moment.tm_mday, moment.tm_hour, moment.tm_min,
            text(2), types[sqlite3_column_int(walk, 4)], text(5), text(3), text(0));
    }
    sqlite3_finalize(walk);
    std::fclose(file);
    SyncFile(path + ".part");
    bare.Run("DELETE FROM tblEvents WHERE dtDateTime >= 0 AND dtDateTime <= 100000");
    PlaceNewFile(path + ".part", path);
    bare.Run("COMMIT");
}

int ArchiveAll(const QString& path) {
    const ArchiveRange all{DateTime::FromDays(1), DateTime::FromDays(99'999)};
    return ArchiveEventsOf(all, path, [](int, int) { return true; }).value_or(0);
}

void BenchArchive(Figures& figures, const QTemporaryDir& folder, const QString& path) {
    const QString store = folder.filePath("archived.mdb"), bareStore = folder.filePath("bare.mdb"),
                  file = folder.filePath("ours.csv"), bareFile = folder.filePath("bare.csv");
    const auto fresh = [&path](const QString& copy, const QString& written) {
        QFile::remove(copy);
        QFile::remove(written);
        QFile::copy(path, copy);
    };
    int archived = 0;
    const Side ours{[&] {
                        gConn.reset();
                        fresh(store, file);
                        if (!ADOInit(store, StorePassword))
                            qFatal("the store does not open");
                    },
                    [&] { archived = ArchiveAll(file); }};
    const Side baseline{[&] { fresh(bareStore, bareFile); },
                        [&] { ArchiveBare(bareStore, bareFile); }};
    Compare(figures, "archive 1,000,000 events", 3, 1.6, ours, baseline);
    QFile one(file), other(bareFile);
    if (archived != EventCount || !one.open(QIODevice::ReadOnly) ||
        !other.open(QIODevice::ReadOnly) || one.readAll() != other.readAll())
        qFatal("%d events were archived, or the files differ", archived);
    gConn.reset();
}

/// The most memory that archiving a copy of the store takes, in a process of its own.
double PeakOfArchive(const QTemporaryDir& folder, const QString& path) {
    const QString store = folder.filePath("peak.mdb"), file = folder.filePath("peak.csv");
    QFile::remove(store);
    QFile::remove(file);
    QFile::copy(path, store);
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(ADOInit(store, StorePassword) && ArchiveAll(file) > 0 ? 0 : 1);
    int status = 0;
    rusage used{};
    if (::wait4(child, &status, 0, &used) != child || status != 0)
        qFatal("nothing was archived");
    return static_cast<double>(used.ru_maxrss) * 1024;
}

void BenchArchiveMemory(Figures& figures, const QTemporaryDir& folder, const QString& many,
                        const QString& few) {
    figures.Report("the memory to archive 1,000,000 events or 10,000", "MB",
                   PeakOfArchive(folder, many) / 1e6, PeakOfArchive(folder, few) / 1e6, 1.2);
}

void BenchCompaction(Figures& figures, const QTemporaryDir& folder, const QString& path) {
    const QString temp = folder.filePath("temp.mdb"), target = folder.filePath("hand.mdb");
    const QByteArray attach =
        "ATTACH DATABASE '" + target.toUtf8() + "' AS hand KEY '" + StorePassword.toUtf8() + "'";
    const QByteArray before = [&] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.read(16) : QByteArray();
    }();
    const Side ours{[] {}, [&] { CompactStore(ProviderText, path, temp, StorePassword); }};
    const Side baseline{[&] { QFile::remove(target); },
                        [&] {
                            Bare bare(path);
                            bare.Run(attach.constData());
                            bare.Run("PRAGMA hand.journal_mode = OFF");
                            bare.Run("PRAGMA hand.synchronous = OFF");
                            bare.Run("SELECT sqlcipher_export('hand')");
                            bare.Run("DETACH DATABASE hand");
                        }};
    Compare(figures, "compaction of 1,000,000 events", 5, 1.3, ours, baseline);
    QFile file(path); // a new file starts with a new salt
    if (!file.open(QIODevice::ReadOnly) || file.read(16) == before)
        qFatal("nothing was compacted");
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Figures figures;
    const QTemporaryDir folder;
    const QString many = folder.filePath("main.mdb"), few = folder.filePath("few.mdb");
    MakeStore(many, EventCount);
    MakeStore(few, FewEvents);
    BenchArchiveMemory(figures, folder, many, few);
    BenchMemory(figures, many);
    BenchDatabaseMemory(figures, many, argc, argv);
    const QGuiApplication app(argc, argv); // reports need fonts
    BenchDownload(figures, folder);
    BenchHome(figures, many);
    BenchOffers(figures, folder.filePath("offers.mdb"));
    BenchWalk(figures, many);
    BenchTour(figures, many, few);
    BenchDatabase(figures, many);
    BenchIncidents(figures, folder);
    BenchArchive(figures, folder, many);
    BenchCompaction(figures, folder, many);
    return figures.ExitStatus();
}
