// Shows every window of the program, one after the other. Prints the name of its form, and goes on
// at each line of its input. screenreader.py reads the windows meanwhile.

#include "AllWindows.h"
#include "DataReport.h"
#include "DockingLink.h"
#include "ReportViewer.h"
#include "TestHome.h"
#include "cReaderOptions.h"
#include "mTranslations.h"

#include <QApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

class NoViewer : public ReportViewer {
    void Show(DataReport&) override {}
};

/// Handles events until a line of input has come. False at its end.
bool AwaitLine() {
    QEventLoop loop;
    const QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
    loop.exec();
    std::string line;
    return static_cast<bool>(std::getline(std::cin, line));
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication app(argc, argv);
    const TestHome home(TestHome::DemoSite);
    home.CopyProgramFiles(QStringLiteral(BESIDE));
    gLanguage = 0;
    OpenDictionary();
    DockingLink link;
    NoViewer viewer;
    for (const auto& [form, make] : AllWindows()) {
        const std::unique_ptr<QWidget> window = make(link, viewer);
        window->setObjectName(form);
        window->show();
        std::puts(qPrintable(form));
        std::fflush(stdout);
        if (!AwaitLine())
            return 1;
    }
    gReaderOptions.reset();
    gDictionary.reset();
    return 0;
}
