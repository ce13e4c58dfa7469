#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmFirmwareVersion;
}

/// Shows the firmware version of the docked reader.
class frmFirmwareVersion : public QDialog {
    Q_OBJECT
public:
    /// `firmware` is the text from the transfer, such as "V06".
    frmFirmwareVersion(const QString& firmware, QWidget* parent);
    ~frmFirmwareVersion() override;

private:
    std::unique_ptr<Ui::frmFirmwareVersion> m_ui;
};
