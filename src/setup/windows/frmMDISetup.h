#pragma once

#include "Definitions.h"
#include "RowListModel.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class DockingLink;
namespace Ui {
class frmMDISetup;
}

/// The setup page: lists the definitions, one tab for each kind, with Add, Edit and Delete.
class frmMDISetup : public QWidget {
    Q_OBJECT
public:
    frmMDISetup(DockingLink& link, QWidget* parent);
    ~frmMDISetup() override;

    /// Shows the first tab.
    void Start();
    /// Shows a tab by its place: sites, event books, tours, readers.
    void ShowTab(int tab);
    /// Enables or disables what needs a docking station.
    void ShowLink();
    /// Translates the page's controls.
    void Translate();
    /// True if a row of the list has this name in the second column.
    bool EditedNameOK(const QString& name) const;

signals:
    void TitleChanged(const QString& title);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct Actions {
        QList<ListRow> (frmMDISetup::*rows)();
        void (frmMDISetup::*edit)();
        void (frmMDISetup::*add)();
        void (frmMDISetup::*remove)();
        /// Saves another name for a row; null if names cannot be typed into the list.
        void (frmMDISetup::*rename)(const ListRow& row, const QString& name);
    };
    /// A kind of definition: its tab, its list, and what its buttons do.
    struct Kind {
        const char* caption;
        const char* icon;
        GroupType type; ///< used by groups only
        QList<const char*> columns;
        QList<int> widths; ///< of the columns, in hundredths of the list's width
        const char* hint;  ///< shown while the list is empty
        Actions actions;
    };
    static const QList<Kind>& Kinds();
    const Kind& Present() const;
    /// Runs one of the present kind's actions.
    void Do(void (frmMDISetup::*Actions::*action)());
    bool ShowsTours() const;

    void ShowTab();
    void FillList();
    void Filter();
    void FillListAndSelect(const QVariant& tag);
    void FillListAndName(const QVariant& tag);
    void FinishNaming();
    void Rename(const QVariant& tag, const QString& text);
    void FillListAfterDelete();
    /// Asks, with a warning if parts would be deleted too, and deletes by ID. `lost` says with the
    /// row's name that the parts would be lost.
    void DeleteSelected(bool (*hasParts)(int), const char* partsText, const char* question,
                        const char* lost, void (*remove)(int));
    std::optional<ListRow> SelectedRow() const;
    bool Confirmed(const QString& question) const;

    QList<ListRow> GroupRows();
    QList<ListRow> TourRows();
    QList<ListRow> ReaderRows();
    void AddGroup();
    void EditGroup();
    void DeleteGroup();
    void RenameGroup(const ListRow& row, const QString& name);
    void AddReader();
    void EditReader();
    void DeleteReader();
    void AddTour();
    void EditTour();
    void DeleteTour();
    void RenameTour(const ListRow& row, const QString& name);
    void cmdTourCopy_Click();
    /// True if it was saved. If not, logs it under the label, and a message says so.
    bool Saved(const std::function<bool()>& save, const char* label, const char* failure) const;
    QString FreshTourName() const;

    std::unique_ptr<Ui::frmMDISetup> m_ui;
    DockingLink& m_link;
    RowListModel m_rows;
};
