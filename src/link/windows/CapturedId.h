#pragma once

#include "NameFault.h"

class QLabel;
class QLineEdit;
class QPushButton;

/// What the dialogs that capture an identifier share.

/// The controls that tell whether a captured identifier may be taken.
struct CapturedIdControls {
    QLabel& img1;       ///< shows the picture "good" or "bad"
    QLabel& lblMsg;     ///< says what is wrong; its place stays while it is hidden
    QPushButton& cmdOK; ///< enabled for a good one

    /// As the dialog opens: nothing captured yet.
    void ShowNone() const;
    void ShowVerdict(bool good) const;
    /// For the flash on a repeated capture.
    void ClearPicture() const;
};

/// True if the field's text, trimmed, may be the name (NameFault.h). If not, says why and puts the
/// focus on the field with its text selected.
bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received = {});
