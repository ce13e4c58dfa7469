#include "SqlDate.h"

#include "Format.h"
#include "mErrorHandler.h"

QString SqlDateFmt(DateTime date) {
    return GuardedWithBox("SqlDateFmt", [&] { return Format(date, QStringLiteral("YYYY-MM-DD")); });
}

QString SqlDateTimeFmt(DateTime date) {
    return GuardedWithBox("SqlDateTimeFmt",
                          [&] { return Format(date, QStringLiteral("YYYY-MM-DD Hh:Nn:Ss")); });
}
