#pragma once

#include "darReport.h"

/// The layout of the reader download report: a block for each download.
class darReaderUpload : public darReport {
public:
    darReaderUpload() : darReport(QStringLiteral("darReaderUpload")) {}
};
