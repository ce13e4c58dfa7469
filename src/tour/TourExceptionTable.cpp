#include "TourExceptionTable.h"

#include "ScratchTable.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

namespace {

const QString Table = QStringLiteral("tblXXXException");
const QString Rule(255, u'_');

} // namespace

const QStringList& TourExceptionTable::ColumnNames() {
    static const QStringList names = {QStringLiteral("tItem"),
                                      QStringLiteral("tTourTime"),
                                      QStringLiteral("txtTourTimeRange"),
                                      QStringLiteral("tLocationName"),
                                      QStringLiteral("tLocationDesc"),
                                      QStringLiteral("tSiteName"),
                                      QStringLiteral("tStatus"),
                                      QStringLiteral("tSeparator"),
                                      QStringLiteral("txtEventTime"),
                                      QStringLiteral("txtEventStatus"),
                                      QStringLiteral("txtEventDetails")};
    return names;
}

TourExceptionTable::~TourExceptionTable() { Close(); }

bool TourExceptionTable::ResetTempTourTable() {
    return GuardedInScratch("ResetTempTourTable of Form frmRptTour", [] {
        MakeScratchTable(Table, ColumnNames());
        return true;
    });
}

void TourExceptionTable::Drop() { DropScratchTable(Table); }

bool TourExceptionTable::Fill(const std::function<bool()>& make,
                              const std::function<bool()>& write) {
    return FillScratchTable(Table, make, m_rows, write);
}

void TourExceptionTable::Close() {
    if (m_rows.State() == adStateOpen)
        m_rows.Close();
}

void TourExceptionTable::WriteTourLine(int item, const QString& time, const QString& range,
                                       const QString& place, const QString& status) {
    WriteSeparator();
    m_rows.AddNew();
    m_rows.Set(u"tItem", QString::number(item));
    m_rows.Set(u"tTourTime", time);
    m_rows.Set(u"txtTourTimeRange", range);
    m_rows.Set(u"tSiteName", place);
    m_rows.Set(u"tStatus", status);
}

void TourExceptionTable::WriteDetailLine(const QString& time, const QString& status,
                                         const QString& details) {
    m_rows.AddNew();
    m_rows.Set(u"txtEventTime", time);
    m_rows.Set(u"txtEventStatus", status);
    m_rows.Set(u"txtEventDetails", details);
}

void TourExceptionTable::WriteNote(const QString& text) {
    m_rows.AddNew();
    m_rows.Set(u"tSeparator", text);
}

void TourExceptionTable::WriteSeparator() { WriteNote(Rule); }
