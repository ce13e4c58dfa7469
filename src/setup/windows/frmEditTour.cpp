#include "frmEditTour.h"

#include "Format.h"
#include "ListColumns.h"
#include "ListHint.h"
#include "LookUps.h"
#include "NameField.h"
#include "Number.h"
#include "TourListDrag.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "frmEditTime.h"
#include "mErrorHandler.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmEditTour.h"

#include <QKeyEvent>

namespace {

const QString IntervalKey = QStringLiteral("LastTourInterval");
/// From the main window's top left corner, in twips.
constexpr int Right = 600, Below = 720;

int SavedInterval() {
    constexpr int Default = 10;
    const int saved = SavedNumber(SettingsSection::Settings, IntervalKey, Default);
    return saved >= 0 && saved < MinutesOfDay ? saved : Default;
}

} // namespace

frmEditTour::frmEditTour(QWidget* parent)
    : EditorDialog(parent, Placed::SizeOnly), m_ui(std::make_unique<Ui::frmEditTour>()),
      m_newInterval(SavedInterval()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    if (parent)
        move(OnScreen({parent->pos() + QPoint(PixelsOf(Right), PixelsOf(Below)), size()}, *this)
                 .topLeft());
    JoinList(*m_ui->lvwLocations, m_locations);
    JoinList(*m_ui->lvwSelected, m_selected);
    SelectSectionOnFocus(*m_ui->dtpStartTime);
    SelectAllOnFocus(*m_ui->txtTolerance);
    m_drag = new TourListDrag(*m_ui->lvwLocations, *m_ui->lvwSelected);
    connect(m_drag, &TourListDrag::Dropped, this, &frmEditTour::DropOn);
    m_ui->imgCboSites->setMinimumContentsLength(20);
    connect(m_ui->imgCboSites, &QComboBox::currentIndexChanged, this,
            [this] { Guarded("FillLocations of Form frmEditTour", [this] { FillLocations(); }); });
    connect(m_ui->dtpStartTime, &QTimeEdit::timeChanged, this, &frmEditTour::UpdateTimes);
    connect(m_ui->txtTolerance, &QLineEdit::textChanged, this, &frmEditTour::UpdateTimes);
    connect(m_ui->lvwLocations, &QTreeView::doubleClicked, this,
            [this] { AddLocation(m_draft.Count()); });
    connect(m_ui->lvwSelected, &QTreeView::doubleClicked, this, &frmEditTour::EditTime);
    connect(m_ui->cmdMove_0, &QPushButton::clicked, this, [this] { AddLocation(m_draft.Count()); });
    connect(m_ui->cmdMove_1, &QPushButton::clicked, this, &frmEditTour::RemoveLocation);
    connect(m_ui->cmdMove_2, &QPushButton::clicked, this, &frmEditTour::PromoteLocation);
    connect(m_ui->cmdMove_3, &QPushButton::clicked, this, &frmEditTour::DemoteLocation);
    connect(m_ui->cmdMove_4, &QPushButton::clicked, this, [this] {
        m_draft.Clear();
        ShowPoints(-1);
    });
    connect(m_ui->cmdEditTime, &QPushButton::clicked, this, &frmEditTour::EditTime);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmEditTour::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmEditTour::Cancel);
}

frmEditTour::~frmEditTour() = default;

QStringList frmEditTour::Entered() const {
    QStringList entered{m_ui->txtName->text(), m_ui->txtDesc->text(), m_ui->txtTolerance->text(),
                        m_ui->dtpStartTime->time().toString()};
    for (const TourDraft::Point& point : m_draft.Points())
        entered += {QString::number(point.minutes), point.buttonCode};
    return entered;
}

bool frmEditTour::EditedNameOK(const QString& name) const {
    return m_locations.TextsOf(1).contains(name);
}

void frmEditTour::Populate() {
    m_ui->cmdOK->setEnabled(false); // a tour that could not be read must not be written
    Guarded("Populate of Form frmEditTour", [this] {
        m_receivedName = ListName;
        m_ui->txtName->setText(ListName);
        m_ui->txtDesc->setText(ListDesc);
        m_ui->txtTolerance->setText(QString::number(Tolerance));
        m_ui->dtpStartTime->setTime(StartTime.ToQTime());
        const QIcon icon = ProgramIcon(QStringLiteral("location"));
        m_locations.SetColumns({Translate("Location Name"), Translate("Desc")});
        m_locations.SetIcon(icon);
        m_selected.SetColumns(
            {Translate("Minutes"), Translate("Site"), Translate("Location"), Translate("Time")});
        m_selected.SetIcon(icon);
        ManageColumns(*m_ui->lvwLocations, QStringLiteral("frmEditTour.Locations"));
        ManageColumns(*m_ui->lvwSelected, QStringLiteral("frmEditTour.Selected"));
        m_draft.Load(GroupID);
        ShowWhenEmpty(*m_ui->lvwLocations,
                      Translate("This site has no location buttons yet. Add them on the Setup "
                                "page: select the site and press Edit."));
        ShowWhenEmpty(
            *m_ui->lvwSelected,
            Translate("The tour has no points yet. Select a location in the other list and "
                      "press Add, in the order of the tour."));
        FillSites();
        FillLocations();
        ShowPoints(0);
        m_ui->cmdOK->setEnabled(true);
    });
}

void frmEditTour::FillSites() {
    const QSignalBlocker once(
        m_ui->imgCboSites); // Populate fills the locations once all sites are in the list
    const QIcon icon = ProgramIcon(QStringLiteral("location"));
    for (const Group& site : SitesByName())
        m_ui->imgCboSites->addItem(icon, site.name, site.id);
    if (m_draft.Count() > 0)
        m_ui->imgCboSites->setCurrentIndex(
            std::max(0, m_ui->imgCboSites->findText(m_draft.Points().front().site,
                                                    Qt::MatchExactly | Qt::MatchCaseSensitive)));
}

void frmEditTour::FillLocations() {
    m_locations.SetRows({}); // if reading fails, no other site's locations may stay
    QList<ListRow> rows;
    for (const Button& button : ButtonsOf(m_ui->imgCboSites->currentData().toInt()))
        rows += ListRow{{button.name, button.description}, button.code};
    m_locations.SetRows(std::move(rows));
    SelectPlace(*m_ui->lvwLocations, 0);
    UpdateButtons();
}

int frmEditTour::SelectedPoint() const { return SelectedPlace(*m_ui->lvwSelected); }

DateTime frmEditTour::ChosenStart() const {
    const QTime start = m_ui->dtpStartTime->time();
    return DateTime::FromTime(start.hour(), start.minute());
}

/// Shows the points with their times, and selects one. While the tolerance is not a number, the
/// times stay as they were.
void frmEditTour::ShowPoints(int selected) {
    if (NumericValue(m_ui->txtTolerance->text())) {
        m_times.clear();
        for (const DateTime& time : m_draft.TimesFrom(ChosenStart()))
            m_times += Format(time.TimePart(), QStringLiteral("Short Time"));
    }
    QList<ListRow> rows;
    for (const TourDraft::Point& point : m_draft.Points())
        rows += ListRow{{QString::number(point.minutes), point.site, point.location,
                         m_times.value(rows.size())},
                        point.buttonCode};
    m_selected.SetRows(std::move(rows));
    SelectPlace(*m_ui->lvwSelected, selected);
    UpdateButtons();
}

void frmEditTour::UpdateButtons() {
    const bool any = m_draft.Count() > 0;
    if (!any && m_ui->cmdMove_1->hasFocus())
        m_ui->cmdMove_0->setFocus(); // by itself the focus would go to "Reset"
    for (QPushButton* button :
         {m_ui->cmdMove_1, m_ui->cmdMove_2, m_ui->cmdMove_3, m_ui->cmdEditTime})
        button->setEnabled(any);
    m_ui->cmdMove_0->setEnabled(m_locations.rowCount() > 0);
}

void frmEditTour::UpdateTimes() { ShowPoints(SelectedPoint()); }

void frmEditTour::AddLocation(int position) {
    const int place = SelectedPlace(*m_ui->lvwLocations);
    if (place < 0)
        return;
    const ListRow& location = m_locations.Row(place);
    m_draft.Insert(position, {m_newInterval, location.tag.toString(),
                              m_ui->imgCboSites->currentText(), location.texts[0]});
    ShowPoints(position);
    SelectPlace(*m_ui->lvwLocations, place + 1); // so that several can be added in a row
}

void frmEditTour::RemoveLocation() {
    const int place = SelectedPoint();
    if (place < 0)
        return;
    m_draft.Remove(place);
    ShowPoints(place);
}

void frmEditTour::PromoteLocation() { MoveLocation(SelectedPoint() - 1); }

void frmEditTour::DemoteLocation() {
    if (SelectedPoint() < m_draft.Count() - 1)
        MoveLocation(SelectedPoint() + 2);
}

/// Puts the selected point in front of the one at `position`.
void frmEditTour::MoveLocation(int position) {
    if (SelectedPoint() >= 0 && position >= 0)
        ShowPoints(m_draft.Move(SelectedPoint(), position));
}

void frmEditTour::DropOn(QTreeView* source, QTreeView* target, int position) {
    const bool fromTour = source == m_ui->lvwSelected, toTour = target == m_ui->lvwSelected;
    if (source == m_ui->lvwLocations && toTour)
        AddLocation(position);
    else if (fromTour && toTour)
        MoveLocation(position);
    else if (fromTour)
        RemoveLocation();
}

void frmEditTour::EditTime() {
    const int place = SelectedPoint();
    if (place < 0)
        return;
    frmEditTime dialog(this);
    dialog.SetIntervalTime(m_draft.Points()[static_cast<std::size_t>(place)].minutes);
    dialog.exec();
    if (!dialog.OK())
        return;
    m_newInterval = dialog.IntervalTime();
    SaveSetting(SettingsApplication, SettingsSection::Settings, IntervalKey,
                QString::number(m_newInterval));
    m_draft.SetMinutes(place, m_newInterval);
    ShowPoints(place);
}

bool frmEditTour::PointsAreValid() {
    const std::optional<int> place = m_draft.EqualNeighbour();
    if (!place)
        return true;
    IvMessageBox(Translate(NeighbourFault));
    SelectPlace(*m_ui->lvwSelected, *place);
    m_ui->lvwSelected->setFocus();
    return false;
}

bool frmEditTour::ToleranceIsValid() {
    if (const std::optional<int> tolerance = ToleranceFromText(m_ui->txtTolerance->text())) {
        Tolerance = *tolerance;
        return true;
    }
    IvMessageBox(Translate(ToleranceFault));
    FocusAndSelect(*m_ui->txtTolerance);
    return false;
}

bool frmEditTour::TourTimeIsValid() {
    if (m_draft.FitsADay(Tolerance))
        return true;
    IvMessageBox(Translate(TotalTimeFault));
    m_ui->lvwSelected->setFocus();
    return false;
}

void frmEditTour::cmdOK_Click() {
    Guarded("cmdOK_Click of Form frmEditTour", [this] {
        if (!AcceptName(Named::Group, *m_ui->txtName, ExistingNames, m_receivedName) ||
            !AcceptDescription(*m_ui->txtDesc) || !PointsAreValid() || !ToleranceIsValid() ||
            !TourTimeIsValid())
            return;
        ListName = m_ui->txtName->text().trimmed();
        ListDesc = m_ui->txtDesc->text().trimmed();
        StartTime = ChosenStart();
        accept();
    });
}

/// The Delete key arrives here from everywhere but the text fields, which use it themselves.
void frmEditTour::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete)
        RemoveLocation();
    else
        QDialog::keyPressEvent(event);
}
