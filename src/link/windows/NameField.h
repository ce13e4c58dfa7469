#pragma once

#include "NameFault.h"

class QLineEdit;

/// True if the field's text, trimmed, may be the name (NameFault.h). If not, says why and puts the
/// focus on the field with its text selected.
bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received = {});

/// The same for a description, which may be empty.
bool AcceptDescription(QLineEdit& field);
