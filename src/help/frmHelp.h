#pragma once

#include <QDialog>

#include <memory>

class HelpBook;
class QTreeWidgetItem;
namespace Ui {
class frmHelp;
}

/// The help: its contents or what a search has found on the left, a topic on the right. It can be
/// used beside every other window. While a modal window is open, it counts as that window's child,
/// so it is not blocked.
class frmHelp : public QDialog {
    Q_OBJECT
public:
    /// Throws RunTimeError if the help file cannot be read.
    explicit frmHelp(const QString& path);
    ~frmHelp() override;

    /// Takes another help file, and the present language for its own texts. The topic stays.
    void Load(const QString& path);
    void ShowTopic(const QString& topic);

protected:
    bool event(QEvent* event) override;

private:
    void ConnectTools();
    void FollowModalWindow();
    void FillList();
    void ShowItem(const QTreeWidgetItem* item);
    void ShowState();
    void Zoom(int steps);
    void Print();
    QStringList Words() const;

    std::unique_ptr<Ui::frmHelp> m_ui;
    std::unique_ptr<HelpBook> m_book;
    int m_zoom = 0; ///< steps above the usual size
};
