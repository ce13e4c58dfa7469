#include "ConsoleTable.h"

#include "ConsoleTools.h"
#include "Format.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString CellText(const QJsonValue& value) {
    return value.isDouble() ? QString::number(value.toInt()) : WithoutControls(value.toString());
}

QByteArray AsJson(const ConsoleTable& table) {
    if (table.rows.isEmpty())
        return "[]\n";
    QJsonArray all;
    for (const QList<QJsonValue>& row : table.rows) {
        QJsonObject object;
        for (qsizetype column = 0; column < row.size(); ++column)
            object[table.columns[column]] = row[column];
        all += object;
    }
    return QJsonDocument(all).toJson();
}

QByteArray AsText(const ConsoleTable& table) {
    QList<qsizetype> widths;
    for (qsizetype column = 0; column < table.columns.size(); ++column) {
        qsizetype width = table.columns[column].size();
        for (const QList<QJsonValue>& row : table.rows)
            width = std::max(width, CellText(row[column]).size());
        widths += width;
    }
    QString text;
    const auto addLine = [&](const auto& cell) {
        QString line;
        for (qsizetype column = 0; column < widths.size(); ++column)
            line += cell(column) + QStringLiteral("  ");
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    };
    addLine([&](qsizetype column) {
        return table.columns[column].toUpper().leftJustified(widths[column]);
    });
    for (const QList<QJsonValue>& row : table.rows)
        addLine([&](qsizetype column) {
            const QString cell = CellText(row[column]);
            return row[column].isDouble() ? cell.rightJustified(widths[column])
                                          : cell.leftJustified(widths[column]);
        });
    return text.toUtf8();
}

} // namespace

void WriteTable(const ConsoleTable& table, bool json) {
    WriteOut(json ? AsJson(table) : AsText(table));
}
