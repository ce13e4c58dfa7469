#pragma once

class QDialog;
class QPushButton;

/// From now on a report dialog remembers, under its name, what was chosen when `preview` was last
/// pressed, and shows it again. Called when its lists are filled.
///
/// It looks at combo boxes, check boxes, check lists, ranges of time, and lists with one selected
/// row, each by its object name. What was removed or renamed since falls back to what the dialog
/// shows at first; what was added since is checked. A range moves on with the days: yesterday stays
/// yesterday. If everything would be unchecked, everything stays checked.
void RememberChoices(QDialog& dialog, QPushButton& preview);
