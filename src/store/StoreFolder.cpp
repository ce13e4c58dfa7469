#include "StoreFolder.h"

#include "Application.h"
#include "FileReplacement.h"
#include "mTranslations.h"

#include <QDir>
#include <QFileInfo>

bool IsNewStoreFolder() {
    if (AppPath() != UserDataPath())
        return false;
    // The first store is written under another name, which a kill leaves.
    const QStringList known = {QStringLiteral("contact.txt"), QStringLiteral("*.bmp"),
                               QStringLiteral("main.mdb.part*")};
    const QStringList names = QDir(AppPath()).entryList(QDir::AllEntries | QDir::Hidden |
                                                        QDir::System | QDir::NoDotAndDotDot);
    return std::all_of(names.begin(), names.end(),
                       [&](const QString& name) { return QDir::match(known, name); });
}

void MakeUserDataFolder() {
    const QFileInfo folder(UserDataPath());
    if (folder.exists())
        return;
    QDir().mkpath(folder.path());
    QDir().mkdir(folder.filePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString FaultOfStoreFolder() {
    const QFileInfo folder(AppPath());
    const QString path = QDir::toNativeSeparators(AppPath());
    if (!folder.isDir())
        return FormatStr(Translate("The folder %0:s does not exist. Please create it, or choose "
                                   "another folder in WARDLOCK_HOME."),
                         {path});
    // A store that is a link is written in the folder of the file that it means.
    const QString storeFolder =
        QFileInfo(FileMeantBy(AppFile(QStringLiteral("main.mdb")))).absolutePath();
    if (QFileInfo::exists(storeFolder) && !QFileInfo(storeFolder).isWritable())
        return FormatStr(
            Translate("You may not write to the folder %0:s. Please ask for permission, "
                      "or choose another folder in WARDLOCK_HOME."),
            {QDir::toNativeSeparators(storeFolder)});
    return {};
}
