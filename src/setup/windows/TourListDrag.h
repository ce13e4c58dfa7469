#pragma once

#include <QLabel>
#include <QPoint>
#include <QTimer>
#include <QTreeView>

/// Dragging with the mouse between the two lists of the tour editor, and within the second. While
/// it lasts, a label goes along with the pointer, and a cue in the second list shows where what is
/// dragged would go. Escape, or another button, calls it off.
class TourListDrag : public QObject {
    Q_OBJECT
public:
    TourListDrag(QTreeView& lvwLocations, QTreeView& lvwSelected);

signals:
    /// `position` is where it is to be inserted, from 0, in the second list; -1 in the first.
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
    QTreeView* m_source = nullptr; ///< where the button went down on a row
    QPoint m_pressed;
    QPoint m_pointer;
    bool m_dragging = false;
};
