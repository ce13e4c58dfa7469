#include "RowListModel.h"

#include <QCollator>
#include <QTreeView>

#include <algorithm>
#include <numeric>
#include <vector>

void RowListModel::SetColumns(const QStringList& headers, const QList<int>& centred) {
    m_centred = centred;
    if (headers.size() == m_headers.size()) {
        m_headers = headers;
        emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(headers.size()) - 1);
        return;
    }
    beginResetModel();
    m_headers = headers;
    m_rows.clear();
    endResetModel();
}

void RowListModel::SetIcon(const QIcon& icon) { m_icon = icon; }

void RowListModel::SetRows(QList<ListRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    Arrange();
    endResetModel();
}

int RowListModel::PlaceOf(const QVariant& tag) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const ListRow& row) { return row.tag == tag; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

QStringList RowListModel::TextsOf(int column) const {
    QStringList texts;
    for (const ListRow& row : m_rows)
        texts += row.texts.value(column);
    return texts;
}

int RowListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RowListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

int RowListModel::AlignmentOf(int column) const {
    return static_cast<int>(Qt::AlignVCenter) |
           static_cast<int>(m_centred.contains(column) ? Qt::AlignHCenter : Qt::AlignLeading);
}

QVariant RowListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return m_rows[index.row()].texts.value(index.column());
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(index.column());
    const bool hasIcon = index.column() == 0 && !m_icon.isNull();
    return role == Qt::DecorationRole && hasIcon ? QVariant(m_icon) : QVariant();
}

Qt::ItemFlags RowListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == m_editable ? flags | Qt::ItemIsEditable : flags;
}

bool RowListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable) ||
        value.toString() == index.data().toString())
        return false;
    emit Edited(m_rows[index.row()].tag, value.toString());
    return true;
}

QVariant RowListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(section);
    return role == Qt::DisplayRole ? QVariant(m_headers.value(section)) : QVariant();
}

QList<int> RowListModel::SortedPlaces() const {
    QList<int> places(m_rows.size());
    std::iota(places.begin(), places.end(), 0);
    if (m_sortColumn < 0)
        return places;
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys; // made once for each text, not at every comparison
    keys.reserve(static_cast<std::size_t>(m_rows.size()));
    for (const ListRow& row : m_rows)
        keys.push_back(collator.sortKey(row.texts.value(m_sortColumn)));
    const auto key = [&](int place) -> const QCollatorSortKey& {
        return keys[static_cast<std::size_t>(place)];
    };
    std::stable_sort(places.begin(), places.end(), [&](int left, int right) {
        return m_sortOrder == Qt::AscendingOrder ? key(left) < key(right) : key(right) < key(left);
    });
    return places;
}

/// Sorts the rows. Gives the new place of each old one.
QList<int> RowListModel::Arrange() {
    const QList<int> places = SortedPlaces();
    QList<ListRow> sorted;
    QList<int> newPlaces(places.size());
    sorted.reserve(places.size());
    for (int i = 0; i < places.size(); ++i) {
        sorted += m_rows[places[i]];
        newPlaces[places[i]] = i;
    }
    m_rows = std::move(sorted);
    return newPlaces;
}

void RowListModel::sort(int column, Qt::SortOrder order) {
    emit layoutAboutToBeChanged();
    m_sortColumn = column;
    m_sortOrder = order;
    const QList<int> newPlaces = Arrange();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before)
        after += index(newPlaces[old.row()], old.column());
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

void JoinList(QTreeView& list, RowListModel& rows) {
    list.setModel(&rows);
    QItemSelectionModel* selection = list.selectionModel();
    QObject::connect(selection, &QItemSelectionModel::selectionChanged, &list, [selection] {
        if (!selection->hasSelection() && selection->currentIndex().isValid())
            selection->select(selection->currentIndex(),
                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
    });
    QObject::connect(&rows, &RowListModel::layoutChanged, &list,
                     [&list] { list.scrollTo(list.currentIndex()); });
}

int SelectedPlace(const QTreeView& list) {
    const QModelIndexList rows = list.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void SelectPlace(QTreeView& list, int place) {
    const int last = list.model()->rowCount() - 1;
    if (place >= 0 && last >= 0)
        list.setCurrentIndex(list.model()->index(std::min(place, last), 0));
}
