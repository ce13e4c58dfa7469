#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

/// A button code as the evaluation compares it: cut to six characters, or padded with blanks.
inline QString FixedCode(const QString& code) { return code.leftJustified(6, u' ', true); }

/// One touch of an event button.
struct cEvent {
    DateTime DateAndTime;
    QString Code; ///< FixedCode
    QString Name;
    QString Description;
    QString GroupName;
    QString GroupDesc;
};
using colEvents = std::vector<cEvent>;

/// One touch of a location button, with the event touches that followed it.
struct cLocation {
    DateTime DateAndTime;
    QString ButtonCode; ///< FixedCode
    QString Name;
    QString Description;
    QString GroupName; ///< the site's name
    QString GroupDesc;
    colEvents Events;
};

/// In the order of time.
using colLocations = std::vector<cLocation>;
