#pragma once

#include "DateTime.h"
#include "mDeclareGlobals.h"

#include <QString>

#include <vector>

/// One touch as it came from a reader, with what the definitions said of its button then.
struct cRawButton {
    int EventType = UserGroup; ///< goes into wGroupType
    DateTime DateAndTime;
    QString ButtonCode;
    QString Name;
    QString Description;
    QString GroupName;
    QString GroupDesc;

    bool IsEvent() const { return EventType == EventBookGroup; }
    bool IsLocation() const { return EventType == SiteGroup; }
};

/// The touches of one download, in the order in which they were made.
using colRawButtons = std::vector<cRawButton>;
