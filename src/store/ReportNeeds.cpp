#include "ReportNeeds.h"

#include "LookUps.h"
#include "mTranslations.h"

bool ReportNeedsAreMet(ReportNeeds needs) {
    const bool needsReader = needs == ReportNeeds::Reader || needs == ReportNeeds::ReaderThenTour;
    const bool needsTour = needs == ReportNeeds::Tour || needs == ReportNeeds::ReaderThenTour;
    if (needsReader && CountReaders() < 1) {
        IvMessageBox(Translate("You must add at least one reader before this report can be used"),
                     Translate("A master adds readers on the Setup page."));
        return false;
    }
    if (needsTour && CountTours() < 1) {
        IvMessageBox(Translate("You must add at least one tour before this report can be used"),
                     Translate("A master adds tours on the Setup page."));
        return false;
    }
    return true;
}
