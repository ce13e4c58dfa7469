#pragma once

#include <QSettings>

/// The form of the settings file: sections of keys and texts, as Qt's own form writes them. Qt's
/// own does not notice if the disk becomes full while it writes, and replaces the file by a cut
/// one. This one does, and the old file stays. On Windows, the registry.
QSettings::Format SettingsFormat();
