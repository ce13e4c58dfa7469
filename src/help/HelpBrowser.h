#pragma once

#include <QTextBrowser>

class HelpBook;
class QPrinter;

/// Shows the topics of a book, with its history, and marks words in them.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// The book must outlive what is shown of it.
    void SetBook(const HelpBook& book);
    /// Shows a topic from its start, or from a paragraph.
    void ShowTopic(const QString& topic, int block = -1);
    const QString& Topic() const { return m_topic; }
    /// These words are marked in every topic, in any case.
    void Mark(const QStringList& words);
    /// Prints the topic that is shown.
    void Print(QPrinter& printer) const;

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Dress();
    void MarkWords();
    QPixmap Picture(const QString& name) const;

    const HelpBook* m_book = nullptr;
    QString m_topic;
    QStringList m_words;
};
