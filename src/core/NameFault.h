#pragma once

#include <QString>
#include <QStringList>

/// What is being named; it decides the words.
enum class Named {
    Item, ///< a reader or a button
    Group ///< a group or a tour
};

/// What a report can show of a name in full, two of them in one line.
constexpr int MostNameLetters = 100;

/// True for a text with line breaks, other control characters, or marks that turn the direction of
/// writing round.
bool HasControls(const QString& text);

/// Why a text cannot be a name or a description, as the message to show; empty where it can. Line
/// breaks and other control characters would tear lists and reports apart, and what is longer than
/// MostNameLetters would be cut there.
QString TextFault(const QString& text);

/// Why a name cannot be given, as the message to show; empty where it can. `name` is trimmed
/// already. A name that stays what it was, `received`, is not looked for among `existingNames`,
/// which are compared exactly. TextFault's rule holds for a name too.
QString NameFault(Named what, const QString& name, const QStringList& existingNames,
                  const QString& received = {});
