#pragma once

#include "MessageBox.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

/// What the dictionary file tells of one language.
struct Language {
    QString englishName;
    QString nativeName;
    QString locale; ///< such as "de"; empty for the language of the keys
};

/// The translation dictionary: one binary file with all languages. The key of a text is the
/// English text itself, and a text without an entry is its own translation.
class Dictionary {
public:
    /// Takes the number of the present language and gives that of the chosen one, or nothing.
    using Chooser = bool (*)(Dictionary& dictionary, int& language);

    Dictionary();
    ~Dictionary();
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    int CheckLevel = 0;
    QString FileName;
    /// Number of the language to open; -1 is the system's own.
    int language = -1;

    /// Opens the file and the language; Qt's own dialogs follow. Throws RunTimeError where the file
    /// is missing or damaged or holds no such language; every text is then its own translation.
    void Open();

    /// A language by its number. For -1, or where no file is open, what can be told without it.
    Language Languages(int number) const;
    int LanguageCount() const { return static_cast<int>(m_languages.size()); }

    QString Translate(const QString& text) const;

    /// Lets the operator choose; true, and `number` set, if a language was chosen. Without a
    /// chooser installed nothing is ever chosen.
    bool SelectLanguage(int& number);
    void InstallChooser(Chooser chooser) { m_chooser = chooser; }

    /// A message box whose text is translated already; its buttons follow the language.
    MessageAnswer IvMessageBox(const QString& text, const QString& caption, MessageKind kind,
                               MessageButtons buttons = MessageButtons::Ok) const;

    /// Replaces "%0:s", "%1:s" ... in the pattern by the values, in one pass: what a value holds is
    /// not looked at again.
    static QString FormatStr(const QString& pattern, const QStringList& values);

private:
    void Unload();
    void LoadLibraryTexts(const QString& locale);
    int SystemLanguage() const;

    QString m_registered;
    QList<Language> m_languages;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QTranslator> m_libraryTexts; ///< for Qt's own dialogs and menus
    Chooser m_chooser = nullptr;
};
