#pragma once

#include <functional>

class QString;
class QWidget;
class ReportViewer;
namespace CLI {
class App;
}

/// What must be defined before a report can be asked for.
enum class ReportNeeds { Nothing, Reader, Tour, ReaderThenTour };

/// One report of the system, as the reports page and the command line offer it. All texts are
/// English; name and description are translated when they are shown.
struct ReportRow {
    const char* key;
    const char* name; ///< in the list, and the caption of its dialog
    const char* description;
    ReportNeeds needs; ///< before its dialog opens
    /// Shows the dialog until the operator closes it.
    void (*open)(const QString& caption, ReportViewer& viewer, QWidget* parent);
    /// The label under which a failure of `open` is logged. Null: the label of the reports page.
    const char* openLabel;

    const char* word;         ///< its name on the command line, such as "tour"
    const char* help;         ///< a few words for the command line, in lower case
    const char* example;      ///< options of a call
    ReportNeeds commandNeeds; ///< before the command runs
    /// Adds the report's options (CommandOptions.h) and returns the routine that makes the report
    /// from them. It shows the report in the viewer, or a message that says why not.
    std::function<void(ReportViewer& viewer)> (*addOptions)(CLI::App& options);
};
