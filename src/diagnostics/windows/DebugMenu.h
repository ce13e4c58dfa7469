#pragma once

class QMenu;
class QWidget;

/// The menu of a development run: dumps of the store, sample data, deletion. Its texts are for
/// developers and stay English.

/// Adds the items.
void FillDebugMenu(QMenu& mnuDebug, QWidget& window);
/// Does what the item with this index does.
void mnuDebugItem_Click(int index, QWidget& window);
