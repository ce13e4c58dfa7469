#include "frmLanguage.h"

#include "Dictionary.h"
#include "WindowPlace.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmLanguage.h"

#include <QApplication>

frmLanguage::frmLanguage(const Dictionary& dictionary, int number, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmLanguage>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    RememberPlace(*this);
    for (int i = 0; i < dictionary.LanguageCount(); ++i)
        m_ui->lstLanguages->addItem(dictionary.Languages(i).nativeName);
    connect(m_ui->lstLanguages, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_ui->lstLanguages, &QListWidget::currentRowChanged, this,
            [this](int row) { m_ui->cmdOK->setEnabled(row >= 0); });
    m_ui->cmdOK->setEnabled(false);
    m_ui->lstLanguages->setCurrentRow(number < 0 ? dictionary.ShownLanguage() : number);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmLanguage::~frmLanguage() = default;

int frmLanguage::Number() const { return m_ui->lstLanguages->currentRow(); }

bool frmLanguage::Choose(Dictionary& dictionary, int& number) {
    frmLanguage dialog(dictionary, number, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    number = dialog.Number();
    return true;
}
