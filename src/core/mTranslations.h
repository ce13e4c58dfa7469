#pragma once

#include "MessageBox.h"

#include <QString>
#include <QStringList>

/// The language layer: every text that an operator sees passes through here at the moment of use.

/// A text in the present language; itself where there is no dictionary or no entry.
QString Translate(const QString& text);
QString Translate(const char* text);

/// A message box with its buttons in the present language. The text is translated already.
MessageAnswer IvMessageBox(const QString& text, MessageKind kind = MessageKind::Warning,
                           MessageButtons buttons = MessageButtons::Ok,
                           const QString& caption = {});

/// "%0:s" and so on in a translated pattern.
QString FormatStr(const QString& pattern, const QStringList& values);

/// The fixed short title, never translated.
inline const QString ShortTitle = QStringLiteral("Wardlock Lite");

/// The product title in the present language.
QString GetReportsTitle();
/// Major and minor number, "1.00".
QString GetVersionString();
/// The product title with the version, as window and splash show it.
QString TitleWithVersion();

/// Opens the dictionary for gLanguage: makes gDictionary, and falls back to language 1, saved,
/// with a message, when the language cannot be shown.
void OpenDictionary();
