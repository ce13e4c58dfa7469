#include "HomeBlocks.h"

#include "Clock.h"
#include "Downloads.h"
#include "Format.h"
#include "ListColumns.h"
#include "TourWords.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>

#include <array>

namespace {

struct Step {
    const char* text;
    int tab; ///< of the setup page
    bool (*isDone)();
};

bool AnyTourHasPoints() {
    const QList<Tour> tours = Tours();
    return std::any_of(tours.begin(), tours.end(),
                       [](const Tour& tour) { return TourHasPoints(tour.id); });
}

constexpr auto Steps = std::to_array<Step>({
    {QT_TR_NOOP("Define a site"), 0, [] { return !SitesByName().isEmpty(); }},
    {QT_TR_NOOP("Add the buttons of the site"), 0, [] { return HasLocations(); }},
    {QT_TR_NOOP("Add a reader"), 3, [] { return CountReaders() > 0; }},
    {QT_TR_NOOP("Plan a tour"), 2, [] { return AnyTourHasPoints(); }},
});

enum Column {
    TourColumn,
    ReaderColumn,
    StartColumn,
    OnTimeColumn,
    EarlyColumn,
    LateColumn,
    MissingColumn
};

/// Readable on a light and on a dark background.
struct Shade {
    QColor onLight, onDark;
};
const std::array<Shade, 4> Shades = {{{QColor(0x14, 0x66, 0x38), QColor(0x86, 0xe0, 0xa4)},
                                      {QColor(0x1d, 0x4f, 0x9c), QColor(0xa3, 0xc7, 0xff)},
                                      {QColor(0x8a, 0x48, 0x00), QColor(0xff, 0xc4, 0x6b)},
                                      {QColor(0xa8, 0x1e, 0x18), QColor(0xff, 0xa3, 0x9b)}}};

QString MomentOf(DateTime moment) {
    return Format(moment, QStringLiteral("Short Date")) + u' ' +
           Format(moment, QStringLiteral("Short Time"));
}

QString NameOf(const Reader& reader) {
    return reader.description.isEmpty() ? reader.id : ReaderText(reader);
}

bool IsSameRun(const DueTour& a, const DueTour& b) {
    const auto readerOf = [](const DueTour& due) { return due.reader.value_or(Reader()).id; };
    return a.tour.id == b.tour.id && a.start == b.start && readerOf(a) == readerOf(b);
}

QGroupBox* Box(const char* title, QWidget* parent) {
    auto* box = new QGroupBox(QString::fromUtf8(title), parent);
    return box;
}

} // namespace

HomeBlocks::HomeBlocks(QWidget* parent) : QWidget(parent) {
    auto* all = new QGridLayout(this);
    all->setContentsMargins(0, 0, 0, 0);

    QGroupBox* stationBox = Box(QT_TR_NOOP("Docking Station"), this);
    auto* station = new QGridLayout(stationBox);
    m_stationIcon = new QLabel(stationBox);
    m_stationIcon->setMaximumSize(24, 24);
    m_station = new QLabel(stationBox);
    m_station->setWordWrap(true);
    m_device = new QLabel(stationBox);
    m_device->setObjectName(QStringLiteral("lblDevice"));
    m_device->setWordWrap(true);
    m_retry = new QPushButton(QString::fromUtf8(QT_TR_NOOP("Retry")), stationBox);
    m_retry->setObjectName(QStringLiteral("cmdRetry"));
    m_retry->setToolTip(QString::fromUtf8(QT_TR_NOOP("Looks for the docking station again")));
    station->addWidget(m_stationIcon, 0, 0, Qt::AlignTop);
    station->addWidget(m_station, 0, 1);
    station->addWidget(m_device, 1, 1);
    station->addWidget(m_retry, 0, 2, 2, 1, Qt::AlignVCenter);
    station->setColumnStretch(1, 1);
    connect(m_retry, &QPushButton::clicked, this, &HomeBlocks::RetryWanted);

    QGroupBox* downloadBox = Box(QT_TR_NOOP("Last download"), this);
    auto* download = new QGridLayout(downloadBox);
    m_download = new QLabel(downloadBox);
    m_download->setObjectName(QStringLiteral("lblLastDownload"));
    m_download->setWordWrap(true);
    download->addWidget(m_download);

    m_toursBox = Box(QT_TR_NOOP("Tours of the last 24 hours"), this);
    auto* tours = new QGridLayout(m_toursBox);
    m_tours = new QTreeWidget(m_toursBox);
    m_tours->setObjectName(QStringLiteral("lvwTours"));
    m_tours->setAccessibleName(QString::fromUtf8(QT_TR_NOOP("Tours of the last 24 hours")));
    m_tours->setToolTip(
        QString::fromUtf8(QT_TR_NOOP("Click a tour, or press Enter, to open its report.")));
    m_tours->setRootIsDecorated(false);
    m_tours->setUniformRowHeights(true);
    m_tours->setAllColumnsShowFocus(true);
    m_tours->setMinimumHeight(70);
    m_tours->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_tours->setColumnCount(MissingColumn + 1);
    ManageColumns(*m_tours, QStringLiteral("HomeTours"));
    m_tours->installEventFilter(this);
    connect(m_tours, &QTreeWidget::itemClicked, this, &HomeBlocks::OpenCurrent);
    m_noTours = new QLabel(m_toursBox);
    m_noTours->setObjectName(QStringLiteral("lblNoTours"));
    m_noTours->setWordWrap(true);
    tours->addWidget(m_tours);
    tours->addWidget(m_noTours, 1, 0, Qt::AlignTop);

    m_stepsBox = Box(QT_TR_NOOP("First steps"), this);
    auto* steps = new QGridLayout(m_stepsBox);
    for (std::size_t i = 0; i < Steps.size(); ++i) {
        auto* tick = new QLabel(m_stepsBox);
        auto* step = new QPushButton(QString::fromUtf8(Steps[i].text), m_stepsBox);
        tick->setObjectName(QStringLiteral("lblStep_%1").arg(i));
        step->setObjectName(QStringLiteral("cmdStep_%1").arg(i));
        steps->addWidget(tick, static_cast<int>(i), 0);
        steps->addWidget(step, static_cast<int>(i), 1);
        connect(step, &QPushButton::clicked, this, [this, i] { emit SetupWanted(Steps[i].tab); });
        m_stepTicks += tick;
        m_steps += step;
    }
    steps->setColumnStretch(2, 1);
    steps->setRowStretch(static_cast<int>(Steps.size()), 1);
    m_stepsBox->hide();

    all->addWidget(stationBox, 0, 0);
    all->addWidget(downloadBox, 0, 1);
    all->addWidget(m_toursBox, 1, 0, 1, 2);
    all->addWidget(m_stepsBox, 1, 0, 1, 2);
    all->setColumnStretch(0, 1);
    all->setColumnStretch(1, 1);
    all->setRowStretch(1, 1);
}

void HomeBlocks::ShowStation(bool detected, int port, const QString& device) {
    ShowIcon(*m_stationIcon, detected ? QStringLiteral("online") : QStringLiteral("offline"));
    m_station->setText(
        Translate(detected ? "Docking Station : OK" : "Docking Station : Not Detected"));
    m_device->setText(InReadingDirection(QStringLiteral("COM%1: ").arg(port) +
                                         (device.isEmpty() ? Translate("no device") : device)));
    m_retry->setVisible(!detected);
}

void HomeBlocks::Fill() {
    Guarded("Fill of Class Module HomeBlocks", [this] {
        FillDownload();
        FillSteps();
        FillTours();
    });
}

void HomeBlocks::FillDownload() {
    const auto last = LastDownload();
    if (!last) {
        m_download->setText(Translate("none yet"));
        return;
    }
    m_download->setText(
        InReadingDirection(NameOf(FindReader(last->readerId).value_or(Reader{last->readerId, {}})) +
                           u'\n' + MomentOf(last->time) + u'\n' + Translate("Data Readings = ") +
                           QString::number(last->touches)));
}

void HomeBlocks::FillSteps() {
    const bool empty = CountReaders() == 0 || !AnyTourHasPoints();
    const bool shown = empty && m_userType == MasterOperator;
    m_noTours->setText(
        Translate(empty ? "Readers and tours are not set up yet. A master does this on "
                          "the Setup page."
                        : "No tour was due."));
    m_stepsBox->setVisible(shown);
    m_toursBox->setVisible(!shown);
    if (!shown)
        return;
    for (int i = 0; i < m_steps.size(); ++i) {
        const bool done = Steps[static_cast<std::size_t>(i)].isDone();
        m_stepTicks[i]->setText(done ? QString(QChar(0x2713)) : QString(QChar(0x25CB)));
        m_steps[i]->setAccessibleDescription(done ? Translate("done") : QString());
    }
}

void HomeBlocks::FillTours() {
    const DateTime now = Now();
    const int before = m_tours->indexOfTopLevelItem(m_tours->currentItem());
    const QList<DueTour> old = std::exchange(m_due, DueTours(now - DateTime::FromDays(1), now));
    const int scrolled = m_tours->verticalScrollBar()->value();
    m_tours->setHeaderLabels({Translate("Tour"), Translate("Reader"), Translate("Start Time"),
                              Translate("On time"), Translate("Early"), Translate("Late"),
                              Translate("Missing")});
    m_tours->clear();
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    for (const DueTour& due : m_due) {
        const PointCounts& points = due.points;
        auto* item = new QTreeWidgetItem(
            m_tours, {due.tour.name,
                      due.reader ? NameOf(*due.reader) : Translate("not downloaded or not walked"),
                      MomentOf(due.start), OnTimeText(points.onTime), EarlyText(points.early),
                      LateText(points.late), MissingText(points.missing)});
        for (int column = OnTimeColumn; column <= MissingColumn; ++column) {
            const Shade& shade = Shades[static_cast<std::size_t>(column - OnTimeColumn)];
            item->setForeground(column, dark ? shade.onDark : shade.onLight);
            if (item->text(column).isEmpty())
                item->setData(column, Qt::AccessibleTextRole,
                              m_tours->headerItem()->text(column) + QStringLiteral(": 0"));
        }
    }
    int current = 0;
    for (int i = 0; before >= 0 && i < m_due.size(); ++i)
        if (IsSameRun(m_due[i], old[before]))
            current = i;
    m_tours->setCurrentItem(m_tours->topLevelItem(current));
    m_tours->verticalScrollBar()->setValue(scrolled);
    m_tours->setVisible(!m_due.isEmpty());
    m_noTours->setVisible(m_due.isEmpty());
}

void HomeBlocks::OpenCurrent() {
    const int place = m_tours->indexOfTopLevelItem(m_tours->currentItem());
    if (place < 0)
        return;
    const DueTour& due = m_due[place];
    emit ReportWanted({due.reader ? due.reader->id : QString(), due.tour.id, due.start.DatePart()});
}

bool HomeBlocks::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_tours && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            OpenCurrent();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void HomeBlocks::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_due.isEmpty())
        Fill();
}
