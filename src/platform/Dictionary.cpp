#include "Dictionary.h"

#include "RunTimeError.h"
#include "UserLocale.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QResource>
#include <QTranslator>

namespace {

// The file is a binary resource collection: a list of the languages, and a compiled catalogue for
// each of them except English.
const QString Root = QStringLiteral("/WK3");

[[noreturn]] void ThrowUnreadable(const QString& what) {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QStringLiteral("Cannot open the dictionary: %1").arg(what));
}

} // namespace

Dictionary::Dictionary() = default;

Dictionary::~Dictionary() { Unload(); }

void Dictionary::Unload() {
    m_translator.reset();
    m_libraryTexts.reset(); // also removes it from the application
    m_languages.clear();
    m_shown = -1;
    UseMachineLocale();
    if (!m_registered.isEmpty())
        QResource::unregisterResource(m_registered, Root);
    m_registered.clear();
}

void Dictionary::Open() {
    Unload();
    if (!QResource::registerResource(FileName, Root))
        ThrowUnreadable(QDir::toNativeSeparators(FileName));
    m_registered = FileName;
    QFile list(u':' + Root + QStringLiteral("/languages.json"));
    if (!list.open(QIODevice::ReadOnly))
        ThrowUnreadable(QDir::toNativeSeparators(FileName));
    for (const auto& entry : QJsonDocument::fromJson(list.readAll()).array())
        m_languages += {entry[u"englishName"].toString(), entry[u"nativeName"].toString(),
                        entry[u"locale"].toString(), entry[u"formats"].toString()};
    const int number = language < 0 ? SystemLanguage() : language;
    if (number >= m_languages.size())
        ThrowUnreadable(QStringLiteral("no language %1").arg(number));
    const auto& [englishName, nativeName, locale, formats] = m_languages[number];
    if (!locale.isEmpty()) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(u':' + Root + u'/' + locale + QStringLiteral(".qm")))
            ThrowUnreadable(englishName);
        m_translator = std::move(translator);
        LoadLibraryTexts(locale);
    }
    UseLocaleOf(QLocale(formats.isEmpty() ? locale : formats));
    m_shown = number;
}

/// If the catalogue is missing, only Qt's own texts stay in English. Some languages have one only
/// for the country with most speakers.
void Dictionary::LoadLibraryTexts(const QString& locale) {
    auto translator = std::make_unique<QTranslator>();
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!translator->load(QStringLiteral("qtbase_") + locale, folder) &&
        !translator->load(QStringLiteral("qtbase_") + QLocale(locale).name(), folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_libraryTexts = std::move(translator);
}

int Dictionary::SystemLanguage() const {
    const QString system = MachineLocale().name();
    for (int number = 0; number < m_languages.size(); ++number) {
        const QString locale = m_languages[number].locale;
        if (!locale.isEmpty() && (system == locale || system.startsWith(locale + u'_')))
            return number;
    }
    return 0;
}

Language Dictionary::Languages(int number) const {
    if (number >= 0 && number < m_languages.size())
        return m_languages[number];
    if (number < 0) {
        const QLocale machine = MachineLocale();
        return {QLocale::languageToString(machine.language()), machine.nativeLanguageName(),
                machine.name(), machine.name()};
    }
    return {QStringLiteral("Language %1").arg(number), {}, {}, {}};
}

QString Dictionary::Translate(const QString& text) const {
    if (!m_translator || text.isEmpty())
        return text;
    const QString translated = m_translator->translate("Wardlock", text.toUtf8().constData());
    return translated.isEmpty() ? text : translated;
}

QString Dictionary::Locale() const {
    return m_translator ? m_translator->language() : LocaleOfKeys;
}

bool Dictionary::SelectLanguage(int& number) { return m_chooser && m_chooser(*this, number); }

MessageAnswer Dictionary::IvMessageBox(const QString& text, const QString& caption,
                                       MessageKind kind, MessageButtons buttons,
                                       const QString& advice) const {
    Message message{text, caption, kind, buttons, {}, advice};
    for (const QString& word : ButtonWords(buttons))
        message.buttonTexts += Translate(word);
    return ShowMessage(message);
}

QString Dictionary::FormatStr(const QString& pattern, const QStringList& values) {
    static const QRegularExpression mark(QStringLiteral("%(\\d+):s"));
    QString text;
    qsizetype end = 0;
    for (auto marks = mark.globalMatch(pattern); marks.hasNext();) {
        const auto match = marks.next();
        text += QStringView(pattern).mid(end, match.capturedStart() - end);
        text += values.value(match.captured(1).toInt());
        end = match.capturedEnd();
    }
    text += QStringView(pattern).mid(end);
    return text;
}
