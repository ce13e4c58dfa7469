#pragma once

#include "DateTime.h"
#include "mDeclareGlobals.h"

#include <QString>

#include <vector>

/// One touch from a reader, with the definition of its button at that time.
struct cRawButton {
    int EventType = UserGroup; ///< a GroupType, stored as wGroupType
    DateTime DateAndTime;
    QString ButtonCode;
    QString Name;
    QString Description;
    QString GroupName;
    QString GroupDesc;

    // Part of the type's interface; the station itself asks for EventType.
    bool IsEvent() const { return EventType == EventBookGroup; }
    bool IsLocation() const { return EventType == SiteGroup; }
};

/// The touches of one download, oldest first.
using colRawButtons = std::vector<cRawButton>;
