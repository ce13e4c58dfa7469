#pragma once

#include "Definitions.h"
#include "RowListModel.h"

#include <QWidget>

#include <memory>

class DockingLink;
namespace Ui {
class frmMDISetup;
}

/// The setup page: lists what is defined, a tab for each kind, to be added to, edited and deleted.
class frmMDISetup : public QWidget {
    Q_OBJECT
public:
    frmMDISetup(DockingLink& link, QWidget* parent);
    ~frmMDISetup() override;

    /// Shows the first tab.
    void Start();
    /// Opens or closes what needs a docking station, as it comes or goes.
    void ShowLink();
    /// Translates the page's controls.
    void Translate();
    /// True if a row of the list has this name in the second column.
    bool EditedNameOK(const QString& name) const;

signals:
    void TitleChanged(const QString& title);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// A kind of definition: its tab, its list, and what its buttons do.
    struct Kind {
        const char* caption;
        const char* icon;
        GroupType type; ///< of groups
        QList<const char*> columns;
        QList<int> widths; ///< in hundredths
        QList<ListRow> (frmMDISetup::*rows)();
        void (frmMDISetup::*edit)();
        void (frmMDISetup::*add)();
        void (frmMDISetup::*remove)();
    };
    static const QList<Kind>& Kinds();
    const Kind& Present() const;
    bool ShowsTours() const;

    void ShowTab();
    void FillList();
    void FillListAndSelect(const QVariant& tag);
    void FillListAfterDelete(int place);
    /// Asks, with a warning where there are parts that would go too, and deletes by ID.
    void DeleteSelected(bool (*hasParts)(int), const char* partsText, const char* question,
                        void (*remove)(int));
    /// -1 where no row is selected; else its place in the list.
    int Selected() const;
    bool Confirmed(const QString& question) const;

    QList<ListRow> GroupRows();
    QList<ListRow> TourRows();
    QList<ListRow> ReaderRows();
    void AddGroup();
    void EditGroup();
    void DeleteGroup();
    void AddReader();
    void EditReader();
    void DeleteReader();
    void AddTour();
    void EditTour();
    void DeleteTour();
    void CopyTour();
    /// True if the tour was written. If not, nothing was, and a message said so.
    bool Saved(const Tour& tour, const TourDraft& points) const;
    QString FreshTourName() const;

    std::unique_ptr<Ui::frmMDISetup> m_ui;
    DockingLink& m_link;
    RowListModel m_rows;
};
