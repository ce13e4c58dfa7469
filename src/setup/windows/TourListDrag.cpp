#include "TourListDrag.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

constexpr int CueHeight = 4;
constexpr int PointerGap = 14;     ///< pixels between the pointer and the label
constexpr int ScrollEdge = 14;     ///< pixels from the list's edge within which it scrolls
constexpr int ScrollInterval = 80; ///< ms for each row

} // namespace

TourListDrag::TourListDrag(QTreeView& lvwLocations, QTreeView& lvwSelected)
    : QObject(&lvwSelected), m_lvwLocations(lvwLocations), m_lvwSelected(lvwSelected),
      m_lblDragDrop(new QLabel(lvwSelected.window())),
      m_picInsertPtr(new QLabel(lvwSelected.viewport())) {
    m_lblDragDrop->setObjectName(QStringLiteral("lblDragDrop"));
    m_picInsertPtr->setObjectName(QStringLiteral("picInsertPtr"));
    for (QLabel* label : {m_lblDragDrop, m_picInsertPtr}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setAutoFillBackground(true);
        label->hide();
    }
    m_lblDragDrop->setFrameShape(QFrame::Box);
    m_lblDragDrop->setBackgroundRole(QPalette::ToolTipBase);
    m_lblDragDrop->setForegroundRole(QPalette::ToolTipText);
    m_lblDragDrop->setMargin(3);
    m_lblDragDrop->setTextFormat(Qt::PlainText);
    m_picInsertPtr->setStyleSheet(QStringLiteral("background: #d98e04"));
    m_scroll.setInterval(ScrollInterval);
    connect(&m_scroll, &QTimer::timeout, this, &TourListDrag::ScrollAtTheEdge);
    for (QTreeView* list : {&lvwLocations, &lvwSelected}) {
        list->installEventFilter(this);
        list->viewport()->installEventFilter(this);
    }
}

bool TourListDrag::eventFilter(QObject* watched, QEvent* event) {
    const auto* mouse = dynamic_cast<QMouseEvent*>(event); // null for the keys
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (m_dragging) { // of another button
            End();
            return true;
        }
        Press(qobject_cast<QTreeView*>(watched->parent()), *mouse);
        return false;
    case QEvent::MouseMove:
        if (!m_source || !(mouse->buttons() & Qt::LeftButton))
            return false;
        m_pointer = mouse->globalPosition().toPoint();
        if (!m_dragging &&
            (m_pointer - m_pressed).manhattanLength() >= QApplication::startDragDistance())
            Begin();
        if (m_dragging)
            Follow();
        return true; // the dragged row stays selected
    case QEvent::MouseButtonRelease:
        if (!m_dragging || mouse->button() != Qt::LeftButton) {
            m_source = m_dragging ? m_source : nullptr;
            return m_dragging;
        }
        m_pointer = mouse->globalPosition().toPoint();
        Drop();
        return true;
    case QEvent::ShortcutOverride: // no key may change the rows during a drag
        if (m_dragging)
            event->accept();
        return m_dragging;
    case QEvent::KeyPress:
        if (m_dragging && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            End();
            return true;
        }
        return m_dragging;
    default:
        return false;
    }
}

void TourListDrag::Press(QTreeView* list, const QMouseEvent& event) {
    m_pressed = event.globalPosition().toPoint();
    const bool onRow = list && event.button() == Qt::LeftButton &&
                       list->indexAt(event.position().toPoint()).isValid();
    m_source = onRow ? list : nullptr;
}

void TourListDrag::Drop() {
    QTreeView* source = m_source;
    End();
    if (QTreeView* target = ListUnder(m_pointer))
        emit Dropped(source, target, target == &m_lvwSelected ? InsertPositionAt(m_pointer) : -1);
}

QTreeView* TourListDrag::ListUnder(const QPoint& globalPosition) const {
    for (QTreeView* list : {&m_lvwLocations, &m_lvwSelected})
        if (list->rect().contains(list->mapFromGlobal(globalPosition)))
            return list;
    return nullptr;
}

/// The position of the row under the pointer; below the last row, the end of the list.
int TourListDrag::InsertPositionAt(const QPoint& globalPosition) const {
    const QPoint place = m_lvwSelected.viewport()->mapFromGlobal(globalPosition);
    if (place.y() < 0)
        return m_lvwSelected.indexAt(QPoint(0, 0)).isValid()
                   ? m_lvwSelected.indexAt(QPoint(0, 0)).row()
                   : 0;
    const QModelIndex row = m_lvwSelected.indexAt(QPoint(0, place.y()));
    return row.isValid() ? row.row() : m_lvwSelected.model()->rowCount();
}

void TourListDrag::Begin() {
    const QModelIndex row =
        m_source->indexAt(m_source->viewport()->mapFromGlobal(m_pressed)).siblingAtColumn(0);
    if (!row.isValid()) { // the row has been removed since the button was pressed
        m_source = nullptr;
        return;
    }
    m_source->setCurrentIndex(row);
    m_dragging = true;
    QStringList texts; // of its columns that are not empty
    for (int column = 0; column < row.model()->columnCount(); ++column)
        if (const QString text = row.siblingAtColumn(column).data().toString(); !text.isEmpty())
            texts += text;
    m_lblDragDrop->setText(texts.join(QStringLiteral("  ")));
    m_lblDragDrop->adjustSize();
    m_lblDragDrop->show();
    m_lblDragDrop->raise();
    m_scroll.start();
}

void TourListDrag::Follow() {
    const bool rightToLeft = m_lblDragDrop->isRightToLeft(); // the label follows the pointer
    m_lblDragDrop->move(
        m_lblDragDrop->parentWidget()->mapFromGlobal(m_pointer) +
        QPoint(rightToLeft ? -PointerGap - m_lblDragDrop->width() : PointerGap, 10));
    const bool overSelected = ListUnder(m_pointer) == &m_lvwSelected;
    if (overSelected)
        ShowCue(InsertPositionAt(m_pointer));
    m_picInsertPtr->setVisible(overSelected);
}

void TourListDrag::ScrollAtTheEdge() {
    if (ListUnder(m_pointer) != &m_lvwSelected)
        return;
    const int y = m_lvwSelected.viewport()->mapFromGlobal(m_pointer).y();
    QScrollBar* bar = m_lvwSelected.verticalScrollBar();
    if (y < ScrollEdge)
        bar->setValue(bar->value() - bar->singleStep());
    else if (y > m_lvwSelected.viewport()->height() - ScrollEdge)
        bar->setValue(bar->value() + bar->singleStep());
    ShowCue(InsertPositionAt(m_pointer));
}

void TourListDrag::ShowCue(int position) {
    const QAbstractItemModel& model = *m_lvwSelected.model();
    int y = 0;
    if (position < model.rowCount())
        y = m_lvwSelected.visualRect(model.index(position, 0)).top();
    else if (position > 0)
        y = m_lvwSelected.visualRect(model.index(position - 1, 0)).bottom();
    m_picInsertPtr->setGeometry(0, std::max(0, y - CueHeight / 2),
                                m_lvwSelected.viewport()->width(), CueHeight);
    m_picInsertPtr->raise();
}

void TourListDrag::End() {
    m_source = nullptr;
    m_dragging = false;
    m_scroll.stop();
    m_lblDragDrop->hide();
    m_picInsertPtr->hide();
}
