#include "ReportProposal.h"

#include "mDeclareGlobals.h"
#include "mSettings.h"

#include <QSet>

#include <optional>

namespace {

std::optional<ReportProposal> g_afterDownload;
QSet<QString> g_haveProposedIt; ///< names of dialogs

QString ReaderKey(const QString& dialog) { return dialog + QStringLiteral("Reader"); }
QString TourKey(const QString& dialog) { return dialog + QStringLiteral("Tour"); }

} // namespace

void ProposeAfterDownload(const ReportProposal& proposal) {
    g_afterDownload = proposal;
    g_haveProposedIt.clear();
}

ReportProposal ProposalFor(const QString& dialog) {
    if (g_afterDownload && !g_haveProposedIt.contains(dialog)) {
        g_haveProposedIt += dialog;
        return *g_afterDownload;
    }
    return {GetSetting(SettingsApplication, SettingsSection::Settings, ReaderKey(dialog)),
            SavedNumber(SettingsSection::Settings, TourKey(dialog), 0, ToLong),
            {}};
}

void RememberChoice(const QString& dialog, const ReportProposal& choice) {
    SaveSetting(SettingsApplication, SettingsSection::Settings, ReaderKey(dialog), choice.readerId);
    SaveSetting(SettingsApplication, SettingsSection::Settings, TourKey(dialog),
                QString::number(choice.tourId));
}
