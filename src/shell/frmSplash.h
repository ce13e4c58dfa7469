#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class frmSplash;
}

/// The splash window, on top of all others. A click on the picture closes it.
class frmSplash : public QWidget {
    Q_OBJECT
public:
    frmSplash();
    ~frmSplash() override;

    /// Shows the window and returns once it is painted, so that work without an event loop can
    /// follow. Waits two seconds at most.
    void ShowPainted();
    void ShowVersion(const QString& text);
    void ShowMessage(const QString& text);
    void ClearMessage();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::frmSplash> m_ui;
    bool m_painted = false;
};
