#include "frmEditReader.h"

#include "NameField.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmEditReader.h"

frmEditReader::frmEditReader(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmEditReader>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, [](const QString& text) { return Translate(text); });
    ShowIcon(*m_ui->img1, QStringLiteral("reader"));
    SelectAllOnFocus(*m_ui->txtDesc);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmEditReader::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmEditReader::~frmEditReader() = default;

int frmEditReader::exec() {
    m_ui->lblID->setText(ReaderId);
    m_ui->txtDesc->setText(Desc);
    return QDialog::exec();
}

void frmEditReader::cmdOK_Click() {
    if (!AcceptName(Named::Item, *m_ui->txtDesc, ExistingNames, Desc))
        return;
    Desc = m_ui->txtDesc->text().trimmed();
    OK = true;
    accept();
}
