#pragma once

#include "mDeclareGlobals.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmLogin;
}

/// The login: the operator and the password. The fourth wrong password closes it.
class frmLogin : public QDialog {
    Q_OBJECT
public:
    explicit frmLogin(QWidget* parent = nullptr);
    ~frmLogin() override;

    OperatorType LoginResult() const { return m_result; }
    /// True if the window closed itself after the last wrong password.
    bool Refused() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void FocusPassword();

    std::unique_ptr<Ui::frmLogin> m_ui;
    OperatorType m_result = NoOperator;
    int m_failures = 0;
};
