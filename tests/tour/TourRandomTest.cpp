// Many random tours, through the store and the whole report, compared with a second evaluation that
// shares no code with the program.

#include "Connection.h"
#include "SqlDate.h"
#include "TourReportBuilder.h"
#include "TourSite.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <random>

using namespace TourSite;

class TourRandomTest : public QObject {
    Q_OBJECT

    std::mt19937 m_random{4711};

    int Upto(int most) { return static_cast<int>(m_random() % static_cast<unsigned>(most + 1)); }
    template <typename List>
    auto OneOf(const List& list) {
        return list[Upto(static_cast<int>(list.size()) - 1)];
    }

    struct Case {
        QList<PlainTour::Point> points;
        QList<PlainTour::Touch> touches;
        int tolerance;
    };

    /// Few buttons, so that visits repeat and touches fit several points; times on the very edges.
    Case RandomCase() {
        Case made;
        made.tolerance = Upto(2) ? Upto(8) : Upto(59);
        const QString buttons = QString("ABCX").left(1 + Upto(3));
        qint64 time = Day + Upto(1439) * 60;
        QList<qint64> edges;
        for (int index = 1, count = 1 + Upto(6); index <= count; ++index) {
            time += index == 1 ? 0 : OneOf(QList<int>{0, 1, Upto(12), Upto(45), 75}) * 60;
            if (Upto(9) == 0)
                time += Upto(59);
            const QChar name = OneOf(buttons);
            const QString place = name == u'X' ? QString(" - ") : QString("Site - ") + name;
            made.points += {time, CodeOf(name), place, index * 10};
            const qint64 early = time - made.tolerance * 60, late = time + made.tolerance * 60;
            edges += {time, early, late, late + 59, time - 900, time + 900, time - 3600};
            if (index > 1) // the middle between two visits
                edges += (early + edges[edges.size() - 11]) / 2;
        }
        for (int count = Upto(11); count > 0; --count) {
            const QChar name = OneOf(QString("AAABBBCCXDDeefu"));
            const qint64 at = OneOf(edges) + OneOf(QList<int>{0, 0, -1, 1, 59, 60, Upto(1800)});
            made.touches += {at, TypeOf(name), CodeOf(name),
                             (TypeOf(name) == 2 ? "Book - " : "Site - ") + QString(name)};
        }
        return made;
    }

    static QString Sql(qint64 seconds) {
        return '#' + SqlDateTimeFmt(DateTime::FromMilliseconds(seconds * 1000)) + '#';
    }

    static void Store(int tour, const Case& made) {
        const qint64 start = made.points[0].time;
        gConn->Execute(QStringLiteral("INSERT INTO tblTours VALUES (%1, 'n', 'd', %2, %3)")
                           .arg(tour)
                           .arg(made.tolerance)
                           .arg(Sql(start - start % 60)));
        qint64 before = start - start % 60;
        for (const auto& point : made.points) {
            const QString interval =
                QString::number(static_cast<double>(point.time - before) / 86400.0, 'f', 12);
            gConn->Execute(QStringLiteral("INSERT INTO tblTourPoints (lParentID, lIndex, dtTime, "
                                          "tButtonCode) VALUES (%1, %2, %3, '%4')")
                               .arg(tour)
                               .arg(point.index)
                               .arg(interval, point.code));
            before = point.time;
        }
        for (const auto& touch : made.touches)
            gConn->Execute(
                QStringLiteral("INSERT INTO tblEvents (tPipeID, dtDateTime, tButtonCode, "
                               "tButtonName, wGroupType, tGroupName) VALUES "
                               "('R%1', %2, '%3', '%4', %5, '%6')")
                    .arg(tour)
                    .arg(Sql(touch.time), touch.code, touch.details.right(1))
                    .arg(touch.type)
                    .arg(touch.details.left(4)));
    }

private slots:
    void RandomToursAgree() {
        QLocale::setDefault(QLocale::c());
        const TestHome home(TestHome::EmptyStore);
        Define();
        gConn->Execute("PRAGMA synchronous=OFF");
        ScriptedBoxes boxes;
        RecordingViewer viewer;
        QElapsedTimer elapsed;
        elapsed.start();
        int tours = 0, reports = 0;
        for (; tours < 20'000 && elapsed.elapsed() < 15'000;) {
            QList<Case> cases;
            gConn->BeginTrans();
            for (const char* table : {"tblTours", "tblTourPoints", "tblEvents"})
                gConn->Execute(QStringLiteral("DELETE * FROM ") + table);
            for (int tour = 1; tour <= 250; ++tour) {
                cases += RandomCase();
                Store(tour, cases.last());
            }
            gConn->CommitTrans();
            for (int tour = 1; tour <= cases.size(); ++tour, ++tours) {
                Case& made = cases[tour - 1];
                std::stable_sort(made.touches.begin(), made.touches.end(),
                                 [](auto& a, auto& b) { return a.time < b.time; });
                const bool showAll = Upto(1), events = Upto(1);
                const QStringList expected =
                    PlainTour::Report(made.points, made.touches, {made.tolerance, showAll, events});
                viewer.Rows.clear();
                BuildTourReport({tour,
                                 DateTime::FromMilliseconds(made.points[0].time * 1000),
                                 QStringLiteral("R%1").arg(tour),
                                 {},
                                 events,
                                 showAll},
                                viewer);
                reports += !expected.isEmpty();
                QCOMPARE(boxes.TakeTexts(),
                         expected.isEmpty() ? QStringList("No Data on the report") : QStringList());
                if (viewer.Rows == expected)
                    continue;
                QFAIL(qPrintable(
                    QStringLiteral("tour %1, tolerance %2, all %3\nexpected %4\ngot      %5")
                        .arg(tours)
                        .arg(made.tolerance)
                        .arg(showAll)
                        .arg(Shortened(expected), Shortened(viewer.Rows))));
            }
        }
        qInfo("%d tours, %d with a report", tours, reports);
        QVERIFY(reports > 100 && reports > tours / 2);
    }
};

QTEST_MAIN(TourRandomTest)
#include "TourRandomTest.moc"
