#include "frmCompany.h"

#include "Settings.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmCompany.h"

frmCompany::frmCompany(QWidget* parent)
    : EditorDialog(parent), m_ui(std::make_unique<Ui::frmCompany>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    m_lines = {m_ui->txtLine_0, m_ui->txtLine_1, m_ui->txtLine_2, m_ui->txtLine_3};
    for (std::size_t line = 0; line < m_lines.size(); ++line) {
        m_lines[line]->setText(gCompanyInfo[line]);
        SelectAllOnFocus(*m_lines[line]);
    }
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmCompany::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmCompany::Cancel);
}

frmCompany::~frmCompany() = default;

QStringList frmCompany::Entered() const {
    QStringList lines;
    for (const QLineEdit* line : m_lines)
        lines += line->text();
    return lines;
}

void frmCompany::cmdOK_Click() {
    const auto save = [this] {
        SaveCompanyInfo(Entered());
        accept();
    };
    Trapped(save, [](const RunTimeError& error) {
        ReportError(QStringLiteral("cmdOK_Click of Form frmCompany"), error, ErrorShow::LogOnly);
        IvMessageBox(Translate("The company info cannot be saved. This file cannot be written:") +
                     u'\n' + error.Description());
    });
}
