#include "frmWaitReport.h"

#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmWaitReport.h"

#include <QLocale>

namespace {

constexpr int StartsAfter = 500; // milliseconds: time for the window to paint
constexpr int ShownEvery = 50;   // milliseconds

} // namespace

frmWaitReport::frmWaitReport(Recordset& rows, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmWaitReport>()), m_rows(rows),
      m_tmrStart(StartsAfter) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    m_ui->lblAdvice->hide();
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(&m_tmrStart, &Timer::Tick, this, [this] {
        m_tmrStart.SetEnabled(false);
        GoProcessData();
    });
    m_tmrStart.SetEnabled(true);
}

frmWaitReport::~frmWaitReport() = default;

bool frmWaitReport::Run() {
    const ArrowPointer arrow;
    exec();
    if (m_failure)
        throw RunTimeError(*m_failure);
    return OK();
}

/// While events are being copied, this only asks the copy to stop. The window closes when it has.
void frmWaitReport::reject() {
    m_cancelled = true;
    if (!m_copying)
        QDialog::reject();
}

bool frmWaitReport::ShowProgress(int done, int all) {
    const std::int64_t now = MillisecondsRunning();
    if (now - m_shownAt < ShownEvery)
        return true;
    m_shownAt = now;
    m_ui->prgRows->setMaximum(all);
    m_ui->prgRows->setValue(done);
    m_ui->lblCount->setText(QLocale().toString(done) + u' ' + Translate("of") + u' ' +
                            QLocale().toString(all));
    DoEvents();
    return !m_cancelled;
}

void frmWaitReport::ShowResult(const char* text, const QString& advice) {
    m_ui->lblMessage->hide(); // the wait is over
    m_ui->prgRows->hide();
    m_ui->lblCount->hide();
    m_ui->lblResult->setText(Translate(text));
    m_ui->lblAdvice->setText(advice);
    m_ui->lblAdvice->setVisible(!advice.isEmpty());
    m_ui->cmdCancel->setFocus();
}

void frmWaitReport::GoProcessData() {
    m_copying = true;
    DoEvents();
    CopyResult result = CopyResult::Cancelled;
    try {
        if (!m_cancelled)
            result = CopyEvents(CommandSQL, m_rows,
                                [this](int done, int all) { return ShowProgress(done, all); });
    } catch (const RunTimeError& error) {
        m_failure = error;
    }
    m_copying = false;
    if (result == CopyResult::Copied)
        accept();
    else if (result == CopyResult::Cancelled)
        reject();
    else if (result == CopyResult::NoEvents)
        ShowResult(QT_TR_NOOP("No Data on the report"), NoEventsAdvice);
    else
        ShowResult(QT_TR_NOOP("The report could not be created. See error.log for the reason."));
}
