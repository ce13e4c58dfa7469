#pragma once

#include <QString>

class QWidget;
struct FileRequest;

/// Asks for the name of a new file until it is one that is not in use. Empty if the operator
/// cancels.
QString AskForFreeFile(const FileRequest& request, QWidget* parent);
