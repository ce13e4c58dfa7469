#pragma once

#include "EditorDialog.h"

#include <memory>

namespace Ui {
class frmEditTime;
}

/// Asks for one interval, in minutes.
class frmEditTime : public EditorDialog {
    Q_OBJECT
public:
    explicit frmEditTime(QWidget* parent);
    ~frmEditTime() override;

    int IntervalTime() const { return m_interval; }
    void SetIntervalTime(int minutes);

private:
    QStringList Entered() const override;
    void cmdOK_Click();

    std::unique_ptr<Ui::frmEditTime> m_ui;
    int m_interval = 0;
};
