#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleReport.h"
#include "ConsoleTools.h"
#include "ReportCatalogue.h"
#include "ReportNeeds.h"
#include "mErrorHandler.h"

namespace {

struct OutputOptions {
    ReportFormat format = ReportFormat::Text;
    QString path;
};

/// The report's own options, and those that say in which form it is written, and where.
CommandRun Prepare(const ReportRow& row, CLI::App& options) {
    const auto output = std::make_shared<OutputOptions>();
    const std::function<void(ReportViewer&)> build = row.addOptions(options);
    AddChoice<ReportFormat>(options, "--format",
                            {{"text", ReportFormat::Text},
                             {"json", ReportFormat::Json},
                             {"csv", ReportFormat::Csv},
                             {"pdf", ReportFormat::Pdf}},
                            output->format, "the form of the report", Presence::Required);
    AddOutput(options, output->path);
    return [needs = row.commandNeeds, output, build](const ConsoleBoxes& boxes) {
        ConsoleReport report(output->format);
        Guarded("report of wardlockctl", [&] {
            if (ReportNeedsAreMet(needs))
                build(report);
        });
        if (report.HasReport()) {
            WriteOut(report.Bytes(), output->path);
            return true;
        }
        const QString sentence = ComplainUnlessSaid(
            boxes, QT_TR_NOOP("The report could not be created. See error.log for the reason."));
        if (output->format == ReportFormat::Json)
            WriteOut(JsonMessage(sentence), output->path);
        return false;
    };
}

} // namespace

/// A command for each report of the catalogue.
std::vector<Command> ReportCommands() {
    std::vector<Command> commands;
    for (const ReportRow& row : ReportCatalogue())
        commands.push_back({QStringLiteral("report ") + QString::fromUtf8(row.word),
                            QString::fromUtf8(row.help), QString::fromUtf8(row.example),
                            Access::Everybody,
                            [&row](CLI::App& options) { return Prepare(row, options); }});
    return commands;
}
