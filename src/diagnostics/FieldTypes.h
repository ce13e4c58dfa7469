#pragma once

#include "Value.h"

#include <QString>

/// The types of columns that a dump shows, with the names and numbers of the ADODB data types.
enum DataType {
    adEmpty = 0,
    adSmallInt = 2,
    adInteger = 3,
    adSingle = 4,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBSTR = 8,
    adIDispatch = 9,
    adError = 10,
    adBoolean = 11,
    adVariant = 12,
    adIUnknown = 13,
    adDecimal = 14,
    adTinyInt = 16,
    adUnsignedTinyInt = 17,
    adUnsignedSmallInt = 18,
    adUnsignedInt = 19,
    adBigInt = 20,
    adUnsignedBigInt = 21,
    adGUID = 72,
    adBinary = 128,
    adChar = 129,
    adWChar = 130,
    adNumeric = 131,
    adUserDefined = 132,
    adDBDate = 133,
    adDBTime = 134,
    adDBTimeStamp = 135,
    adVarChar = 200,
    adLongVarChar = 201,
    adVarWChar = 202,
    adLongVarWChar = 203,
    adVarBinary = 204,
    adLongVarBinary = 205,
    adArray = 0x2000
};

/// The name of a type, such as "adVarWChar"; empty if no type has this number.
QString FieldTypeName(int type);

/// The type of a column. Its name says it, as everywhere in the store:
///
/// | name                                       | type             |
/// |--------------------------------------------|------------------|
/// | "t" or "txt", then a capital letter        | adVarWChar       |
/// | "LoginName", "Password"                    | adVarWChar       |
/// | "Field0" to "Field9" (memo)                | adLongVarWChar   |
/// | "dt", then a capital letter                | adDate           |
/// | "w", then a capital letter                 | adUnsignedTinyInt|
/// | "i", then a capital letter                 | adSmallInt       |
/// | "l", then a capital letter; "ID"           | adInteger        |
///
/// The type of any other column, such as a sum, is that of its value in the first row: adInteger,
/// adDouble, adVarWChar, or adEmpty for a null.
DataType FieldType(const QString& column, const Value& first);

/// The bytes of a number or date. For text, which has no limit in the store, 50 characters; for
/// adEmpty none.
int DefinedSize(DataType type);
