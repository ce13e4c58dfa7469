#pragma once

#include "Connection.h"
#include "Dictionary.h"

#include <array>
#include <memory>

/// The state that several subsystems share. It is used on the interface thread only.

/// Sections of the settings store under SettingsApplication.
namespace SettingsSection {
inline const QString Properties = QStringLiteral("Properties");
inline const QString Settings = QStringLiteral("Settings");
inline const QString ComPort = QStringLiteral("ComPort_Settings");
inline const QString Info = QStringLiteral("Info");
/// What was last chosen for the next sending to a reader.
inline const QString ReaderSetting = QStringLiteral("ReaderSetting");
inline const QString Reader = QStringLiteral("Reader"); ///< what cReaderOptions keeps
} // namespace SettingsSection

/// The two operators.
enum OperatorType { NoOperator = 0, MasterOperator = 1, UserOperator = 2 };

/// The kinds of groups, as stored with every touch.
enum GroupType { UserGroup = 0, SiteGroup = 1, EventBookGroup = 2 };

/// True if a developer runs the program: the environment variable WARDLOCK_DEVELOPMENT is "1".
bool IsDevelopmentRun();

extern bool gDebugMode; ///< false once the program has started
extern bool gDemoMode;  ///< "-demo" was given, or a development run; changes nothing else
extern int gEdition;    ///< branding variant; there is only one, 0
extern int gLanguage;   ///< number of the dictionary's language; -1: the system's language
extern std::unique_ptr<Dictionary> gDictionary;
extern QString gDatabasePath;             ///< path of "main.mdb"
extern QString gConnectionString;         ///< the store as a connection text
extern std::unique_ptr<Connection> gConn; ///< the shared store connection
extern bool gStoreDamaged; ///< the open store failed its check, so no reader may be erased
extern bool gAutoSetTime;  ///< set the reader's clock when a download runs
extern std::array<QString, 4> gCompanyInfo; ///< the company lines printed on reports
extern bool gDockingDetected;               ///< the docking station answered at the last connect
extern bool gCommActive;                    ///< incoming serial bytes are collected, not dropped
extern bool gWaitCancelled;                 ///< makes DockingLink::WaitFor stop its loop
