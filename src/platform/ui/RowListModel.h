#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>

class QTreeView;

/// A row of texts in a report-style list, with a value that says what the row is about.
struct ListRow {
    QStringList texts;
    QVariant tag;
};

/// A list of rows under column headers. It sorts itself by a column when its view asks for it, and
/// keeps that order for rows that are set later. Thousands of rows are no problem.
class RowListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The rows stay unless the number of columns changes. Columns are aligned to the left, or
    /// centred if their number is in `centred`.
    void SetColumns(const QStringList& headers, const QList<int>& centred = {});
    /// The small picture in front of every row.
    void SetIcon(const QIcon& icon);
    void SetRows(QList<ListRow> rows);
    /// The column whose texts can be edited in the list; none at first, or below 0. The model does
    /// not change a text itself: Edited says what was typed.
    void SetEditable(int column) { m_editable = column; }

    /// The row at a place in the current order.
    const ListRow& Row(int place) const { return m_rows[place]; }
    /// The place of the row with that tag; -1 if there is none.
    int PlaceOf(const QVariant& tag) const;
    /// Every row's text in a column.
    QStringList TextsOf(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// By text, ignoring case. A column below 0 keeps the current order.
    void sort(int column, Qt::SortOrder order) override;

signals:
    /// Another text was typed into the row with that tag.
    void Edited(const QVariant& tag, const QString& text);

private:
    QList<int> SortedPlaces() const;
    QList<int> Arrange();
    int AlignmentOf(int column) const;

    QStringList m_headers;
    QList<int> m_centred;
    QIcon m_icon;
    QList<ListRow> m_rows;
    int m_editable = -1;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

/// Connects a list to its rows. Once a row is selected, one stays selected while there are rows: a
/// click beside the rows does not clear the selection. The selected row stays in view when the list
/// is sorted.
void JoinList(QTreeView& list, RowListModel& rows);
/// The place of a list's selected row; -1 if there is none.
int SelectedPlace(const QTreeView& list);
/// Selects the row at a place and scrolls to it. A place beyond the end means the last row; one
/// below 0 does nothing.
void SelectPlace(QTreeView& list, int place);
