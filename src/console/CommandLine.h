#pragma once

#include "DateTime.h"
#include "mDeclareGlobals.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

enum class ConsoleCommand {
    Detect,
    Download,
    ReportTour,
    ReaderIdentify,
    ReaderFirmware,
    ReaderSetClock,
    ReaderSetOptions,
    ReaderErase,
    SetupExport,
    SetupImport
};
enum class ReportFormat { Text, Json, Csv, Pdf };

/// What a call of the command line asks for.
struct CommandLine {
    ConsoleCommand command = ConsoleCommand::Detect;
    QString home;
    OperatorType login = MasterOperator;
    QString device;
    bool keep = false;
    bool json = false;
    int tour = 0;
    QString reader;
    DateTime date;
    bool all = false;
    bool events = false;
    ReportFormat format = ReportFormat::Text;
    QString output;
    QString file;                 ///< of a set-up
    std::optional<DateTime> time; ///< to set; else the present time
    /// What is not given stays as it was chosen last.
    std::optional<bool> buzzer, led, vibration, longBuzzer;
};

/// A call that makes no sense; what() tells why.
class UsageError : public std::runtime_error {
public:
    explicit UsageError(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// Options may stand before or behind the command's words, and as "--name value" or
/// "--name=value". Throws UsageError.
CommandLine ParseCommandLine(const QStringList& arguments);

QString UsageText();
