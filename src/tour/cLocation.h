#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

/// A button code as the evaluation compares it: cut or padded with blanks to six characters.
inline QString FixedCode(const QString& code) { return code.leftJustified(6, u' ', true); }

/// One touch of an event button. The descriptions belong to the model; no report prints them.
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

/// In order of time.
using colLocations = std::vector<cLocation>;
