#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmDebugData;
}

/// Asks from when, and with how many minutes between two points, sample data is made.
class frmDebugData : public QDialog {
    Q_OBJECT
public:
    explicit frmDebugData(QWidget* parent);
    ~frmDebugData() override;

    bool OK() const { return result() == Accepted; }
    ::DateTime DateTime() const { return m_start; }
    int Interval() const { return m_interval; } ///< 1 to 59 minutes

private:
    void cmdOK_Click();

    std::unique_ptr<Ui::frmDebugData> m_ui;
    ::DateTime m_start;
    int m_interval = 0;
};
