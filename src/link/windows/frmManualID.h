#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmManualID;
}

/// Asks for the code of a button that cannot be presented to a reader.
class frmManualID : public QDialog {
    Q_OBJECT
public:
    explicit frmManualID(QWidget* parent);
    ~frmManualID() override;

    /// True if the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }
    QString ID; ///< six upper-case hexadecimal digits

private:
    void cmdOK_Click();

    std::unique_ptr<Ui::frmManualID> m_ui;
};
