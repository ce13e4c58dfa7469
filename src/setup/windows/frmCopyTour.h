#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmCopyTour;
}

/// Asks which tour to copy.
class frmCopyTour : public QDialog {
    Q_OBJECT
public:
    explicit frmCopyTour(QWidget* parent);
    ~frmCopyTour() override;

    /// True once the dialog was closed by OK.
    bool OK() const { return result() == Accepted; }
    /// The ID of the selected tour; 0 if there is none.
    int TourID() const;

private:
    std::unique_ptr<Ui::frmCopyTour> m_ui;
};
