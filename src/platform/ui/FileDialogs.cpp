#include "FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>

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

QString SafeFileName(QString text) {
    static const QRegularExpression unfit(QStringLiteral("[\\p{C}\\p{Zl}\\p{Zp}<>:\"/\\\\|?*]+"));
    static const QRegularExpression ends(QStringLiteral("^[\\s.~-]+|[\\s.]+$"));
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(?=\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype MostBytes = 200; // with a suffix, and beside the names of temporary files
    text = QString::fromUtf8(text.toUtf8()); // half a character would end the search
    text = text.replace(unfit, QStringLiteral(" ")).simplified();
    text = text.left(MostLetters - 10);
    while (text.toUtf8().size() > MostBytes)
        text.chop(1);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text.remove(ends).replace(device, QStringLiteral("\\1_"));
}

QString AskForNewFile(const FileRequest& request, const TranslateText& translate, QWidget* parent) {
    return Ask(request, QFileDialog::AcceptSave, translate, parent);
}

QString AskForFile(const FileRequest& request, const TranslateText& translate, QWidget* parent) {
    return Ask(request, QFileDialog::AcceptOpen, translate, parent);
}
