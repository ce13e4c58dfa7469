#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmArchive;
}
struct ArchiveRange;

/// Archives the events of some days: asks for the days, a confirmation and a file (EventArchive.h).
/// It closes when the events are archived, or when no file is chosen.
class frmArchive : public QDialog {
    Q_OBJECT
public:
    explicit frmArchive(QWidget* parent);
    ~frmArchive() override;

    /// The dialog does its work itself, so no caller has anything to do after it.
    static constexpr bool OK = false;
    /// The days that were last confirmed.
    DateTime StartDate;
    DateTime EndDate;

private:
    void cmdOK_Click();
    bool Archive(const ArchiveRange& range, const QString& path);

    std::unique_ptr<Ui::frmArchive> m_ui;
};
