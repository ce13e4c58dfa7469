#pragma once

#include "WindowTools.h"

#include <QString>

/// What the operator is asked for when a file is chosen. Title and filter are already translated.
struct FileRequest {
    QString title;
    QString folder; ///< in which the dialog starts
    QString filter; ///< such as "Database Files (*.mdb)"
    QString suffix; ///< added to a new name without one; without a dot
    QString name;   ///< what is proposed; may be empty
};

/// A text as a file name, without its suffix, that every system takes: without letters that are
/// forbidden or cannot be seen, and short enough. May be empty.
QString SafeFileName(QString text);

/// Asks for the name of a new file. The dialog does not mind an existing file: the caller decides
/// what that means. Names have at most 100 letters. Empty if the operator cancels.
QString AskForNewFile(const FileRequest& request, const TranslateText& translate, QWidget* parent);

/// Asks for a file to read. It may have been removed meanwhile, or never have existed: the caller
/// says so. Empty if the operator cancels.
QString AskForFile(const FileRequest& request, const TranslateText& translate, QWidget* parent);
