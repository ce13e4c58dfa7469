#pragma once

#include <functional>

class QMenu;
class QWidget;

/// The menu of a development run: dumps of the store, sample data, deletion. Its texts are for
/// developers and stay English.

/// Adds the items. `changed` is called after one that may have changed the store.
void FillDebugMenu(QMenu& mnuDebug, QWidget& window, const std::function<void()>& changed);
/// Does what the item with this index does.
void mnuDebugItem_Click(int index, QWidget& window, const std::function<void()>& changed);
