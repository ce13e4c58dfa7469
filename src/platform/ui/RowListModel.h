#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>

class QTreeView;

/// A row of texts in a report-style list, with a value that tells what it stands for.
struct ListRow {
    QStringList texts;
    QVariant tag;
};

/// A list of rows under column headers, which sorts itself on a column as its view asks. Rows set
/// later fall into the same order. Thousands of rows are no matter.
class RowListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(const QStringList& headers);
    /// The small picture of every row.
    void SetIcon(const QIcon& icon);
    void SetRows(QList<ListRow> rows);

    /// The row at a place in the present order.
    const ListRow& Row(int place) const { return m_rows[place]; }
    /// The place of the row with that tag; -1 where there is none.
    int PlaceOf(const QVariant& tag) const;
    /// Every row's text in a column.
    QStringList TextsOf(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// By text, upper and lower case alike. A column below 0 keeps the order in which rows are.
    void sort(int column, Qt::SortOrder order) override;

private:
    QList<int> SortedPlaces() const;

    QStringList m_headers;
    QIcon m_icon;
    QList<ListRow> m_rows;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

/// Joins a list and its rows. While there are rows one of them stays selected, once one was: a
/// click beside the rows takes no selection away. The selected row stays in sight when the list is
/// sorted.
void JoinList(QTreeView& list, RowListModel& rows);
/// The place of a list's selected row; -1 where none is.
int SelectedPlace(const QTreeView& list);
/// Selects the row at a place, the last one for a place beyond it, and shows it. Below 0 it does
/// nothing.
void SelectPlace(QTreeView& list, int place);
/// Gives each column its part of the width, in hundredths, now and whenever the list is resized.
void ShareWidth(QTreeView& list, const QList<int>& hundredths);
