#pragma once

#include <QString>

class QWidget;

/// The topic about a window or page, by the name of its form. Empty if it has none.
QString HelpTopicOf(const QString& form);

/// The topic about what is around the widget: the innermost page or window that has one. For the
/// frame of the main window it is the topic of the page that is shown.
QString HelpTopicAround(const QWidget* widget);
