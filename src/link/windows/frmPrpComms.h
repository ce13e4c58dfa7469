#pragma once

#include <QDialog>
#include <QMap>

#include <memory>

namespace Ui {
class frmPrpComms;
}

/// The choice of the port, a number from 1 to 8, and of the device for it.
class frmPrpComms : public QDialog {
    Q_OBJECT
public:
    explicit frmPrpComms(QWidget* parent);
    ~frmPrpComms() override;

    /// Fills the list and selects the port `comPort`.
    void Populate();

    int comPort = 1;
    /// True if the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }

private:
    void ShowDevice();
    void KeepDevice();
    void cmdSetupOK_Click();
    int SelectedPort() const;

    std::unique_ptr<Ui::frmPrpComms> m_ui;
    /// What the operator entered for each port. OK saves it.
    QMap<int, QString> m_devices;
};
