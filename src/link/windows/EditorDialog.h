#pragma once

#include <QDialog>
#include <QStringList>

#include <optional>

/// A dialog in which the operator enters something. OK takes it and the Cancel button drops it.
/// Escape and the window's frame ask first if a change would be lost.
class EditorDialog : public QDialog {
    Q_OBJECT
public:
    using QDialog::QDialog;

    /// True once the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }

    void reject() override;

protected:
    /// All that the operator can change, as it stands in the window now.
    virtual QStringList Entered() const = 0;
    /// What the Cancel button does.
    void Cancel() { QDialog::reject(); }

    void showEvent(QShowEvent* event) override;

private:
    /// From when the dialog was first shown. It stays if the dialog is shown again because what was
    /// entered could not be saved.
    std::optional<QStringList> m_unchanged;
};
