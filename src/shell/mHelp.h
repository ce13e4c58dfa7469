#pragma once

#include <QString>

class QWidget;

/// The application's help file: which one it is, and how it is shown.

const QString& HelpFile();
void SetHelpFile(const QString& path);

/// Binds the help file of the present language, where there is one beside the program.
void UpdateLanguage();

/// Shows the help file's contents. Throws RunTimeError where it cannot be read.
void ShowHelpContents(QWidget* parent);
