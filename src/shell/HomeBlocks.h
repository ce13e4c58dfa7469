#pragma once

#include "DueTours.h"
#include "ReportProposal.h"
#include "mDeclareGlobals.h"

#include <QWidget>

class QGroupBox;
class QLabel;
class QPushButton;
class QTreeWidget;

/// What the home page shows live: the docking station, the last download, and the tours of the last
/// 24 hours, or the first steps while nothing is defined yet.
class HomeBlocks : public QWidget {
    Q_OBJECT
public:
    explicit HomeBlocks(QWidget* parent);

    /// A user has no setup page, so nothing leads there.
    void SetUserType(OperatorType type) { m_userType = type; }
    void ShowStation(bool detected, int port, const QString& device);
    /// Reads the store. A failure is logged.
    void Fill();

signals:
    void RetryWanted();
    void ReportWanted(const ReportProposal& proposal);
    /// The place of a tab of the setup page.
    void SetupWanted(int tab);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FillDownload();
    void FillTours();
    void FillSteps();
    void OpenCurrent();

    QLabel* m_stationIcon;
    QLabel* m_station;
    QLabel* m_device;
    QPushButton* m_retry;
    QLabel* m_download;
    QGroupBox* m_toursBox;
    QTreeWidget* m_tours;
    QLabel* m_noTours;
    QGroupBox* m_stepsBox;
    QList<QPushButton*> m_steps;
    QList<QLabel*> m_stepTicks;
    QList<DueTour> m_due;
    OperatorType m_userType = NoOperator;
};
