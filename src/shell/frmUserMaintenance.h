#pragma once

#include "Recordset.h"
#include "mDeclareGlobals.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmUserMaintenance;
}

/// Changes the password of one operator.
class frmUserMaintenance : public QDialog {
    Q_OBJECT
public:
    explicit frmUserMaintenance(QWidget* parent);
    ~frmUserMaintenance() override;

    /// To be called before it is shown.
    void FormStart(OperatorType type);

private:
    void ReadOperatorRecord();
    bool Update();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmUserMaintenance> m_ui;
    OperatorType m_type = NoOperator;
    std::unique_ptr<Recordset> m_operator;
};
