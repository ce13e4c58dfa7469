#include "frmEditReader.h"

#include "NameField.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmEditReader.h"

frmEditReader::frmEditReader(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmEditReader>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    ShowIcon(*m_ui->img1, QStringLiteral("reader"));
    SelectAllOnFocus(*m_ui->txtDesc);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmEditReader::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmEditReader::Cancel);
}

frmEditReader::~frmEditReader() = default;

QStringList frmEditReader::Entered() const { return {m_ui->txtDesc->text()}; }

int frmEditReader::exec() {
    m_ui->lblID->setText(ReaderId);
    m_ui->txtDesc->setText(Desc);
    return EditorDialog::exec();
}

void frmEditReader::cmdOK_Click() {
    if (!AcceptName(Named::Item, *m_ui->txtDesc, ExistingNames, Desc))
        return;
    Desc = m_ui->txtDesc->text().trimmed();
    accept();
}
