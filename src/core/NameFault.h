#pragma once

#include <QString>
#include <QStringList>

/// What is named. It decides the wording of the messages.
enum class Named {
    Item, ///< a reader or a button
    Group ///< a group or a tour
};

/// The longest name that a report can show in full with another one in the same line.
constexpr int MostNameLetters = 100;

/// True if a text has line breaks, other control characters, or marks that reverse the direction of
/// writing.
bool HasControls(const QString& text);

/// Why a text cannot be a name or a description, as the message to show; empty if it can. Line
/// breaks and other control characters would break lists and reports, and a text longer than
/// MostNameLetters would be cut there.
QString TextFault(const QString& text);

/// Why a name cannot be used, as the message to show; empty if it can. `name` is already trimmed.
/// It must not be one of `existingNames`, compared exactly, unless it is unchanged (`received`). It
/// must also pass TextFault.
QString NameFault(Named what, const QString& name, const QStringList& existingNames,
                  const QString& received = {});
