#include "frmManualID.h"

#include "ButtonCapture.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmManualID.h"

frmManualID::frmManualID(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmManualID>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    RememberPlace(*this);
    m_ui->lblStatic->setText(
        Translate("Enter the 6 digit button ID.  This is the last 6 digits visible on the front of "
                  "the 'Dallas' Key. Valid characters are 0~9 and A~F."));
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmManualID::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmManualID::~frmManualID() = default;

void frmManualID::cmdOK_Click() {
    const QString code = TypedButtonCode(m_ui->txtID->text());
    if (code.isEmpty()) {
        IvMessageBox(Translate("Illegal Value"));
        FocusAndSelect(*m_ui->txtID);
        return;
    }
    ID = code;
    accept();
}
