#pragma once

#include "WindowTools.h"

#include <QApplication>

#include <functional>

/// The desktop application: real message boxes, and an end with a box for a failure that no
/// procedure expected.
class StationApplication : public QApplication {
public:
    StationApplication(int& argc, char** argv);
    ~StationApplication() override;

    /// The arguments as one text.
    static QString CommandLine();

    /// Runs the program; a failure that reaches this shows the run-time error box and ends it.
    int RunGuarded(const std::function<int()>& program);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    WindowMessageBoxes m_boxes;
};
