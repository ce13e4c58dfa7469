#pragma once

#include "EditorDialog.h"
#include "mOperators.h"

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

    /// Call this before the window is shown.
    void FormStart(OperatorType type);

private:
    QStringList Entered() const override;
    void ReadOperatorRecord(OperatorType type);
    bool Update();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmUserMaintenance> m_ui;
    std::unique_ptr<OperatorRecord> m_operator;
};
