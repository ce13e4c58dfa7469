#pragma once

#include "EditorDialog.h"
#include "RowListModel.h"
#include "TourDraft.h"

#include <cstdint>
#include <memory>

class QTreeView;
class TourListDrag;
namespace Ui {
class frmEditTour;
}

/// Edits one tour: its name, start, tolerance and points. It writes nothing itself: the caller
/// saves the result.
class frmEditTour : public EditorDialog {
    Q_OBJECT
public:
    explicit frmEditTour(QWidget* parent);
    ~frmEditTour() override;

    int GroupID = 0; ///< the tour's ID
    QString ListName;
    QString ListDesc;
    DateTime StartTime; ///< time of day
    int Tolerance = 0;  ///< minutes
    QStringList ExistingNames;
    std::uint8_t ItemType = 0; ///< part of the window's interface; changes nothing
    bool AddMode = false;      ///< changes nothing either

    /// The points, with the operator's changes.
    const TourDraft& Points() const { return m_draft; }
    /// Fills the window from these values and from the store.
    void Populate();
    /// True if a location's description is this text.
    bool EditedNameOK(const QString& name) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QStringList Entered() const override;
    void FillSites();
    void FillLocations();
    void ShowPoints(int selected);
    void UpdateButtons();
    void UpdateTimes();
    int SelectedPoint() const;

    void AddLocation(int position);
    void RemoveLocation();
    void PromoteLocation();
    void DemoteLocation();
    void MoveLocation(int position);
    void DropOn(QTreeView* source, QTreeView* target, int position);
    void EditTime();
    bool PointsAreValid();
    bool ToleranceIsValid();
    bool TourTimeIsValid();
    void cmdOK_Click();
    DateTime ChosenStart() const;

    std::unique_ptr<Ui::frmEditTour> m_ui;
    TourListDrag* m_drag;
    TourDraft m_draft;
    QString m_receivedName;
    RowListModel m_locations;
    RowListModel m_selected;
    QStringList m_times; ///< as the list shows them
    int m_newInterval;   ///< minutes before a new point
};
