#pragma once

#include <QString>

class QWidget;

/// The application's help file: its path, and the window that shows it.

void SetHelpFile(const QString& path);

/// Sets the help file of the present language if it is beside the program. An open help window
/// follows.
void UpdateLanguage();

/// Whether the help is in another language than the program: there is no help in the program's.
bool HelpIsForeign();

/// Shows the contents of the help. If that is not possible, a box says why.
void ShowHelpContents();
/// Shows the topic about the page or window around the widget.
void ShowHelpOn(const QWidget* widget);

/// From now on F1 shows the topic of the window that has the focus, modal windows included.
void InstallHelpKey();
