#include "mTranslations.h"

#include "AppVersion.h"
#include "Application.h"
#include "Format.h"
#include "Settings.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScopeGuard>

#include <algorithm>

QString Translate(const QString& text) { return gDictionary ? gDictionary->Translate(text) : text; }

QString Translate(const char* text) { return Translate(QString::fromUtf8(text)); }

QString PresentLocale() { return gDictionary ? gDictionary->Locale() : Dictionary::LocaleOfKeys; }

MessageAnswer IvMessageBox(const QString& text, MessageKind kind, MessageButtons buttons,
                           const QString& caption) {
    return gDictionary ? gDictionary->IvMessageBox(text, caption, kind, buttons)
                       : MsgBox(text, caption, kind, buttons);
}

MessageAnswer IvMessageBox(const QString& text, const QString& advice, MessageKind kind,
                           MessageButtons buttons) {
    return gDictionary ? gDictionary->IvMessageBox(text, {}, kind, buttons, advice)
                       : ShowMessage({text, {}, kind, buttons, ButtonWords(buttons), advice});
}

bool ReadsLeftwards() { return QLocale(PresentLocale()).textDirection() == Qt::RightToLeft; }

QString FormatStr(const QString& pattern, const QStringList& values) {
    if (!ReadsLeftwards())
        return Dictionary::FormatStr(pattern, values);
    QStringList isolated;
    for (const QString& value : values) {
        const bool latin = std::any_of(value.begin(), value.end(), [](QChar letter) {
            return letter.direction() == QChar::DirL;
        });
        isolated += latin ? QChar(0x2068) + value + QChar(0x2069) : value;
    }
    return Dictionary::FormatStr(pattern, isolated);
}

QString InReadingDirection(const QString& text) {
    return ReadsLeftwards() ? QChar(0x200F) + text : text;
}

QString Labelled(const QString& label, const QString& value) {
    return FormatStr(Translate("%0:s: %1:s"), {label, value});
}

QString GetReportsTitle() { return Translate("KV-88 Wardlock Reports"); }

QString LegalNotice() {
    return Translate("Copyright © 2026 the Wardlock authors. Free software under the MIT License.");
}

QString GetVersionString() {
    return Guarded("GetVersionString of Module mTranslations", ErrorShow::Dialog, [] {
        return QString::number(AppMajor()) + u'.' + Format(AppMinor(), QStringLiteral("00"));
    });
}

QString TitleWithVersion() {
    return FormatStr(Translate("%0:s - Version %1:s"), {GetReportsTitle(), GetVersionString()});
}

void OpenChosenLanguage() {
    const auto turn = qScopeGuard(
        [] { QGuiApplication::setLayoutDirection(QLocale(PresentLocale()).textDirection()); });
    gDictionary->Open();
}

void OpenDictionary() {
    gDictionary.reset(); // its locale ends before the next one's begins
    gDictionary = std::make_unique<Dictionary>();
    gDictionary->CheckLevel = 2;
    gDictionary->FileName = ProgramFile(QStringLiteral("WK3.MLD"));
    gDictionary->language = gLanguage;
    if (IgnoringErrors(OpenChosenLanguage))
        return;
    IvMessageBox(gDictionary->Languages(gLanguage).englishName +
                     QStringLiteral(" could not be displayed\n"
                                    "Resetting to default system language..."),
                 MessageKind::Information);
    gLanguage = 1;
    gDictionary->language = gLanguage;
    SaveSetting(SettingsApplication, SettingsSection::Properties, QStringLiteral("Language"),
                QString::number(gLanguage));
    IgnoringErrors(OpenChosenLanguage);
}
