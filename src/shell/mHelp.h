#pragma once

#include <QString>

class QWidget;

/// The application's help file: its path, and the window that shows it.

const QString& HelpFile();
void SetHelpFile(const QString& path);

/// Sets the help file of the present language if it is beside the program.
void UpdateLanguage();

/// Shows the help file. Throws RunTimeError if it cannot be read.
void ShowHelpContents(QWidget* parent);
