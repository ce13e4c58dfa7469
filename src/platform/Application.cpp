#include "Application.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString& ChosenPath() {
    static QString path;
    return path;
}

/// Where an installation keeps the files that come with the program. An installation can be moved
/// as a whole.
QString InstalledPath() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/wardlock"));
}

/// Even if root may write to the folder of an installed program, nothing of an installation is
/// kept there.
QString UnnamedAppPath() {
    const QString own = QCoreApplication::applicationDirPath();
    return QFileInfo(own).isWritable() && !QFileInfo::exists(InstalledPath()) ? own
                                                                              : UserDataPath();
}

} // namespace

QString AppPath() {
    if (!ChosenPath().isEmpty())
        return ChosenPath();
    const QString home = qEnvironmentVariable("WARDLOCK_HOME");
    if (!home.isEmpty())
        return QDir(home).absolutePath();
    static const QString unnamed = UnnamedAppPath(); // it must not change while the program runs
    return unnamed;
}

void SetAppPath(const QString& folder) {
    ChosenPath() = folder.isEmpty() ? folder : QDir(folder).absolutePath();
}

QString AppFile(const QString& name) {
    return QDir::toNativeSeparators(QDir(AppPath()).filePath(name));
}

QString UserDataPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/wardlock");
}

QString ProgramFile(const QString& name) {
    for (const QString& folder : {QCoreApplication::applicationDirPath(), InstalledPath()})
        if (const QString path = QDir(folder).filePath(name);
            !QFileInfo::exists(AppFile(name)) && QFileInfo::exists(path))
            return QDir::toNativeSeparators(path);
    return AppFile(name);
}

QString GetMyDocumentsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString AppExeName() {
    return QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
}
