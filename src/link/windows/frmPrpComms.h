#pragma once

#include <QDialog>
#include <QMap>

#include <memory>

namespace Ui {
class frmPrpComms;
}

/// The port choice: a number from 1 to 8, and the device behind it.
class frmPrpComms : public QDialog {
    Q_OBJECT
public:
    explicit frmPrpComms(QWidget* parent);
    ~frmPrpComms() override;

    /// Fills the list and selects the port of comPort.
    void Populate();

    int comPort = 1;
    /// True once the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }

private:
    void ShowDevice();
    void KeepDevice();
    void cmdSetupOK_Click();
    int SelectedPort() const;

    std::unique_ptr<Ui::frmPrpComms> m_ui;
    /// What the operator entered for a port, until OK keeps it.
    QMap<int, QString> m_devices;
};
