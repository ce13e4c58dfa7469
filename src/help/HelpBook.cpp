#include "HelpBook.h"

#include "RunTimeError.h"
#include "mTranslations.h"

#include <QDir>
#include <QFile>
#include <QResource>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

namespace {

/// The topics that a text links to, in their order.
QStringList LinkedTopics(const QTextDocument& document) {
    QStringList topics;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QString link = part.fragment().charFormat().anchorHref();
            if (link.endsWith(QStringLiteral(".md")) && !topics.contains(link.chopped(3)))
                topics += link.chopped(3);
        }
    return topics;
}

qsizetype WordsIn(const QString& text, const QStringList& words) {
    return std::count_if(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace

HelpBook::HelpBook(const QString& path) : m_path(path) {
    const auto fail = [&](int number, const QString& reason) {
        throw RunTimeError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(RunTimeErrorNumber::FileNotFound, file.errorString());
    // A folder of its own for each book, because two may be open at the same time.
    static int count = 0;
    m_root = QStringLiteral("/help/%1").arg(++count);
    const bool registered = QResource::registerResource(path, m_root);
    if (Content(Contents + QStringLiteral(".md")).isEmpty()) {
        if (registered) // such as a dictionary
            QResource::unregisterResource(path, m_root);
        fail(RunTimeErrorNumber::FileAccess, Translate("It is not a help file of this program."));
    }
    const auto load = [this](const QString& topic) -> QTextDocument& {
        auto& document = m_documents[topic];
        document = std::make_unique<QTextDocument>();
        document->setMarkdown(QString::fromUtf8(Content(topic + QStringLiteral(".md"))));
        return *document;
    };
    m_topics = QStringList{Contents} + LinkedTopics(load(Contents));
    for (const QString& topic : m_topics.mid(1))
        load(topic);
}

HelpBook::~HelpBook() { QResource::unregisterResource(m_path, m_root); }

QString HelpBook::Locale() const {
    return QString::fromUtf8(Content(QStringLiteral("locale"))).trimmed();
}

QString HelpBook::Title(const QString& topic) const { return Document(topic).begin().text(); }

QByteArray HelpBook::Content(const QString& name) const {
    QFile file(u':' + m_root + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QTextDocument& HelpBook::Document(const QString& topic) const {
    return *m_documents.at(topic);
}

QList<HelpHit> HelpBook::Search(const QStringList& words) const {
    QList<HelpHit> hits;
    if (words.isEmpty())
        return hits;
    for (const QString& topic : m_topics) {
        const QTextDocument& document = Document(topic);
        if (WordsIn(document.toPlainText(), words) < words.size())
            continue;
        QList<HelpHit> whole, part;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            if (const qsizetype found = WordsIn(block.text(), words); found > 0)
                (found == words.size() ? whole : part) +=
                    HelpHit{topic, block.blockNumber(), block.text().simplified()};
        hits += whole + part;
    }
    return hits;
}

void DressHelp(QTextDocument& document) {
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        cursor.setPosition(block.position());
        QTextBlockFormat format = block.blockFormat();
        if (!block.text().contains(QChar::ObjectReplacementCharacter)) // not around a picture
            format.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
        if (QTextTable* table = cursor.currentTable()) {
            QTextTableFormat lines = table->format();
            lines.setCellPadding(4);
            lines.setCellSpacing(0);
            lines.setBorder(1);
            lines.setBorderCollapse(true);
            table->setFormat(lines);
        } else if (format.headingLevel() > 0) {
            format.setTopMargin(format.headingLevel() == 1 ? 0 : 14);
            format.setBottomMargin(6);
        } else {
            format.setTopMargin(0);
            format.setBottomMargin(block.textList() ? 4 : 8);
        }
        cursor.setBlockFormat(format);
    }
}
