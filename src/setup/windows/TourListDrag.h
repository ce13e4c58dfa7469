#pragma once

#include <QLabel>
#include <QPoint>
#include <QTimer>
#include <QTreeView>

/// Dragging with the mouse between the two lists of the tour editor, and within the second. During
/// a drag, a label follows the pointer, and a cue in the second list shows where the row would be
/// inserted. Escape or another mouse button cancels the drag.
class TourListDrag : public QObject {
    Q_OBJECT
public:
    TourListDrag(QTreeView& lvwLocations, QTreeView& lvwSelected);

signals:
    /// `position` is where to insert the row in the second list, from 0. It is -1 if the row was
    /// dropped on the first list.
    void Dropped(QTreeView* source, QTreeView* target, int position);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeView* ListUnder(const QPoint& globalPosition) const;
    int InsertPositionAt(const QPoint& globalPosition) const;
    void Press(QTreeView* list, const QMouseEvent& event);
    void Begin();
    void Follow();
    void ScrollAtTheEdge();
    void Drop();
    void ShowCue(int position);
    void End();

    QTreeView& m_lvwLocations;
    QTreeView& m_lvwSelected;
    QLabel* m_lblDragDrop;  ///< the window's
    QLabel* m_picInsertPtr; ///< the second list's
    QTimer m_scroll;
    QTreeView* m_source = nullptr; ///< the list in which the mouse button was pressed on a row
    QPoint m_pressed;
    QPoint m_pointer;
    bool m_dragging = false;
};
