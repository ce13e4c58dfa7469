#pragma once

#include <QString>

class QTreeView;

/// Shows a text inside a list while the list has no rows: what belongs there and how it gets there.
/// A screen reader says it as the list's description. The text may be changed by a further call;
/// an empty one removes it. The list has its model already.
void ShowWhenEmpty(QTreeView& list, const QString& text);
