#pragma once

#include "DateTime.h"
#include "mDeclareGlobals.h"

#include <QList>
#include <QString>
#include <QStringList>

class TourDraft;

/// What an operator defines, as rows of the store: groups with their buttons, readers, tours. All
/// of it works on gConn, and every failure throws RunTimeError. Events are never touched: they keep
/// what was true when they were downloaded.

/// A site, an event book or a user group.
struct Group {
    int id = 0;
    QString name;
    QString description;
};
QList<Group> GroupsOf(GroupType type);
/// Adds a group without a description and gives its ID.
int AddGroup(GroupType type, const QString& name);
void UpdateGroup(const Group& group);
bool GroupHasButtons(int id);
/// The group with all its buttons. Tours that visit them keep their points.
void DeleteGroup(int id);

/// A location, an event or a user.
struct Button {
    int id = 0;
    QString code; ///< six upper-case hexadecimal digits
    QString name;
    QString description;
};
QList<Button> ButtonsOf(int groupId);
void AddButton(int groupId, const Button& button);
/// Name and description; nothing where the button is no longer there.
void UpdateButton(const Button& button);
void DeleteButton(int id);
/// True if any site has a button.
bool HasLocations();

struct Reader {
    QString id; ///< eight upper-case hexadecimal digits
    QString description;
};
QList<Reader> Readers();
void AddReader(const Reader& reader);
void UpdateReader(const Reader& reader);
void DeleteReader(const QString& id);

struct Tour {
    int id = 0;
    QString name;
    QString description;
    int tolerance = 5;  ///< minutes
    DateTime startTime; ///< only its time of day counts
};
QList<Tour> Tours();
/// Adds a tour without points, that starts at midnight, and gives its ID.
int AddTour(const QString& name);
void UpdateTour(const Tour& tour);
/// The tour with its points: both or nothing. No other tour is touched.
void SaveTour(const Tour& tour, const TourDraft& points);
bool TourHasPoints(int id);
/// The tour with its points.
void DeleteTour(int id);
/// Adds a tour of that name with the points of another, and gives its ID: all or nothing.
int CopyTour(int from, const QString& name);

/// The first of "base 001" to "base 999" that is not taken; empty where all are.
QString FreshName(const QString& base, const QStringList& taken);
/// The first of "Reader 1" to "Reader 999", translated, that is not taken; empty where all are.
QString FreshReaderName(const QStringList& taken);
