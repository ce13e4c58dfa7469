#include "frmMDISetup.h"

#include "Format.h"
#include "ListColumns.h"
#include "ListHint.h"
#include "NameField.h"
#include "WindowTools.h"
#include "frmAddReader.h"
#include "frmCopyTour.h"
#include "frmEditReader.h"
#include "frmEditTour.h"
#include "frmListEdit.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMDISetup.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>

const QList<frmMDISetup::Kind>& frmMDISetup::Kinds() {
    using Page = frmMDISetup;
    static const Actions groups{&Page::GroupRows, &Page::EditGroup, &Page::AddGroup,
                                &Page::DeleteGroup, &Page::RenameGroup};
    static const Actions tours{&Page::TourRows, &Page::EditTour, &Page::AddTour, &Page::DeleteTour,
                               &Page::RenameTour};
    static const Actions readers{&Page::ReaderRows, &Page::EditReader, &Page::AddReader,
                                 &Page::DeleteReader, nullptr};
    static const QList<Kind> kinds = {
        {QT_TR_NOOP("Sites"),
         "location",
         SiteGroup,
         {QT_TR_NOOP("Name"), QT_TR_NOOP("Description")},
         {40, 60},
         QT_TR_NOOP("No sites yet. A site is a place with location buttons. Press Add for a new "
                    "one, then Edit to give it its buttons."),
         groups},
        {QT_TR_NOOP("Event Books"),
         "event",
         EventBookGroup,
         {QT_TR_NOOP("Name"), QT_TR_NOOP("Description")},
         {40, 60},
         QT_TR_NOOP("No event books yet. The buttons of an event book stand for incidents. Press "
                    "Add for a new one, then Edit to give it its buttons."),
         groups},
        {QT_TR_NOOP("Tours"),
         "tour",
         UserGroup,
         {QT_TR_NOOP("Tour Name"), QT_TR_NOOP("Start Time"), QT_TR_NOOP("Description")},
         {40, 15, 45},
         QT_TR_NOOP("No tours yet. Press Add for a new one, then Edit to choose its locations."),
         tours},
        {QT_TR_NOOP("Readers"),
         "reader",
         UserGroup,
         {QT_TR_NOOP("Reader ID"), QT_TR_NOOP("Description")},
         {30, 70},
         QT_TR_NOOP("No readers yet. Put a reader into the docking station and press Add. Without "
                    "a docking station no reader can be added."),
         readers},
    };
    return kinds;
}

frmMDISetup::frmMDISetup(DockingLink& link, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMDISetup>()), m_link(link) {
    m_ui->setupUi(this);
    m_ui->tabSetup->setExpanding(false);
    JoinList(*m_ui->lvwProgram, m_rows);
    for (const Kind& kind : Kinds())
        m_ui->tabSetup->addTab(ProgramIcon(QString::fromLatin1(kind.icon)), QString());
    Translate();
    m_ui->lvwProgram->setEditTriggers(QTreeView::EditKeyPressed);
    // Later: the list still closes its field.
    connect(&m_rows, &RowListModel::Edited, this, &frmMDISetup::Rename, Qt::QueuedConnection);
    connect(&m_rows, &RowListModel::modelReset, this, &frmMDISetup::Filter);
    connect(m_ui->txtFilter, &QLineEdit::textChanged, this, &frmMDISetup::Filter);
    connect(m_ui->txtFilter, &QLineEdit::returnPressed, m_ui->lvwProgram,
            qOverload<>(&QWidget::setFocus));
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_ui->txtFilter,
            qOverload<>(&QWidget::setFocus));
    connect(m_ui->tabSetup, &QTabBar::tabBarClicked, this, &frmMDISetup::FinishNaming);
    connect(m_ui->tabSetup, &QTabBar::currentChanged, this, [this] { ShowTab(); });
    connect(m_ui->lvwProgram, &QTreeView::doubleClicked, this, [this] { Do(&Actions::edit); });
    connect(m_ui->cmdSetup_0, &QPushButton::clicked, this, [this] { Do(&Actions::edit); });
    connect(m_ui->cmdSetup_1, &QPushButton::clicked, this, [this] { Do(&Actions::add); });
    connect(m_ui->cmdSetup_2, &QPushButton::clicked, this, [this] { Do(&Actions::remove); });
    connect(m_ui->cmdTourCopy, &QPushButton::clicked, this, &frmMDISetup::cmdTourCopy_Click);
    for (const int step : {1, -1}) {
        auto* shortcut = new QShortcut(this);
        shortcut->setKeys(step > 0 ? QKeySequence::NextChild : QKeySequence::PreviousChild);
        connect(shortcut, &QShortcut::activated, this, [this, step] {
            FinishNaming();
            const int tabs = m_ui->tabSetup->count();
            m_ui->tabSetup->setCurrentIndex((m_ui->tabSetup->currentIndex() + step + tabs) % tabs);
        });
    }
    setFocusProxy(m_ui->lvwProgram);
}

frmMDISetup::~frmMDISetup() = default;

void frmMDISetup::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
    for (int i = 0; i < Kinds().size(); ++i)
        m_ui->tabSetup->setTabText(i, ::Translate(Kinds()[i].caption));
}

bool frmMDISetup::EditedNameOK(const QString& name) const {
    return m_rows.TextsOf(1).contains(name);
}

const frmMDISetup::Kind& frmMDISetup::Present() const {
    return Kinds()[m_ui->tabSetup->currentIndex()];
}

void frmMDISetup::Do(void (frmMDISetup::*Actions::*action)()) {
    (this->*(Present().actions.*action))();
}

bool frmMDISetup::ShowsTours() const { return Present().actions.edit == &frmMDISetup::EditTour; }

std::optional<ListRow> frmMDISetup::SelectedRow() const {
    const int place = SelectedPlace(*m_ui->lvwProgram);
    return place < 0 || m_ui->lvwProgram->isRowHidden(place, {}) ? std::nullopt
                                                                 : std::optional(m_rows.Row(place));
}

bool frmMDISetup::Confirmed(const QString& question) const {
    return IvMessageBox(question, MessageKind::Question, MessageButtons::YesNo) !=
           MessageAnswer::No;
}

void frmMDISetup::Start() { ShowTab(); }

void frmMDISetup::ShowTab(int tab) { m_ui->tabSetup->setCurrentIndex(tab); }

void frmMDISetup::ShowTab() {
    emit TitleChanged(::Translate("Setup") + QStringLiteral(": ") + ::Translate(Present().caption));
    QStringList headers;
    for (const char* column : Present().columns)
        headers += ::Translate(column);
    m_ui->txtFilter->clear();
    m_rows.SetRows({});
    m_rows.SetColumns(headers);
    m_rows.SetEditable(Present().actions.rename ? 0 : -1);
    m_rows.SetIcon(ProgramIcon(QString::fromLatin1(Present().icon)));
    m_ui->lvwProgram->sortByColumn(0, Qt::AscendingOrder);
    ManageColumns(*m_ui->lvwProgram,
                  QStringLiteral("frmMDISetup.") + QString::fromLatin1(Present().icon),
                  Present().widths);
    FillList();
    SelectPlace(*m_ui->lvwProgram, 0);
}

void frmMDISetup::FillList() {
    m_rows.SetRows((this->*Present().actions.rows)());
    m_ui->cmdTourCopy->setVisible(ShowsTours());
    ShowLink();
}

/// Hides the rows that do not contain the text of the filter. Edit and Delete are for rows that can
/// be seen.
void frmMDISetup::Filter() {
    const QString wanted = m_ui->txtFilter->text().trimmed();
    int first = -1;
    for (int place = 0; place < m_rows.rowCount(); ++place) {
        const bool fits = m_rows.Row(place).texts.join(u'\n').contains(wanted, Qt::CaseInsensitive);
        m_ui->lvwProgram->setRowHidden(place, {}, !fits);
        first = fits && first < 0 ? place : first;
    }
    if (!SelectedRow())
        SelectPlace(*m_ui->lvwProgram, first);
    m_ui->cmdSetup_0->setEnabled(first >= 0);
    m_ui->cmdSetup_2->setEnabled(first >= 0);
    ShowWhenEmpty(*m_ui->lvwProgram,
                  ::Translate(wanted.isEmpty() ? Present().hint : "No entry contains this."));
}

void frmMDISetup::ShowLink() {
    const bool teachesReaders = Present().actions.add == &frmMDISetup::AddReader;
    m_ui->cmdSetup_1->setEnabled(!teachesReaders || gDockingDetected);
}

void frmMDISetup::FillListAndSelect(const QVariant& tag) {
    FillList();
    const int place = m_rows.PlaceOf(tag);
    if (place >= 0 && m_ui->lvwProgram->isRowHidden(place, {}))
        m_ui->txtFilter->clear();
    SelectPlace(*m_ui->lvwProgram, place);
}

/// Selects a new row and lets the operator type its name at once. Escape leaves the fresh name.
void frmMDISetup::FillListAndName(const QVariant& tag) {
    FillListAndSelect(tag);
    m_ui->lvwProgram->setFocus();
    m_ui->lvwProgram->edit(m_ui->lvwProgram->currentIndex());
}

/// Saves the name that is being typed into the list, if there is one.
void frmMDISetup::FinishNaming() {
    const QWidget* field = QApplication::focusWidget();
    if (!field || !m_ui->lvwProgram->viewport()->isAncestorOf(field))
        return;
    m_ui->lvwProgram->setFocus(); // the field loses it, and hands over the name
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void frmMDISetup::closeEvent(QCloseEvent* event) {
    FinishNaming();
    QWidget::closeEvent(event);
}

void frmMDISetup::Rename(const QVariant& tag, const QString& text) {
    Guarded("Rename of Form frmMDISetup", [&] {
        const int place = m_rows.PlaceOf(tag);
        if (place < 0 || !Present().actions.rename)
            return;
        const QString old = m_rows.Row(place).texts[0], name = text.trimmed();
        const QString fault = NameFault(Named::Group, name, m_rows.TextsOf(0), old);
        const auto save = [&] {
            (this->*Present().actions.rename)(m_rows.Row(place), name);
            return true;
        };
        if (!fault.isEmpty())
            IvMessageBox(fault);
        else if (Saved(save, "Rename of Form frmMDISetup",
                       QT_TR_NOOP("The name could not be saved. Nothing was changed.")))
            FillListAndSelect(tag);
    });
}

void frmMDISetup::DeleteSelected(bool (*hasParts)(int), const char* partsText, const char* question,
                                 const char* lost, void (*remove)(int)) {
    const std::optional<ListRow> row = SelectedRow();
    if (!row)
        return;
    const int id = row->tag.toInt();
    QString text = ::Translate(question);
    const bool parts = hasParts(id);
    if (parts)
        text = ::Translate(partsText) + u'\n' + text;
    text += QStringLiteral("\n\n") +
            FormatStr(::Translate(parts ? lost : "\"%0:s\" will be lost."), {row->texts[0]});
    if (!Confirmed(text))
        return;
    remove(id);
    FillListAfterDelete();
}

void frmMDISetup::FillListAfterDelete() {
    const int place = SelectedPlace(*m_ui->lvwProgram);
    FillList();
    SelectPlace(*m_ui->lvwProgram, place);
    if (!SelectedRow()) // the filter hides the row that is there now
        Filter();
    m_ui->lvwProgram->setFocus(); // the Delete button had it, and may be disabled now
}

void frmMDISetup::keyPressEvent(QKeyEvent* event) {
    Guarded("Form_KeyDown of Form frmMDISetup", ErrorShow::Dialog, [&] {
        const bool onList = focusWidget() == m_ui->lvwProgram;
        if (event->key() == Qt::Key_Delete)
            Do(&Actions::remove);
        else if (onList && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
            Do(&Actions::edit);
        else
            QWidget::keyPressEvent(event);
    });
}

// ---- sites and event books

QList<ListRow> frmMDISetup::GroupRows() {
    QList<ListRow> rows;
    Guarded("OpenGroupsRecordset of Form frmMDISetup", ErrorShow::Dialog, [&] {
        for (const Group& group : GroupsOf(Present().type))
            rows += ListRow{{group.name, group.description}, group.id};
    });
    return rows;
}

void frmMDISetup::AddGroup() {
    Guarded("AddGroup of Form frmMDISetup", [this] {
        const QString base = ::Translate(Present().type == SiteGroup ? "Site" : "Event Book");
        FillListAndName(::AddGroup(Present().type, FreshName(base, m_rows.TextsOf(0))));
    });
}

void frmMDISetup::EditGroup() {
    Guarded("EditGroup of Form frmMDISetup", [this] {
        const std::optional<ListRow> row = SelectedRow();
        if (!row)
            return;
        frmListEdit dialog(m_link, window());
        dialog.ID = row->tag.toInt();
        dialog.ListName = row->texts[0];
        dialog.ListDesc = row->texts[1];
        dialog.ItemType = Present().type;
        dialog.ExistingNames = m_rows.TextsOf(0);
        const auto save = [&] {
            UpdateGroup({dialog.ID, dialog.ListName, dialog.ListDesc});
            return true;
        };
        do { // as long as it cannot be saved, the editor comes back with everything in it
            dialog.exec();
            if (!dialog.OK())
                return;
        } while (!Saved(save, "EditGroup of Form frmMDISetup",
                        QT_TR_NOOP("The name could not be saved. Nothing was changed.")));
        FillListAndSelect(row->tag);
    });
}

void frmMDISetup::RenameGroup(const ListRow& row, const QString& name) {
    UpdateGroup({row.tag.toInt(), name, row.texts[1]});
}

void frmMDISetup::DeleteGroup() {
    Guarded("DeleteGroup of Form frmMDISetup", [this] {
        DeleteSelected(GroupHasButtons, QT_TR_NOOP("The selected group contains sub-items"),
                       QT_TR_NOOP("Are you sure you want to delete it?"),
                       QT_TR_NOOP("\"%0:s\" and its buttons will be lost."), ::DeleteGroup);
    });
}

// ---- readers

QList<ListRow> frmMDISetup::ReaderRows() {
    QList<ListRow> rows;
    GuardedWithBox("OpenReadersRecordset", [&] {
        for (const Reader& reader : Readers())
            rows += ListRow{{reader.id, reader.description}, reader.id};
    });
    return rows;
}

void frmMDISetup::AddReader() {
    GuardedWithBox("AddReader", [this] {
        frmAddReader dialog(m_link, window());
        dialog.ExistingNames = m_rows.TextsOf(1);
        dialog.Desc = FreshReaderName(dialog.ExistingNames);
        dialog.exec();
        if (!dialog.OK())
            return;
        ::AddReader({dialog.ReaderId, dialog.Desc});
        FillListAndSelect(dialog.ReaderId);
    });
}

void frmMDISetup::EditReader() {
    GuardedWithBox("EditReader", [this] {
        const std::optional<ListRow> row = SelectedRow();
        if (!row)
            return;
        frmEditReader dialog(window());
        dialog.ReaderId = row->texts[0];
        dialog.Desc = row->texts[1];
        dialog.ExistingNames = m_rows.TextsOf(1);
        dialog.exec();
        if (!dialog.OK())
            return;
        UpdateReader({row->texts[0], dialog.Desc});
        FillListAndSelect(row->tag);
    });
}

void frmMDISetup::DeleteReader() {
    GuardedWithBox("DeleteReader", [this] {
        const std::optional<ListRow> row = SelectedRow();
        if (!row || !Confirmed(::Translate("Are you sure you want to delete this reader?") + u' ' +
                               row->texts[0] + QStringLiteral("\n\n") +
                               FormatStr(::Translate("\"%0:s\" will be lost. Touches that are "
                                                     "already downloaded are kept."),
                                         {row->texts[row->texts[1].isEmpty() ? 0 : 1]})))
            return;
        ::DeleteReader(row->texts[0]);
        FillListAfterDelete();
    });
}

// ---- tours

QList<ListRow> frmMDISetup::TourRows() {
    QList<ListRow> rows;
    GuardedWithBox("OpenToursRecordset", [&] {
        for (const Tour& tour : Tours())
            rows += ListRow{
                {tour.name, Format(tour.startTime, QStringLiteral("Short Time")), tour.description},
                tour.id};
    });
    return rows;
}

QString frmMDISetup::FreshTourName() const {
    return FreshName(::Translate("Tour"), m_rows.TextsOf(0));
}

void frmMDISetup::AddTour() {
    Guarded("AddTour of Form frmMDISetup", [this] { FillListAndName(::AddTour(FreshTourName())); });
}

void frmMDISetup::EditTour() {
    Guarded("EditTour of Form frmMDISetup", [this] {
        const std::optional<ListRow> row = SelectedRow();
        if (!row)
            return;
        if (!HasLocations()) {
            IvMessageBox(
                ::Translate("You must add at least one location before you can define a tour"));
            return;
        }
        std::optional<Tour> tour = FindTour(row->tag.toInt());
        if (!tour)
            return;
        frmEditTour dialog(window());
        dialog.GroupID = tour->id;
        dialog.ListName = tour->name;
        dialog.ListDesc = tour->description;
        dialog.Tolerance = tour->tolerance;
        dialog.StartTime = tour->startTime;
        dialog.ExistingNames = m_rows.TextsOf(0);
        dialog.Populate();
        do { // as long as it cannot be saved, the editor comes back with everything in it
            dialog.exec();
            if (!dialog.OK())
                return;
            tour = {tour->id, dialog.ListName, dialog.ListDesc, dialog.Tolerance, dialog.StartTime};
        } while (!Saved(
            [&] {
                SaveTour(*tour, dialog.Points());
                return true;
            },
            "EditTour of Form frmMDISetup",
            QT_TR_NOOP("The tour could not be saved. Nothing was changed.")));
        FillListAndSelect(row->tag);
    });
}

void frmMDISetup::RenameTour(const ListRow& row, const QString& name) {
    if (std::optional<Tour> tour = FindTour(row.tag.toInt())) {
        tour->name = name;
        UpdateTour(*tour);
    }
}

bool frmMDISetup::Saved(const std::function<bool()>& save, const char* label,
                        const char* failure) const {
    return Trapped(save, [&](const RunTimeError& error) {
        ReportError(QString::fromLatin1(label), error, ErrorShow::LogOnly);
        IvMessageBox(::Translate(failure) + u'\n' + error.Description());
    });
}

void frmMDISetup::DeleteTour() {
    Guarded("DeleteTour of Form frmMDISetup", [this] {
        DeleteSelected(TourHasPoints, QT_TR_NOOP("The selected Tour contains data."),
                       QT_TR_NOOP("Are you sure you want to delete this tour?"),
                       QT_TR_NOOP("\"%0:s\" and its points will be lost."), ::DeleteTour);
    });
}

void frmMDISetup::cmdTourCopy_Click() {
    frmCopyTour dialog(window());
    dialog.exec();
    if (!dialog.OK())
        return;
    const auto copy = [&] {
        if (!TourHasPoints(dialog.TourID())) {
            IvMessageBox(::Translate("Cannot find any Tour Points to copy"));
            return;
        }
        FillListAndSelect(::CopyTour(dialog.TourID(), FreshTourName()));
    };
    Trapped(copy, [](const RunTimeError& error) {
        ReportError(QStringLiteral("cmdTourCopy_Click of Form frmMDISetup"), error,
                    ErrorShow::LogOnly);
        IvMessageBox(::Translate("Error in creating new Tour"));
    });
}
