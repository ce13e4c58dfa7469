#pragma once

#include "MessageBox.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

/// One language, as the dictionary file describes it.
struct Language {
    QString englishName;
    QString nativeName;
    QString locale; ///< such as "de"; empty for the language of the keys
    /// How dates and numbers are written, such as "en_GB", in a country whose own way is unknown.
    QString formats;
};

/// The translation dictionary: one binary file with all languages. The key of a text is its English
/// wording. A text without an entry is shown in English.
class Dictionary {
public:
    /// Lets the operator choose: `language` is the current one and becomes the chosen one. False if
    /// none was chosen.
    using Chooser = bool (*)(Dictionary& dictionary, int& language);

    Dictionary();
    ~Dictionary();
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    /// Set by the caller, without effect: Open always checks the file.
    int CheckLevel = 0;
    QString FileName;
    /// The number of the language to open; -1 means the system's language.
    int language = -1;

    /// Opens the file and the language, for Qt's own dialogs and for dates and numbers (QLocale())
    /// too. Throws RunTimeError if the file is missing or damaged or does not hold the language;
    /// every text is then shown in English, and QLocale() is the machine's.
    void Open();

    /// A language by its number. For -1, or if no file is open, what is known without the file.
    Language Languages(int number) const;
    int LanguageCount() const { return static_cast<int>(m_languages.size()); }
    /// The number of the language that is shown. If none could be opened, `language`.
    int ShownLanguage() const { return m_shown < 0 ? language : m_shown; }

    QString Translate(const QString& text) const;

    /// The language of what Translate returns, such as "de".
    QString Locale() const;
    static inline const QString LocaleOfKeys = QStringLiteral("en");

    /// Lets the operator choose. If a language was chosen, gives true and sets `number`. Does
    /// nothing if no chooser is installed.
    bool SelectLanguage(int& number);
    void InstallChooser(Chooser chooser) { m_chooser = chooser; }

    /// A message box. Text and advice must be translated already; the buttons are translated here.
    MessageAnswer IvMessageBox(const QString& text, const QString& caption, MessageKind kind,
                               MessageButtons buttons = MessageButtons::Ok,
                               const QString& advice = {}) const;

    /// Replaces "%0:s", "%1:s" ... in the pattern by the values. Marks within a value are not
    /// replaced.
    static QString FormatStr(const QString& pattern, const QStringList& values);

private:
    void Unload();
    void LoadLibraryTexts(const QString& locale);
    int SystemLanguage() const;

    QString m_registered;
    int m_shown = -1; ///< -1 if Open failed
    QList<Language> m_languages;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QTranslator> m_libraryTexts; ///< for Qt's own dialogs and menus
    Chooser m_chooser = nullptr;
};
