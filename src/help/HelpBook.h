#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>

class QTextDocument;

/// A place in the help where a search has found something.
struct HelpHit {
    QString topic;
    int block;       ///< number of the paragraph
    QString excerpt; ///< its text
};

/// The help of one language: a Qt resource file with topics in Markdown, their pictures, and the
/// name of the language. The topics are in the order of the links of the topic "contents".
///
/// In a topic, what is bold is a text of the screen.
class HelpBook {
public:
    static inline const QString Contents = QStringLiteral("contents");

    /// Throws RunTimeError if the file is missing or is not a help file.
    explicit HelpBook(const QString& path);
    ~HelpBook();
    HelpBook(const HelpBook&) = delete;
    HelpBook& operator=(const HelpBook&) = delete;

    /// The language, such as "de".
    QString Locale() const;
    const QStringList& Topics() const { return m_topics; }
    /// The topic's heading.
    QString Title(const QString& topic) const;
    /// A file of the book: a topic with the extension ".md", or a picture. Empty if there is none.
    QByteArray Content(const QString& name) const;
    const QTextDocument& Document(const QString& topic) const;

    /// The paragraphs that hold the words, in topics that hold all of them, in any case. A
    /// paragraph with all words stands before one with only some.
    QList<HelpHit> Search(const QStringList& words) const;

private:
    QString m_path, m_root;
    QStringList m_topics;
    std::map<QString, std::unique_ptr<QTextDocument>> m_documents;
};

/// Gives the topic space between its paragraphs and rules between the rows of its tables. The
/// numbers of the paragraphs stay.
void DressHelp(QTextDocument& document);
