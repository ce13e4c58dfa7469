#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class frmSplash;
}

/// The splash window, on top of all others while it is loaded. A click on the picture unloads it.
class frmSplash : public QWidget {
    Q_OBJECT
public:
    frmSplash();
    ~frmSplash() override;

    void ShowVersion(const QString& text);
    void ShowMessage(const QString& text);
    void ClearMessage();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::frmSplash> m_ui;
};
