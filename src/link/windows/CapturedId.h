#pragma once

class QLabel;
class QPushButton;

/// The controls of a capture dialog that show whether the identifier may be used.
struct CapturedIdControls {
    QLabel& img1;       ///< shows the picture "good" or "bad"
    QLabel& lblMsg;     ///< says what is wrong; keeps its place while it is hidden
    QPushButton& cmdOK; ///< enabled for a good identifier

    /// When the dialog opens: nothing is captured yet.
    void ShowNone() const;
    void ShowVerdict(bool good) const;
    /// Makes the picture flash when the same identifier is captured again.
    void ClearPicture() const;
};
