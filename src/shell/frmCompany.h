#pragma once

#include "EditorDialog.h"

#include <array>
#include <memory>

class QLineEdit;
namespace Ui {
class frmCompany;
}

/// Edits the company lines that are printed on reports.
class frmCompany : public EditorDialog {
    Q_OBJECT
public:
    explicit frmCompany(QWidget* parent);
    ~frmCompany() override;

private:
    QStringList Entered() const override;
    void cmdOK_Click();

    std::unique_ptr<Ui::frmCompany> m_ui;
    std::array<QLineEdit*, 4> m_lines;
};
