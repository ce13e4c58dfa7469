#include "frmEditTime.h"

#include "TourDraft.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmEditTime.h"

frmEditTime::frmEditTime(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmEditTime>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    SelectAllOnFocus(*m_ui->txtTime);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmEditTime::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmEditTime::Cancel);
}

frmEditTime::~frmEditTime() = default;

QStringList frmEditTime::Entered() const { return {m_ui->txtTime->text()}; }

void frmEditTime::SetIntervalTime(int minutes) {
    m_interval = minutes;
    m_ui->txtTime->setText(QString::number(minutes));
}

void frmEditTime::cmdOK_Click() {
    const std::optional<int> minutes = IntervalFromText(m_ui->txtTime->text());
    if (!minutes) {
        IvMessageBox(Translate(IntervalFault));
        FocusAndSelect(*m_ui->txtTime);
        return;
    }
    m_interval = *minutes;
    accept();
}
