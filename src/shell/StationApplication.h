#pragma once

#include "AccessibleLooks.h"
#include "WindowTools.h"

#include <QApplication>

#include <functional>

/// The desktop application. It installs real message boxes. A failure that nothing else catches is
/// shown in a box and ends the program.
class StationApplication : public QApplication {
public:
    StationApplication(int& argc, char** argv);
    ~StationApplication() override;

    /// The arguments as one text.
    static QString CommandLine();

    /// Runs the program and returns its exit status.
    int RunGuarded(const std::function<int()>& program);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    WindowMessageBoxes m_boxes;
    AccessibleLooks m_looks;
};
