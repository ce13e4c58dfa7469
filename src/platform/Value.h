#pragma once

#include "DateTime.h"

#include <QString>

#include <variant>
#include <vector>

/// One value of the store: null, a whole number, a real number or a text.
class Value {
public:
    Value() = default;
    Value(qint64 number) : m_data(number) {}
    Value(int number) : m_data(qint64{number}) {}
    Value(double number) : m_data(number) {}
    Value(DateTime date) : m_data(date.ToStore()) {}
    Value(QString text) : m_data(std::move(text)) {}

    bool IsNull() const { return std::holds_alternative<std::monostate>(m_data); }
    /// Null gives the empty text.
    QString Text() const;
    /// Null gives 0. Throws RunTimeError (TypeMismatch) if a text is not a number.
    qint64 Number() const { return static_cast<qint64>(std::llround(Real())); }
    double Real() const;
    DateTime Date() const { return DateTime::FromStore(Real()); }

    const auto& Data() const { return m_data; }
    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, qint64, double, QString> m_data;
};

/// The values for the "?" of a statement, in order.
using Values = std::vector<Value>;
