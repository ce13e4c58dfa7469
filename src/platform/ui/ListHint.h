#pragma once

#include <QString>

class QTreeView;

/// Shows a text inside a list while the list shows no rows: what belongs there and how it gets
/// there. A screen reader says it as the list's description. A further call changes the text, and
/// looks again whether all rows are hidden; an empty text removes it. The list has its model
/// already.
void ShowWhenEmpty(QTreeView& list, const QString& text);
