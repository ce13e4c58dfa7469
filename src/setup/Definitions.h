#pragma once

#include "LookUps.h"

class TourDraft;

/// Changes what an operator defines. All of it works on gConn and throws RunTimeError. Events are
/// never touched: they keep what was true when they were downloaded.

/// Adds a group without a description and returns its ID.
int AddGroup(GroupType type, const QString& name);
void UpdateGroup(const Group& group);
/// Deletes the group and all its buttons. Tours that visit them keep their points.
void DeleteGroup(int id);

void AddButton(int groupId, const Button& button);
/// Changes name and description. Does nothing if the button is no longer there.
void UpdateButton(const Button& button);
void DeleteButton(int id);

void AddReader(const Reader& reader);
void UpdateReader(const Reader& reader);
void DeleteReader(const QString& id);

/// Adds a tour that has no points and starts at midnight, and returns its ID.
int AddTour(const QString& name);
void UpdateTour(const Tour& tour);
/// Saves the tour and its points, both or neither. No other tour is touched.
void SaveTour(const Tour& tour, const TourDraft& points);
/// Deletes the tour and its points.
void DeleteTour(int id);
/// Adds a tour of that name with the points of another and returns its ID. If that fails, nothing
/// is added.
int CopyTour(int from, const QString& name);

/// The first of "base 001" to "base 999" that is not taken; empty if all are.
QString FreshName(const QString& base, const QStringList& taken);
/// The first of "Reader 1" to "Reader 999", translated, that is not taken; empty if all are.
QString FreshReaderName(const QStringList& taken);
