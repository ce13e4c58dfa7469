#include "FreeFile.h"

#include "FileDialogs.h"
#include "mTranslations.h"

#include <QFileInfo>

QString AskForFreeFile(const FileRequest& request, QWidget* parent) {
    for (;;) {
        QString path = AskForNewFile(
            request, [](const QString& text) { return Translate(text); }, parent);
        if (!QFileInfo::exists(path))
            return path;
        IvMessageBox(Translate("That filename is already in use. Please choose another filename"));
    }
}
