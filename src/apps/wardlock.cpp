#include "MessageBox.h"
#include "RunTimeError.h"
#include "StationApplication.h"
#include "mMain.h"

#include <cstdlib>

int main(int argc, char* argv[]) {
    StationApplication app(argc, argv);
    return app.RunGuarded([&] {
        if (!Main(StationApplication::CommandLine()))
            return EXIT_SUCCESS; // it has said what there was to say
        const int status = StationApplication::exec();
        ReleaseMainWindow();
        return status;
    });
}
