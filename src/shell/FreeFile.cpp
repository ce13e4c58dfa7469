#include "FreeFile.h"

#include "FileDialogs.h"
#include "FileReplacement.h"
#include "mTranslations.h"

QString AskForFreeFile(const FileRequest& request, QWidget* parent) {
    for (;;) {
        QString path = AskForNewFile(request, Translated, parent);
        if (IsFreeName(path))
            return path;
        IvMessageBox(Translate("That filename is already in use. Please choose another filename"));
    }
}
