#pragma once

#include "RowListModel.h"

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptPatrolSchedule;
}

/// The dialog of the patrol schedule: chooses a tour.
class frmRptPatrolSchedule : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog. Throws RunTimeError if the tours cannot be read.
    frmRptPatrolSchedule(ReportViewer& viewer, QWidget* parent);
    ~frmRptPatrolSchedule() override;

    /// The tour that the last schedule was made for; 0 if none was made.
    int ID = 0;
    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }

private:
    void LoadTours();
    void RunSelectedTour();

    std::unique_ptr<Ui::frmRptPatrolSchedule> m_ui;
    RowListModel m_tours;
    ReportViewer& m_viewer;
};
