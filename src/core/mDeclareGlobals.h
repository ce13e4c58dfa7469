#pragma once

#include "Connection.h"
#include "Dictionary.h"

#include <array>
#include <memory>

/// The state that several subsystems share. All of it lives on the interface thread.

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

/// What a touched button's group is, as stored with every touch.
enum GroupType { UserGroup = 0, SiteGroup = 1, EventBookGroup = 2 };

extern bool gDebugMode; ///< false once the program has started
extern bool gDemoMode;
extern int gEdition;  ///< branding variant, always 0
extern int gLanguage; ///< number of the dictionary's language, -1 the system's
extern std::unique_ptr<Dictionary> gDictionary;
extern QString gDatabasePath;             ///< path of "main.mdb"
extern QString gConnectionString;         ///< the same store as a connection text
extern std::unique_ptr<Connection> gConn; ///< the shared store connection
extern bool gStoreDamaged; ///< the open store failed its check: no reader may be erased on it
extern bool gAutoSetTime;  ///< set the reader's clock when a download runs
extern std::array<QString, 4> gCompanyInfo; ///< the company lines printed on reports
extern bool gDockingDetected;               ///< the docking station answered at the last connect
extern bool gCommActive;                    ///< incoming serial bytes are to be collected
extern bool gWaitCancelled;                 ///< makes DockingLink::WaitFor stop its loop
