#pragma once

class QString;
class QWidget;
class ReportViewer;

/// Makes a report dialog, gives it its caption, and shows it until the operator closes it.
template <typename Dialog>
void ShowReportDialog(const QString& caption, ReportViewer& viewer, QWidget* parent) {
    Dialog dialog(viewer, parent);
    if constexpr (requires { dialog.Title(caption); })
        dialog.Title(caption);
    else
        dialog.setWindowTitle(caption);
    dialog.exec();
}
