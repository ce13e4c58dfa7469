#pragma once

#include "EditorDialog.h"
#include "Recordset.h"
#include "mDeclareGlobals.h"

#include <memory>

namespace Ui {
class frmUserMaintenance;
}

/// Changes the password of one operator.
class frmUserMaintenance : public EditorDialog {
    Q_OBJECT
public:
    explicit frmUserMaintenance(QWidget* parent);
    ~frmUserMaintenance() override;

    /// To be called before it is shown.
    void FormStart(OperatorType type);

private:
    QStringList Entered() const override;
    void ReadOperatorRecord();
    bool Update();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmUserMaintenance> m_ui;
    OperatorType m_type = NoOperator;
    std::unique_ptr<Recordset> m_operator;
};
