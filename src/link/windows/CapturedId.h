#pragma once

class QLabel;
class QPushButton;

/// The controls of a capture dialog that tell whether the identifier may be taken.
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
