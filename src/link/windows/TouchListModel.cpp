#include "TouchListModel.h"

#include "Format.h"
#include "mTranslations.h"

namespace {

int AlignmentOf(int column) {
    const bool centred = column >= 1 && column <= 3;
    return static_cast<int>(Qt::AlignVCenter) |
           static_cast<int>(centred ? Qt::AlignHCenter : Qt::AlignLeading);
}

} // namespace

void TouchListModel::SetTouches(colRawButtons touches) {
    beginResetModel();
    m_touches = std::move(touches);
    endResetModel();
}

int TouchListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_touches.size());
}

int TouchListModel::columnCount(const QModelIndex&) const { return ColumnCount; }

QVariant TouchListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(index.column());
    if (role != Qt::DisplayRole)
        return {};
    const cRawButton& touch = m_touches[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case 0:
        return index.row() + 1;
    case 1:
        return Format(touch.DateAndTime, QStringLiteral("Short Date"));
    case 2:
        return Format(touch.DateAndTime, QStringLiteral("hh:mm"));
    case 3:
        return touch.ButtonCode;
    case 4:
        return touch.Name;
    default:
        return touch.GroupName;
    }
}

QVariant TouchListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const char* const headers[ColumnCount] = {"Number", "Date",        "Time",
                                                     "ID",     "Button Name", "Group Name"};
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(section);
    return role == Qt::DisplayRole ? QVariant(Translate(headers[section])) : QVariant();
}
