#include "SearchableCombo.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int RowsShown = 12;

bool IsText(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool Closes(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape || event.key() == Qt::Key_F4 ||
           (event.key() == Qt::Key_Up && event.modifiers() & Qt::AltModifier);
}

} // namespace

SearchableCombo::SearchableCombo(QWidget* parent)
    : QComboBox(parent), m_popup(new QFrame(this, Qt::Popup)), m_search(new QLineEdit(m_popup)),
      m_list(new QListView(m_popup)),
      m_nothing(new QLabel(QStringLiteral(QT_TR_NOOP("No entry contains this.")), m_popup)),
      m_found(new QSortFilterProxyModel(this)) {
    m_popup->setObjectName(QStringLiteral("searchPopup"));
    m_popup->setFrameShape(QFrame::StyledPanel);
    m_search->setObjectName(QStringLiteral("txtSearch"));
    m_search->setAccessibleName(QStringLiteral(QT_TR_NOOP("Search")));
    m_search->setPlaceholderText(QStringLiteral(QT_TR_NOOP("Search")));
    m_search->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("lvwFound"));
    m_list->setAccessibleName(QStringLiteral(QT_TR_NOOP("Entries")));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setMouseTracking(true);
    m_list->setModel(m_found);
    m_nothing->setWordWrap(true);
    m_nothing->hide();
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto* layout = new QVBoxLayout(m_popup);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_search);
    layout->addWidget(m_nothing);
    layout->addWidget(m_list, 1);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    m_search->installEventFilter(this);
    m_list->installEventFilter(this);
    m_popup->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &SearchableCombo::Search);
    connect(m_list, &QListView::clicked, this, &SearchableCombo::Choose);
    connect(m_list, &QListView::entered, m_list, &QListView::setCurrentIndex);
}

void SearchableCombo::showPopup() { Open({}); }

void SearchableCombo::hidePopup() {
    m_popup->hide();
    QComboBox::hidePopup();
}

void SearchableCombo::Open(const QString& typed) {
    if (count() == 0)
        return;
    m_found->setSourceModel(model());
    m_found->setFilterKeyColumn(modelColumn());
    m_list->setModelColumn(modelColumn());
    m_list->setIconSize(iconSize());
    m_search->setText(typed);
    Search(typed);
    Place();
    m_popup->show();
    if (typed.isEmpty())
        m_list->setFocus(); // a screen reader then says the entry that is chosen now
    else
        m_search->setFocus();
    m_search->deselect();
    if (const QModelIndex current = m_list->currentIndex(); current.isValid())
        m_list->scrollTo(current, QAbstractItemView::PositionAtCenter);
}

void SearchableCombo::Place() {
    const QRect screen = this->screen()->availableGeometry();
    const int row = std::max(1, m_list->sizeHintForRow(0));
    const int frames = 2 * (m_list->frameWidth() + m_popup->frameWidth()) + 12;
    const int tall = std::min(screen.height() / 2, row * std::min(RowsShown, count()) + frames +
                                                       m_search->sizeHint().height());
    const QAbstractItemView& view = *m_list; // the list's own routine is not public
    const int wanted = view.sizeHintForColumn(modelColumn()) +
                       m_list->verticalScrollBar()->sizeHint().width() + frames;
    const int wide = std::min(std::max(width(), wanted), screen.width());
    QPoint corner = mapToGlobal(QPoint(isRightToLeft() ? width() - wide : 0, height()));
    if (corner.y() + tall > screen.bottom())
        corner.setY(mapToGlobal(QPoint(0, 0)).y() - tall);
    corner.setX(std::clamp(corner.x(), screen.left(), screen.right() + 1 - wide));
    m_popup->setGeometry(QRect(corner, QSize(wide, tall)));
}

void SearchableCombo::Search(const QString& text) {
    m_found->setFilterFixedString(text.trimmed());
    m_nothing->setVisible(m_found->rowCount() == 0);
    const QModelIndex chosen =
        m_found->mapFromSource(model()->index(currentIndex(), modelColumn(), rootModelIndex()));
    m_list->setCurrentIndex(chosen.isValid() ? chosen : m_found->index(0, modelColumn()));
}

void SearchableCombo::Choose() {
    const QModelIndex found = m_list->currentIndex();
    if (!found.isValid())
        return;
    const int row = m_found->mapToSource(found).row();
    hidePopup();
    setFocus(Qt::PopupFocusReason);
    setCurrentIndex(row);
    emit activated(row);
    emit textActivated(itemText(row));
}

void SearchableCombo::keyPressEvent(QKeyEvent* event) {
    if (IsText(*event) && event->key() != Qt::Key_Space)
        Open(event->text());
    else
        QComboBox::keyPressEvent(event);
}

bool SearchableCombo::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched == m_search)
        return KeyInSearch(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyPress && watched == m_list)
        return KeyInList(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::Hide && watched == m_popup)
        QComboBox::hidePopup(); // the frame shows that the list is closed
    return QComboBox::eventFilter(watched, event);
}

/// True if the key was used.
bool SearchableCombo::KeyInSearch(QKeyEvent& event) {
    if (Closes(event)) {
        hidePopup();
        return true;
    }
    if (IsEnter(event)) {
        Choose();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_list->setFocus();
        QCoreApplication::sendEvent(m_list, &event);
        return true;
    default:
        return false;
    }
}

bool SearchableCombo::KeyInList(QKeyEvent& event) {
    if (Closes(event)) {
        hidePopup();
        return true;
    }
    if (IsEnter(event) || event.key() == Qt::Key_Space) {
        Choose();
        return true;
    }
    if (!IsText(event) && event.key() != Qt::Key_Backspace)
        return false;
    m_search->setFocus();
    QCoreApplication::sendEvent(m_search, &event);
    return true;
}
