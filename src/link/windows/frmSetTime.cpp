#include "frmSetTime.h"

#include "Clock.h"
#include "DockingLink.h"
#include "Format.h"
#include "Settings.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmSetTime.h"

#include <optional>
#include <utility>

frmSetTime::frmSetTime(DockingLink& link, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmSetTime>()), m_link(link) {
    m_ui->setupUi(this);
    EnterGroupsAtChecked(*this);
    RememberPlace(*this);
    Translate();
    m_ui->dtpPanelDate->setDisplayFormat(GetShortDateFormat());
    SelectSectionOnFocus(*m_ui->DTPicker1);
    SelectSectionOnFocus(*m_ui->dtpPanelDate);
    Form_Load();
    connect(m_ui->DTPicker1, &QTimeEdit::timeChanged, m_ui->optSetTime_1,
            [this] { m_ui->optSetTime_1->setChecked(true); });
    connect(m_ui->chkSendTimeOnUpload, &QCheckBox::clicked, this,
            [](bool checked) { gAutoSetTime = checked; });
    connect(m_ui->cmdSendRealTime, &QPushButton::clicked, this, &frmSetTime::cmdSendRealTime_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmSetTime::~frmSetTime() = default;

void frmSetTime::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
}

void frmSetTime::Form_Load() {
    const DateTime now = Now();
    m_ui->dtpPanelDate->setDate(now.ToQDate());
    m_ui->lblPCTime->setText(Format(now, QStringLiteral("hh:mm")));
    m_ui->DTPicker1->setTime(QTime(now.ToQTime().hour(), now.ToQTime().minute()));
    gWaitCancelled = false;
    m_ui->chkSendTimeOnUpload->setChecked(gAutoSetTime);
    m_ui->lblNote->setText(
        ::Translate("Note:") + u' ' +
        ::Translate("If you select a custom date then this will only apply for one time") + u' ' +
        ::Translate("The automatic update feature only uses the PC's date and time"));
    const ReaderSignals saved = SavedReaderSignals();
    m_ui->chkSound->setChecked(saved.buzzer);
    m_ui->chkLED->setChecked(saved.led);
    m_ui->chkVibration->setChecked(saved.vibration);
    (saved.longBuzzer ? m_ui->optTime_1 : m_ui->optTime_0)->setChecked(true);
}

ReaderSignals frmSetTime::ChosenSignals() const {
    return {m_ui->chkSound->isChecked(), m_ui->chkLED->isChecked(), m_ui->chkVibration->isChecked(),
            m_ui->optTime_1->isChecked()};
}

/// The date is always taken from its own control, whichever time is chosen.
DateTime frmSetTime::ChosenMoment() const {
    const QTime time = m_ui->optSetTime_0->isChecked() ? Now().ToQTime() : m_ui->DTPicker1->time();
    return DateTime::FromQt(m_ui->dtpPanelDate->date()) +
           DateTime::FromTime(time.hour(), time.minute());
}

void frmSetTime::SetSending(bool sending) {
    m_sending = sending;
    for (QWidget* control :
         {static_cast<QWidget*>(m_ui->fraClock), static_cast<QWidget*>(m_ui->fraOptions),
          static_cast<QWidget*>(m_ui->cmdSendRealTime)})
        control->setEnabled(!sending);
    // Not to Cancel: a key that is held down would press it.
    (sending ? static_cast<QWidget*>(this) : m_ui->cmdSendRealTime)->setFocus();
}

void frmSetTime::cmdSendRealTime_Click() {
    Guarded("cmdSendRealTime_Click of Form frmSetTime", [this] {
        const ReaderSignals readerSignals = ChosenSignals();
        if (SignalsAreUsable(readerSignals))
            Send();
    });
}

void frmSetTime::Send() {
    const DateTime moment = ChosenMoment();
    std::optional<Hourglass> hourglass(std::in_place);
    SetSending(true);
    const bool clockSet = ClockDateIsUsable(moment) && m_link.SetClock(moment);
    // Sent even if the clock failed.
    const bool optionsSet = m_link.TxOptions(ChosenSignals().OptionByte());
    SetSending(false);
    hourglass.reset();
    const bool calledOff = std::exchange(gWaitCancelled, false);
    const bool succeeded = clockSet && optionsSet;
    gCommActive = false; // a wait that was called off leaves it on
    if (succeeded || calledOff)
        accept();
    if (succeeded)
        IvMessageBox(::Translate("Reader update successful") + u'\n' +
                         Format(moment, QStringLiteral("hh:nn  dd mmm yyyy")),
                     MessageKind::Information);
    else if (!calledOff)
        IvMessageBox(::Translate("Reader update failed.  Please try again."),
                     ::Translate(clockSet     ? "The clock was set, but the options were not."
                                 : optionsSet ? "The options were set, but the clock was not."
                                              : "Put the reader into the docking station so that "
                                                "it sits firmly."));
}

void frmSetTime::reject() {
    if (m_sending)
        gWaitCancelled = true;
    else
        QDialog::reject();
}

void frmSetTime::done(int result) {
    SaveReaderSignals(ChosenSignals());
    SaveSetting(SettingsApplication, SettingsSection::Properties, QStringLiteral("AutoSetTime"),
                BooleanText(gAutoSetTime));
    QDialog::done(result);
}
