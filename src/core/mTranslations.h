#pragma once

#include "MessageBox.h"

#include <QString>
#include <QStringList>

/// The language layer: every text that an operator sees is translated here when it is used.

/// A text in the present language. Without a dictionary or an entry, the text itself.
QString Translate(const QString& text);
QString Translate(const char* text);
/// The first of these under a name of its own, to be passed to windows that know no dictionary.
inline QString Translated(const QString& text) { return Translate(text); }

/// The language of what Translate returns, such as "de".
QString PresentLocale();

/// A message box with its buttons in the present language. The text is already translated.
MessageAnswer IvMessageBox(const QString& text, MessageKind kind = MessageKind::Warning,
                           MessageButtons buttons = MessageButtons::Ok,
                           const QString& caption = {});
/// The same, with a second paragraph: the cause, and what to do next. It may be empty.
MessageAnswer IvMessageBox(const QString& text, const QString& advice,
                           MessageKind kind = MessageKind::Warning,
                           MessageButtons buttons = MessageButtons::Ok);

/// Whether the present language is written from right to left.
bool ReadsLeftwards();

/// Replaces "%0:s" and so on in a translated pattern. In a language that is written from right to
/// left, Latin values such as paths are kept apart from the text around them by invisible marks
/// (U+2068, U+2069), or their first and last signs would change sides.
QString FormatStr(const QString& pattern, const QStringList& values);

/// A text for a label that may begin with a name, a code or a date. The windows choose a text's
/// direction by its first letter; from right to left, an invisible mark (U+200F) makes it the
/// direction of the language.
QString InReadingDirection(const QString& text);

/// "Label: value". French has a space before the colon.
QString Labelled(const QString& label, const QString& value);

/// The fixed short title, never translated.
inline const QString ShortTitle = QStringLiteral("Wardlock Lite");

/// The product title in the present language.
QString GetReportsTitle();
/// The copyright and the licence, in one line.
QString LegalNotice();
/// Major and minor number, "1.00".
QString GetVersionString();
/// The product title with the version, for the main window and the splash window.
QString TitleWithVersion();

/// Opens gDictionary for its language, and lets all windows run in the language's direction. Throws
/// what Dictionary::Open throws; the windows then run from left to right.
void OpenChosenLanguage();

/// Makes gDictionary and opens it for gLanguage. If that language cannot be shown, says so, falls
/// back to language 1 and saves that.
void OpenDictionary();
