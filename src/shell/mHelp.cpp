#include "mHelp.h"

#include "Application.h"
#include "RunTimeError.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmHelp.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString g_helpFile;

} // namespace

const QString& HelpFile() { return g_helpFile; }

void SetHelpFile(const QString& path) { g_helpFile = path; }

void UpdateLanguage() {
    // The dictionary names each language's help file. Setting the path cannot fail, so there is no
    // fallback here; ShowHelpContents reports a file that cannot be read.
    const QString localized = ProgramFile(Translate("WK3_ENG.HLP"));
    if (QFileInfo::exists(localized))
        SetHelpFile(localized);
}

void ShowHelpContents(QWidget* parent) {
    QFile file(g_helpFile);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound, QDir::toNativeSeparators(g_helpFile) +
                                                                 QStringLiteral(": ") +
                                                                 file.errorString());
    QDialog window(parent);
    Ui::frmHelp ui;
    ui.setupUi(&window);
    TranslateWindow(window, Translated);
    ui.txtHelp->setMarkdown(QString::fromUtf8(file.readAll()));
    QObject::connect(ui.cmdClose, &QPushButton::clicked, &window, &QDialog::accept);
    window.exec();
}
