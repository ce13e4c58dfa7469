#include "FileDialogs.h"

#include <QDir>
#include <QFileDialog>

namespace {

constexpr int MostLetters = 100;

QString Ask(const FileRequest& request, QFileDialog::AcceptMode mode,
            const TranslateText& translate, QWidget* parent) {
    // A folder that does not exist would be proposed as a file.
    const QString folder = QDir(request.folder).exists() ? request.folder : QDir::homePath();
    QFileDialog dialog(parent, request.title, folder, request.filter);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (mode == QFileDialog::AcceptSave) // a file to read has its name already
        dialog.setDefaultSuffix(request.suffix);
    dialog.selectFile(request.name);
    while (dialog.exec() == QDialog::Accepted) {
        QString path = dialog.selectedFiles().value(0);
        const QFileInfo file(path);
        const char* fault =
            !file.dir().exists()
                ? QT_TR_NOOP("This folder does not exist. Please choose another one.")
            : mode == QFileDialog::AcceptSave && file.fileName().size() > MostLetters
                ? QT_TR_NOOP("A file name can have at most 100 characters.")
                : nullptr;
        if (!fault)
            return path;
        const MessageButtons buttons = MessageButtons::Ok;
        ShowMessage({translate(QString::fromUtf8(fault)),
                     request.title,
                     MessageKind::Warning,
                     buttons,
                     {translate(ButtonWords(buttons).first())}});
    }
    return {};
}

} // namespace

QString AskForNewFile(const FileRequest& request, const TranslateText& translate, QWidget* parent) {
    return Ask(request, QFileDialog::AcceptSave, translate, parent);
}

QString AskForFile(const FileRequest& request, const TranslateText& translate, QWidget* parent) {
    return Ask(request, QFileDialog::AcceptOpen, translate, parent);
}
