#pragma once

#include <QLocale>

/// How dates, times and numbers are written and read: QLocale() is that of the language that is
/// shown.

/// The locale that the machine is set to, whatever language is shown.
QLocale MachineLocale();

/// Makes QLocale() fit a language. `usual` is a locale of that language. If the machine's locale
/// has the same language, that one is used; otherwise the language's locale in the machine's
/// country; if there is none, `usual`. A machine without a locale is taken to be English.
void UseLocaleOf(const QLocale& usual);

/// Makes QLocale() the machine's locale again.
void UseMachineLocale();
