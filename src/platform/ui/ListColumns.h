#pragma once

#include <QList>
#include <QString>

class QTreeView;

/// Looks after the widths of a list's columns, from now on.
///
/// Each column gets what its header and its rows need; what is left over is shared in the
/// proportion of `shares` (in hundredths; if there are none, in proportion to the need). If these
/// are more than a hundred, the columns take so much more than the list. If the list is too narrow,
/// long texts are shortened, and a tool tip shows the whole of such a text. Only texts of up to
/// about 24 letters are never shortened: the list then scrolls sideways.
///
/// Once the operator has changed widths or the order of columns, these stay, also in later runs of
/// the program, and grow and shrink with the list. They are saved under `name`, which is the list's
/// own. The routine may be called again, with another name, if the list shows other columns.
void ManageColumns(QTreeView& list, const QString& name, const QList<int>& shares = {});
