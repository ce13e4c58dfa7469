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

} // namespace

QString AppPath() {
    if (!ChosenPath().isEmpty())
        return ChosenPath();
    const QString home = qEnvironmentVariable("WARDLOCK_HOME");
    return home.isEmpty() ? QCoreApplication::applicationDirPath() : QDir(home).absolutePath();
}

void SetAppPath(const QString& folder) {
    ChosenPath() = folder.isEmpty() ? folder : QDir(folder).absolutePath();
}

QString AppFile(const QString& name) {
    return QDir::toNativeSeparators(QDir(AppPath()).filePath(name));
}

QString GetMyDocumentsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString AppExeName() {
    return QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
}
