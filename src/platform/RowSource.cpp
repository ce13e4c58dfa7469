#include "RowSource.h"

#include "RunTimeError.h"

int RowSource::Column(QStringView name) const {
    const QStringList& columns = Columns();
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
        for (int column = 0; column < columns.size(); ++column)
            if (name.compare(columns[column], sensitivity) == 0)
                return column;
    throw RunTimeError(RunTimeErrorNumber::NoSuchItem,
                       QStringLiteral("Item cannot be found in the collection corresponding to "
                                      "the requested name or ordinal."));
}
