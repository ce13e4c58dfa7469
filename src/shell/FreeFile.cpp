#include "FreeFile.h"

#include "FileDialogs.h"
#include "mTranslations.h"

#include <QFileInfo>

QString AskForFreeFile(const FileRequest& request, QWidget* parent) {
    for (;;) {
        QString path = AskForNewFile(
            request, [](const QString& text) { return Translate(text); }, parent);
        const QFileInfo file(path);
        if (!file.exists() && !file.isSymLink()) // a link may lead nowhere
            return path;
        IvMessageBox(Translate("That filename is already in use. Please choose another filename"));
    }
}
