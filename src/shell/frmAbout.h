#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

/// The program's title, version, licence, and whom to ask. An installer can place a text file
/// "contact.txt" in the application folder; the window shows it instead of our own advice.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* parent);
    ~frmAbout() override;

    /// Call this before the window is shown.
    void Populate();
    /// The first 2048 characters of a file of at most 4096 bytes, in UTF-8 or Latin-1. Empty if
    /// there is no such file; empty, with a line in the log, if it cannot be read.
    static QString TextFromFile(const QString& path);

private:
    std::unique_ptr<Ui::frmAbout> m_ui;
};
