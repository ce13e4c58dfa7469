#pragma once

#include "darReport.h"

/// The layout of the hardware list: groups with their buttons, and the readers.
class darHardwareList : public darReport {
public:
    darHardwareList() : darReport(QStringLiteral("darHardwareList")) {}
};
