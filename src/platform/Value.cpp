#include "Value.h"

#include "RunTimeError.h"

QString Value::Text() const {
    if (const auto* text = std::get_if<QString>(&m_data))
        return *text;
    if (const auto* number = std::get_if<qint64>(&m_data))
        return QString::number(*number);
    if (const auto* real = std::get_if<double>(&m_data))
        return QString::number(*real, 'g', 15);
    return {};
}

double Value::Real() const {
    if (const auto* number = std::get_if<qint64>(&m_data))
        return static_cast<double>(*number);
    if (const auto* real = std::get_if<double>(&m_data))
        return *real;
    if (const auto* text = std::get_if<QString>(&m_data)) {
        bool ok = false;
        const double value = text->toDouble(&ok);
        if (!ok)
            throw RunTimeError(RunTimeErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
        return value;
    }
    return 0;
}
