#include "frmArchive.h"

#include "Application.h"
#include "DateTimeRange.h"
#include "EventArchive.h"
#include "FileDialogs.h"
#include "FreeFile.h"
#include "ProgressWindow.h"
#include "WindowPlace.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmArchive.h"

namespace {

bool Confirmed() {
    return IvMessageBox(Translate("Warning: This action will permanently delete the events from "
                                  "the database.") +
                            u'\n' + Translate("Are you sure you want to continue?"),
                        MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

} // namespace

frmArchive::frmArchive(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmArchive>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    RememberPlace(*this);
    for (QDateEdit* field : {m_ui->dtpStartDate, m_ui->dtpEndDate}) {
        PrepareDateField(*field);
        field->setMaximumDate(QDate(9999, 12, 31));
    }
    m_ui->dtpStartDate->setDate(QDate(2000, 1, 1));
    connect(m_ui->cmdOK, &QPushButton::clicked, this, [this] {
        Guarded("frmArchive::ArchiveEvents", ErrorShow::Dialog, [this] { cmdOK_Click(); });
    });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmArchive::~frmArchive() = default;

void frmArchive::cmdOK_Click() {
    StartDate = DateTime::FromQt(m_ui->dtpStartDate->date());
    EndDate = DateTime::FromQt(m_ui->dtpEndDate->date());
    if (!Confirmed())
        return;
    const ArchiveRange range{StartDate, EndDate};
    if (CountArchived(range) == 0) {
        IvMessageBox(Translate("There are no stored events within the dates you entered."));
        return;
    }
    const QString path =
        AskForFreeFile({Translate("Save As"), AppPath(), Translate("Comma Delimited Text (*.csv)"),
                        QStringLiteral("Csv"), ArchiveFileName(range)},
                       this);
    if (path.isEmpty() || Archive(range, path))
        reject();
}

bool frmArchive::Archive(const ArchiveRange& range, const QString& path) {
    std::optional<int> events;
    try {
        ProgressWindow progress(
            QT_TR_NOOP("Archive Events"), Translated, this,
            QT_TR_NOOP("The events are written to the file and then deleted from the database."));
        events = ArchiveEventsOf(range, path, std::ref(progress));
    } catch (const ArchiveNotSaved& failure) {
        IvMessageBox(failure.Description());
    }
    if (events)
        IvMessageBox(ArchivedText(*events, path), MessageKind::Information);
    return events.has_value();
}
