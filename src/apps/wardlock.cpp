#include "AppVersion.h"
#include "FileReplacement.h"
#include "RunTimeError.h"
#include "StationApplication.h"
#include "mMain.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr char Usage[] = "usage: wardlock [-debug] [-demo]\n"
                         "       wardlock --help | --version\n"
                         "\n"
                         "The office station of a guard-tour installation. It works on the store "
                         "in the folder that the\n"
                         "environment variable WARDLOCK_HOME names. Without it, an installed "
                         "station works in the user's\n"
                         "data folder, ~/.local/share/wardlock, and makes an empty store there "
                         "when it is first started.\n"
                         "A station that is not installed works in its own folder. wardlockctl "
                         "does the same work without\n"
                         "windows.\n"
                         "\n"
                         "Options:\n"
                         "  -debug      logs the start of the program in error.log\n"
                         "  -demo       changes nothing\n"
                         "  --help      shows this text\n"
                         "  --version   shows the version\n"
                         "\n"
                         "exit status: 0 ended by the operator, 1 could not start\n";

/// Answers a question that needs no display. True if there was one.
bool Answered(int argc, char* argv[]) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--help") == 0)
            std::fputs(Usage, stdout);
        else if (std::strcmp(argv[i], "--version") == 0)
            std::printf("wardlock %s\n", AppVersionText());
        else
            continue;
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char* argv[]) {
    if (Answered(argc, argv))
        return EXIT_SUCCESS;
    SurviveFileSizeLimit();
    StationApplication app(argc, argv);
    return app.RunGuarded([&] {
        const StartOutcome outcome = Main(StationApplication::CommandLine());
        if (outcome != StartOutcome::Running)
            return outcome == StartOutcome::Cancelled ? EXIT_SUCCESS : EXIT_FAILURE;
        const int status = StationApplication::exec();
        ReleaseMainWindow();
        return status;
    });
}
