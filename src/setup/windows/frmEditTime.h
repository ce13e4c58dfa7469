#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmEditTime;
}

/// Asks for one interval, in minutes.
class frmEditTime : public QDialog {
    Q_OBJECT
public:
    explicit frmEditTime(QWidget* parent);
    ~frmEditTime() override;

    bool OK = false;
    int IntervalTime() const { return m_interval; }
    void SetIntervalTime(int minutes);

private:
    void cmdOK_Click();

    std::unique_ptr<Ui::frmEditTime> m_ui;
    int m_interval = 0;
};
