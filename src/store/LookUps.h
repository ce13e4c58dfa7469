#pragma once

#include "DateTime.h"
#include "mDeclareGlobals.h"

#include <QList>
#include <QSet>
#include <QString>

#include <optional>

/// Reads what an operator has defined: groups with their buttons, readers, tours. These routines
/// use gConn and throw RunTimeError unless noted. Lists are in the order in which the rows were
/// stored, unless the name says otherwise.

/// A site, an event book or a user group.
struct Group {
    int id = 0;
    QString name;
    QString description;
};
QList<Group> GroupsOf(GroupType type);
QList<Group> SitesByName();
bool GroupHasButtons(int id);

/// A location, an event or a user.
struct Button {
    int id = 0;
    QString code; ///< six upper-case hexadecimal digits
    QString name;
    QString description;
};
QList<Button> ButtonsOf(int groupId);
/// An event with its event book.
struct EventButton : Button {
    QString groupName;
};
/// The events of all event books, book by book.
QList<EventButton> EventButtons();
/// The codes of all buttons.
QSet<QString> ButtonCodes();
/// True if any site has a button.
bool HasLocations();

/// What every touch of a button takes over from its definition.
struct ButtonData {
    int groupType = UserGroup;
    QString name;
    QString description;
    QString groupName;
    QString groupDescription;
};
/// Nothing if no button, or more than one, has this code.
std::optional<ButtonData> FindButton(const QString& code);

struct Reader {
    QString id; ///< eight upper-case hexadecimal digits
    QString description;
};
/// The reader as lists and reports name it: "4B5831A7 - Night shift".
inline QString ReaderText(const Reader& reader) {
    return reader.id + QStringLiteral(" - ") + reader.description;
}
/// The same for an identifier, for messages: the identifier alone if the reader has not been taught
/// or cannot be read. Does not throw.
QString ReaderTextOf(const QString& id);
QList<Reader> Readers();
QList<Reader> ReadersById();
QList<Reader> ReadersByDescription();
/// Nothing if the reader has not been taught.
std::optional<Reader> FindReader(const QString& id);
int CountReaders();

struct Tour {
    int id = 0;
    QString name;
    QString description;
    int tolerance = 5;  ///< minutes
    DateTime startTime; ///< only its time of day counts
};
QList<Tour> Tours();
QList<Tour> ToursByName();
std::optional<Tour> FindTour(int id);
bool TourHasPoints(int id);
int CountTours();
