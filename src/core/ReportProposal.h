#pragma once

#include "DateTime.h"

#include <QString>

/// What a report dialog proposes when it opens. After a download, that is what the downloaded
/// reader recorded; otherwise what the operator chose last in the same dialog. The dialog
/// ignores a tour that no longer exists.
struct ReportProposal {
    QString readerId; ///< empty: none
    int tourId = 0;   ///< 0: none
    /// The day on which the tour starts. The default means none: the dialog keeps its
    /// own date.
    DateTime date;

    bool HasDate() const { return date != DateTime(); }
};

/// From now on, each dialog proposes this once.
void ProposeAfterDownload(const ReportProposal& proposal);

/// What the dialog proposes, by the name of its window. The last choice has no date.
ReportProposal ProposalFor(const QString& dialog);

/// Saves reader and tour as the dialog's last choice.
void RememberChoice(const QString& dialog, const ReportProposal& choice);
