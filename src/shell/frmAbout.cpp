#include "frmAbout.h"

#include "AppVersion.h"
#include "Application.h"
#include "Format.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmAbout.h"

#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

constexpr qint64 MostBytes = 4096;
constexpr qsizetype MostCharacters = 2048;

/// What to do if something does not work. Shown if the installer has not placed a text.
QString OurAdvice() {
    return Translate("For a description of the program, choose Help, Contents.") +
           QStringLiteral("\n\n") +
           Translate("If something does not work, report it to the person who looks after this "
                     "installation. Give the version and the build shown above, and send this "
                     "file:") +
           u'\n' + AppFile(QStringLiteral("error.log"));
}

} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::frmAbout>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    ShowIcon(*m_ui->Image1, QStringLiteral("wardlock"));
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

frmAbout::~frmAbout() = default;

void frmAbout::Populate() {
    setWindowTitle(windowTitle() + QStringLiteral(" - ") + GetReportsTitle());
    m_ui->lblVer->setText(Translate("Version") + u' ' + GetVersionString());
    m_ui->lblWarning->setText(
        Translate("You may use, change and pass on this program, as long as the text of the "
                  "License stays with it.") +
        u' ' + Translate("It comes without any warranty."));
    m_ui->lblCopyright->setText(LegalNotice());
    m_ui->lblTitle->setText(GetReportsTitle());
    m_ui->lblBuild->setText(QStringLiteral("Build ") +
                            Format(AppRevision(), QStringLiteral("0000")));
    const QString contact = TextFromFile(AppFile(QStringLiteral("contact.txt")));
    m_ui->lblCustom->setText(contact.isEmpty() ? OurAdvice() : contact);
}

QString frmAbout::TextFromFile(const QString& path) {
    return Guarded("TextFromFile of Form frmAbout", [&]() -> QString {
        const QFileInfo info(path);
        if (!info.exists() || info.size() > MostBytes)
            return {};
        const Hourglass hourglass;
        QFile file(path);
        QByteArray bytes;
        if (file.open(QIODevice::ReadOnly))
            bytes = file.readAll();
        if (file.error() != QFileDevice::NoError)
            throw RunTimeError(RunTimeErrorNumber::FileNotFound, QDir::toNativeSeparators(path) +
                                                                     QStringLiteral(": ") +
                                                                     file.errorString());
        QStringDecoder decode(QStringDecoder::Utf8);
        const QString text = decode(bytes);
        return (decode.hasError() ? QString::fromLatin1(bytes) : text).left(MostCharacters);
    });
}
