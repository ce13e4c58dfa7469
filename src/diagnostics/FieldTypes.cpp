#include "FieldTypes.h"

#include <QRegularExpression>

#include <array>

namespace {

constexpr int TextSize = 50;

struct TypeName {
    DataType type;
    const char* name;
};
#define NAMED(type)                                                                                \
    TypeName { type, #type }
constexpr auto TypeNames = std::to_array<TypeName>({NAMED(adArray),
                                                    NAMED(adBigInt),
                                                    NAMED(adBinary),
                                                    NAMED(adBoolean),
                                                    NAMED(adBSTR),
                                                    NAMED(adChar),
                                                    NAMED(adCurrency),
                                                    NAMED(adDate),
                                                    NAMED(adDBDate),
                                                    NAMED(adDBTime),
                                                    NAMED(adDBTimeStamp),
                                                    NAMED(adDecimal),
                                                    NAMED(adDouble),
                                                    NAMED(adEmpty),
                                                    NAMED(adError),
                                                    NAMED(adGUID),
                                                    NAMED(adIDispatch),
                                                    NAMED(adInteger),
                                                    NAMED(adIUnknown),
                                                    NAMED(adLongVarBinary),
                                                    NAMED(adLongVarChar),
                                                    NAMED(adLongVarWChar),
                                                    NAMED(adNumeric),
                                                    NAMED(adSingle),
                                                    NAMED(adSmallInt),
                                                    NAMED(adTinyInt),
                                                    NAMED(adUnsignedBigInt),
                                                    NAMED(adUnsignedInt),
                                                    NAMED(adUnsignedSmallInt),
                                                    NAMED(adUnsignedTinyInt),
                                                    NAMED(adUserDefined),
                                                    NAMED(adVarBinary),
                                                    NAMED(adVarChar),
                                                    NAMED(adVariant),
                                                    NAMED(adVarWChar),
                                                    NAMED(adWChar)});
#undef NAMED

struct NameRule {
    const char* pattern;
    DataType type;
};
constexpr auto NameRules = std::to_array<NameRule>({{"^(t|txt)[A-Z]", adVarWChar},
                                                    {"^(LoginName|Password)$", adVarWChar},
                                                    {"^Field[0-9]$", adLongVarWChar},
                                                    {"^dt[A-Z]", adDate},
                                                    {"^w[A-Z]", adUnsignedTinyInt},
                                                    {"^i[A-Z]", adSmallInt},
                                                    {"^(l[A-Z]|ID$)", adInteger}});

} // namespace

QString FieldTypeName(int type) {
    for (const TypeName& known : TypeNames)
        if (known.type == type)
            return QString::fromLatin1(known.name);
    return {};
}

DataType FieldType(const QString& column, const Value& first) {
    for (const NameRule& rule : NameRules)
        if (QRegularExpression(QString::fromLatin1(rule.pattern)).match(column).hasMatch())
            return rule.type;
    if (std::holds_alternative<qint64>(first.Data()))
        return adInteger;
    if (std::holds_alternative<double>(first.Data()))
        return adDouble;
    return first.IsNull() ? adEmpty : adVarWChar;
}

int DefinedSize(DataType type) {
    switch (type) {
    case adVarWChar:
    case adLongVarWChar:
        return TextSize;
    case adDate:
    case adDouble:
        return 8;
    case adInteger:
        return 4;
    case adSmallInt:
        return 2;
    case adUnsignedTinyInt:
        return 1;
    default:
        return 0;
    }
}
