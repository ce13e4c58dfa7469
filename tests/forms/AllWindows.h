#pragma once

#include <QWidget>

#include <functional>
#include <map>
#include <memory>

class DockingLink;
class ReportViewer;

/// How a window is made, with the link or the viewer if it takes one. Both must outlive it.
using WindowMaker = std::function<std::unique_ptr<QWidget>(DockingLink&, ReportViewer&)>;

/// Every window and page that has a form, by the name of its form. A store must be open, for
/// example that of a TestHome with the demonstration site, and the help files must be beside it.
const std::map<QString, WindowMaker>& AllWindows();

/// A page of the main window; anything else is a window of its own.
bool IsPage(const QWidget& window);
