#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class frmMdiMenu;
}

/// The home page.
class frmMdiMenu : public QWidget {
    Q_OBJECT
public:
    explicit frmMdiMenu(QWidget* parent);
    ~frmMdiMenu() override;

    void Translate();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ResizeForm();

    std::unique_ptr<Ui::frmMdiMenu> m_ui;
};
