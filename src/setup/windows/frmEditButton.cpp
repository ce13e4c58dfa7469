#include "frmEditButton.h"

#include "NameField.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmEditButton.h"

frmEditButton::frmEditButton(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmEditButton>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    SelectAllOnFocus(*m_ui->txtName);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmEditButton::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmEditButton::Cancel);
}

frmEditButton::~frmEditButton() = default;

QStringList frmEditButton::Entered() const {
    return {m_ui->txtName->text(), m_ui->txtDesc->text()};
}

void frmEditButton::SetIcon(const QString& name) { ShowIcon(*m_ui->img1, name); }

int frmEditButton::exec() {
    m_ui->txtName->setText(EditName);
    m_ui->txtDesc->setText(Desc);
    return EditorDialog::exec();
}

void frmEditButton::cmdOK_Click() {
    if (!AcceptName(Named::Item, *m_ui->txtName, ExistingNames, EditName) ||
        !AcceptDescription(*m_ui->txtDesc))
        return;
    EditName = m_ui->txtName->text().trimmed();
    Desc = m_ui->txtDesc->text();
    accept();
}
