#pragma once

#include "Clock.h"
#include "ReportProposal.h"
#include "mDeclareGlobals.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

class HomeBlocks;
namespace Ui {
class frmMdiMenu;
}

/// The home page: title, picture, version, and what the station knows at the moment.
class frmMdiMenu : public QWidget {
    Q_OBJECT
public:
    explicit frmMdiMenu(QWidget* parent);
    ~frmMdiMenu() override;

    void Translate();
    void SetUserType(OperatorType type);
    void ShowStation(bool detected, int port, const QString& device);

signals:
    void RetryWanted();
    void ReportWanted(const ReportProposal& proposal);
    void SetupWanted(int tab);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ResizeForm();
    /// As large as the place allows.
    void ShowScaledPicture(const QRect& place);
    void ReadPicture();

    QPixmap m_picture;
    HomeBlocks* m_blocks;
    Timer m_tmrRefresh;

    std::unique_ptr<Ui::frmMdiMenu> m_ui;
};
