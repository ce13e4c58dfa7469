#include "ReportNeeds.h"

#include "LookUps.h"
#include "mTranslations.h"

bool ReportNeedsAreMet(ReportNeeds needs) {
    const bool needsReader = needs == ReportNeeds::Reader || needs == ReportNeeds::ReaderThenTour;
    const bool needsTour = needs == ReportNeeds::Tour || needs == ReportNeeds::ReaderThenTour;
    if (needsReader && CountReaders() < 1) {
        IvMessageBox(Translate("You must add at least one reader before this report can be used"));
        return false;
    }
    if (needsTour && CountTours() < 1) {
        IvMessageBox(Translate("You must add at least one tour before this report can be used"));
        return false;
    }
    return true;
}
