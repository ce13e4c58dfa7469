#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

class ReportViewer;
struct ReportProposal;
namespace Ui {
class frmRptTour;
}

/// The dialog of the tour report: tour, date, reader and options.
class frmRptTour : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog. Without a proposal, it is the one for this dialog
    /// (ProposalFor), which is not used up otherwise.
    frmRptTour(ReportViewer& viewer, QWidget* parent, const ReportProposal* proposal = nullptr);
    ~frmRptTour() override;

    /// The current choice.
    int TourID() const;
    DateTime StartDate() const;
    bool IncludeEvents() const;
    /// Always false: the dialog makes its reports itself.
    bool OK() const { return result() == Accepted; }
    /// Follows the choice of the reader. Empty if none is chosen: there is no report without one.
    QString ReaderId;
    /// Sets the caption.
    void Title(const QString& text) { setWindowTitle(text); }

    /// Closing saves the two options, and the choice if a report was made from it.
    void done(int result) override;

private:
    void FillTours();
    void FillReaders();
    void ReadSelectedReader();
    void ReadOptions();
    /// Chooses what is proposed, as far as it exists. If the proposal has a date but no reader of
    /// the list, no reader is chosen.
    void Propose(const ReportProposal& proposal);
    void cmdPrintPreview_Click();

    std::unique_ptr<Ui::frmRptTour> m_ui;
    ReportViewer& m_viewer;
    bool m_reported = false;
};
