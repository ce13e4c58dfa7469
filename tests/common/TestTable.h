#pragma once

#include <QTest>

/// The columns of a data-driven test. Each call adds a row: its name, then a value for each column.
template <typename... Types>
class TestTable {
public:
    template <typename... Names>
    explicit TestTable(Names... columns) {
        (QTest::addColumn<Types>(columns), ...);
    }
    void operator()(const QString& name, const Types&... values) const {
        (QTest::newRow(qPrintable(name)) << ... << values);
    }
};
