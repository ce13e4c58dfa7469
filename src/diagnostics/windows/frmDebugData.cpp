#include "frmDebugData.h"

#include "DateTimeRange.h"
#include "MessageBox.h"
#include "WindowTools.h"
#include "ui_frmDebugData.h"

frmDebugData::frmDebugData(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmDebugData>()) {
    m_ui->setupUi(this);
    PrepareDateField(*m_ui->dtpStartDate);
    SelectSectionOnFocus(*m_ui->dtpStartTime);
    m_ui->dtpStartTime->setTime(QTime(9, 0));
    SelectAllOnFocus(*m_ui->txtTime);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmDebugData::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmDebugData::~frmDebugData() = default;

void frmDebugData::cmdOK_Click() {
    m_interval = m_ui->txtTime->text().toInt(); // 0 for a text
    if (m_interval < 1 || m_interval > 59) {
        MsgBox(QStringLiteral("Only valid numbers from 1 to 59 can be entered"), {},
               MessageKind::Warning);
        FocusAndSelect(*m_ui->txtTime);
        return;
    }
    const QTime time = m_ui->dtpStartTime->time();
    m_start = ::DateTime::FromQt(m_ui->dtpStartDate->date()) +
              ::DateTime::FromTime(time.hour(), time.minute());
    accept();
}
