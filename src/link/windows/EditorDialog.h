#pragma once

#include "WindowPlace.h"

#include <QDialog>
#include <QStringList>

#include <optional>

/// A dialog in which the operator enters something. OK accepts the changes and the Cancel button
/// discards them. Escape and the window's close button ask first if a change would be lost.
class EditorDialog : public QDialog {
    Q_OBJECT
public:
    explicit EditorDialog(QWidget* parent, Placed placed = Placed::SizeAndPlace);

    /// True if the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }

    void reject() override;

protected:
    /// Everything that the operator can change, as the window shows it now.
    virtual QStringList Entered() const = 0;
    /// For the Cancel button: closes without asking.
    void Cancel() { QDialog::reject(); }

    void showEvent(QShowEvent* event) override;

private:
    /// What the dialog showed first. If it is shown again because the changes could not be saved,
    /// this stays.
    std::optional<QStringList> m_unchanged;
};
