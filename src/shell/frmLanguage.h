#pragma once

#include <QDialog>

#include <memory>

class Dictionary;
namespace Ui {
class frmLanguage;
}

/// The language chooser.
class frmLanguage : public QDialog {
    Q_OBJECT
public:
    frmLanguage(const Dictionary& dictionary, int number, QWidget* parent);
    ~frmLanguage() override;

    int Number() const;

    /// A Dictionary::Chooser.
    static bool Choose(Dictionary& dictionary, int& number);

private:
    std::unique_ptr<Ui::frmLanguage> m_ui;
};
