#pragma once

#include "cRawButton.h"

#include <QAbstractTableModel>

/// The rows of the download list: number, date, time, code, button, group.
class TouchListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    static constexpr int ColumnCount = 6;

    using QAbstractTableModel::QAbstractTableModel;

    void SetTouches(colRawButtons touches);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    colRawButtons m_touches;
};
