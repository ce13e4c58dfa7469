#include "SqlTranslator.h"

#include "DateTime.h"
#include "RunTimeError.h"

#include <QList>
#include <QRegularExpression>

namespace {

enum class TokenKind { Word, Text, Date, Other };

struct Token {
    TokenKind kind;
    QString text;
};

bool IsWordCharacter(QChar c) { return c.isLetterOrNumber() || c == u'_' || c == u'.'; }

/// Text from `at` to the closing quote. A doubled quote means one.
QString ReadQuoted(const QString& statement, qsizetype& at) {
    const QChar quote = statement[at];
    QString text;
    for (++at; at < statement.size(); ++at) {
        if (statement[at] == quote) {
            if (at + 1 >= statement.size() || statement[at + 1] != quote)
                break;
            ++at;
        }
        text += statement[at];
    }
    ++at;
    return text;
}

QList<Token> Split(const QString& statement) {
    QList<Token> tokens;
    for (qsizetype at = 0; at < statement.size();) {
        const QChar c = statement[at];
        if (c == u'\'' || c == u'"') {
            tokens += {TokenKind::Text, ReadQuoted(statement, at)};
        } else if (c == u'#') {
            tokens += {TokenKind::Date, ReadQuoted(statement, at)};
        } else if (IsWordCharacter(c) || c == u'[') {
            const qsizetype start = at;
            while (at < statement.size() &&
                   (IsWordCharacter(statement[at]) || statement[at] == u'[')) {
                const qsizetype end = statement[at] == u'[' ? statement.indexOf(u']', at) : at;
                at = end < 0 ? statement.size() : end + 1;
            }
            tokens += {TokenKind::Word, statement.mid(start, at - start)};
        } else {
            // "<=", "<>", "||" and the like stay in one piece.
            static const QString comparison = QStringLiteral("<>=!|");
            const qsizetype start = at++;
            while (comparison.contains(c) && at < statement.size() &&
                   comparison.contains(statement[at]))
                ++at;
            if (!c.isSpace())
                tokens += {TokenKind::Other, statement.mid(start, at - start)};
        }
    }
    while (!tokens.isEmpty() && tokens.last().text == u";" &&
           tokens.last().kind == TokenKind::Other)
        tokens.removeLast();
    return tokens;
}

bool IsWord(const Token& token, QStringView word) {
    return token.kind == TokenKind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

bool IsSign(const Token& token, QStringView sign) {
    return token.kind == TokenKind::Other && token.text == sign;
}

QString DateNumber(const QString& literal) {
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d{4})-(\\d{1,2})-(\\d{1,2})"
                       "(?:\\s+(\\d{1,2}):(\\d{1,2})(?::(\\d{1,2}))?)?\\s*$"));
    const auto match = form.match(literal);
    const auto number = [&](int group) { return match.captured(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    const QTime time(number(4), number(5), number(6));
    if (!match.hasMatch() || !date.isValid() || !time.isValid())
        throw RunTimeError(
            RunTimeErrorNumber::TypeMismatch,
            QStringLiteral("Syntax error in date in query expression '#%1#'.").arg(literal));
    // Seventeen digits give exactly the double that a date-time of the same value is stored as. The
    // exponent makes the engine read it as a real number.
    return QString::number(
        (DateTime::FromQt(date) + DateTime::FromTime(number(4), number(5), number(6))).ToStore(),
        'e', 17);
}

QString Rendered(const Token& token) {
    switch (token.kind) {
    case TokenKind::Text:
        return u'\'' + QString(token.text).replace(u'\'', QStringLiteral("''")) + u'\'';
    case TokenKind::Date:
        return DateNumber(token.text);
    case TokenKind::Word:
        if (IsWord(token, u"autoincrement"))
            return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
        if (IsWord(token, u"memo") || IsWord(token, u"VARCHAR"))
            return QStringLiteral("TEXT");
        break;
    case TokenKind::Other:
        break;
    }
    return token.text;
}

/// The positions of a SELECT's clauses, as token indexes; -1 if there is none. Only the outer level
/// counts, but a table's name may be within the brackets of a join.
struct SelectShape {
    qsizetype from = -1;
    qsizetype orderBy = -1;
    qsizetype limit = -1;
    QStringList tables;    ///< in the order in which they are named
    QStringList names;     ///< what the statement calls them: the alias, if there is one
    bool plainRows = true; ///< the rows of the table itself, not sums or groups
};

/// What the statement calls the table that is named at `at`.
QString NameOfTable(const QList<Token>& tokens, qsizetype at) {
    const auto wordAt = [&](qsizetype i) {
        return i < tokens.size() && tokens[i].kind == TokenKind::Word ? tokens[i].text.toUpper()
                                                                      : QString();
    };
    static const QStringList following = {
        QStringLiteral("INNER"),   QStringLiteral("LEFT"),      QStringLiteral("CROSS"),
        QStringLiteral("OUTER"),   QStringLiteral("NATURAL"),   QStringLiteral("JOIN"),
        QStringLiteral("ON"),      QStringLiteral("USING"),     QStringLiteral("WHERE"),
        QStringLiteral("GROUP"),   QStringLiteral("HAVING"),    QStringLiteral("ORDER"),
        QStringLiteral("LIMIT"),   QStringLiteral("UNION"),     QStringLiteral("EXCEPT"),
        QStringLiteral("INDEXED"), QStringLiteral("INTERSECT"), QStringLiteral("NOT")};
    if (wordAt(at + 1) == u"AS" && !wordAt(at + 2).isEmpty())
        return tokens[at + 2].text;
    const bool alias = !wordAt(at + 1).isEmpty() && !following.contains(wordAt(at + 1));
    return tokens[alias ? at + 1 : at].text;
}

SelectShape ShapeOf(const QList<Token>& tokens) {
    SelectShape shape;
    int depth = 0;
    bool naming = false; // between FROM and what follows the tables
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (depth == 0 && (IsWord(token, u"WHERE") || IsWord(token, u"GROUP") ||
                           IsWord(token, u"ORDER") || IsWord(token, u"LIMIT")))
            naming = false;
        // The rows of a query have no order of storing, and a name in quotes is not understood
        // here.
        if (naming &&
            (IsWord(token, u"SELECT") ||
             (shape.tables.isEmpty() && token.kind != TokenKind::Word && !IsSign(token, u"("))))
            shape.plainRows = false;
        if (IsSign(token, u"("))
            ++depth;
        else if (IsSign(token, u")"))
            --depth;
        else if ((depth == 0 &&
                  (IsWord(token, u"GROUP") || IsWord(token, u"UNION") || IsWord(token, u"EXCEPT") ||
                   IsWord(token, u"INTERSECT") || IsWord(token, u"DISTINCT"))) ||
                 (shape.from < 0 && (IsWord(token, u"COUNT") || IsWord(token, u"MAX") ||
                                     IsWord(token, u"MIN") || IsWord(token, u"SUM"))))
            shape.plainRows = false;
        else if (depth == 0 && IsWord(token, u"FROM") && shape.from < 0) {
            shape.from = i;
            naming = true;
        } else if (depth == 0 && IsWord(token, u"ORDER") && shape.orderBy < 0)
            shape.orderBy = i;
        else if (depth == 0 && IsWord(token, u"LIMIT"))
            shape.limit = i;
        else if (naming && token.kind == TokenKind::Word &&
                 (shape.tables.isEmpty() || IsWord(tokens[i - 1], u"JOIN"))) {
            shape.tables += token.text;
            shape.names += NameOfTable(tokens, i);
        }
    }
    if (shape.tables.isEmpty())
        shape.plainRows = false;
    return shape;
}

/// The prefix of a column's name is its type: a "t" before a capital letter means text.
bool IsTextColumn(const QString& name) {
    const QString column = name.mid(name.lastIndexOf(u'.') + 1);
    return column.size() > 1 && column[0] == u't' && column[1].isUpper();
}

QString OrderTail(const QList<Token>& tokens, const SelectShape& shape, qsizetype end) {
    const QString keys = shape.names.join(QStringLiteral(".rowid, ")) + QStringLiteral(".rowid");
    if (shape.orderBy < 0)
        return QStringLiteral(" ORDER BY ") + keys;
    QString tail = QStringLiteral(" ORDER BY");
    for (qsizetype i = shape.orderBy + 2; i < end; ++i) {
        tail += u' ' + Rendered(tokens[i]);
        if (tokens[i].kind == TokenKind::Word && IsTextColumn(tokens[i].text))
            tail += QStringLiteral(" COLLATE ") + QLatin1String(PeopleCollation);
    }
    return tail + QStringLiteral(", ") + keys;
}

} // namespace

EngineSql TranslateSql(const QString& statement, bool withRowKey) {
    const QList<Token> tokens = Split(statement);
    EngineSql result;
    if (tokens.isEmpty())
        return result;
    const bool isSelect = IsWord(tokens[0], u"SELECT");
    const SelectShape shape = isSelect ? ShapeOf(tokens) : SelectShape{};
    const bool ordered = isSelect && shape.plainRows;
    if (ordered && shape.tables.size() == 1) {
        result.table = shape.tables.first();
        result.hasRowKey = withRowKey;
    }

    QString text;
    const qsizetype limit = ordered && shape.limit >= 0 ? shape.limit : tokens.size();
    const qsizetype end = ordered && shape.orderBy >= 0 ? shape.orderBy : limit;
    for (qsizetype i = 0; i < end; ++i) {
        if (i == 1 && IsWord(tokens[0], u"DELETE") && IsSign(tokens[1], u"*"))
            continue;
        if (result.hasRowKey && i == shape.from)
            text += QStringLiteral(" , %1.rowid").arg(shape.names.first());
        if (i > 0)
            text += u' ';
        text += Rendered(tokens[i]);
    }
    if (ordered)
        text += OrderTail(tokens, shape, limit);
    for (qsizetype i = limit; i < tokens.size(); ++i)
        text += u' ' + Rendered(tokens[i]);
    result.text = text.toUtf8();
    return result;
}
