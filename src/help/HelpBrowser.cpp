#include "HelpBrowser.h"

#include "HelpBook.h"

#include <QAbstractTextDocumentLayout>
#include <QLocale>
#include <QPainter>
#include <QPrinter>
#include <QScrollBar>
#include <QTextBlock>

namespace {

/// The pictures are taken at 200 %.
constexpr double PixelsOfPicture = 2;
constexpr int PageMargin = 12;    ///< pixels
constexpr int PrintedWidth = 600; ///< of a picture, in pixels of an ordinary screen: fits A4

QSet<QString> PicturesOf(const QTextDocument& document) {
    QSet<QString> names;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isImageFormat())
                names += part.fragment().charFormat().toImageFormat().name();
    return names;
}

/// Links get their colour from the palette of the screen, which may be too light for paper.
void BlackenLinks(QTextDocument& document) {
    QTextCharFormat black;
    black.setForeground(Qt::black);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    cursor.mergeCharFormat(black);
}

/// The picture in its natural width, or narrower if it does not fit, with a frame around it.
QPixmap Framed(const QByteArray& content, int width, double dense, const QColor& frame) {
    const QImage image = QImage::fromData(content);
    const double natural = image.width() / PixelsOfPicture;
    QImage fitted =
        image.scaledToWidth(qRound(qMin<double>(natural, width) * dense), Qt::SmoothTransformation);
    fitted = fitted.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&fitted);
    painter.setPen(QPen(frame, 2 * dense)); // half of it falls outside
    painter.drawRect(fitted.rect());
    painter.end();
    QPixmap pixmap = QPixmap::fromImage(fitted);
    pixmap.setDevicePixelRatio(dense);
    return pixmap;
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    document()->setDocumentMargin(PageMargin);
    // source() still gives the old one during the signal.
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
        m_topic = url.fileName().chopped(3);
        Dress();
    });
}

void HelpBrowser::SetBook(const HelpBook& book) {
    m_book = &book;
    const auto direction = QLocale(book.Locale()).textDirection();
    setLayoutDirection(direction);
}

void HelpBrowser::ShowTopic(const QString& topic, int block) {
    setSource(QUrl(topic + QStringLiteral(".md")), QTextDocument::MarkdownResource);
    if (block < 0)
        return;
    const QTextBlock wanted = document()->findBlockByNumber(block);
    setTextCursor(QTextCursor(wanted));
    verticalScrollBar()->setValue(
        qRound(document()->documentLayout()->blockBoundingRect(wanted).top()));
}

QPixmap HelpBrowser::Picture(const QString& name) const {
    const int width = viewport()->width() - qRound(2 * document()->documentMargin());
    return Framed(m_book->Content(name), qMax(width, 100), devicePixelRatioF(),
                  palette().color(QPalette::Mid));
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (!m_book)
        return {};
    if (type == QTextDocument::ImageResource)
        return Picture(name.fileName());
    return m_book->Content(name.fileName());
}

void HelpBrowser::Dress() {
    DressHelp(*document());
    MarkWords();
}

/// Pictures follow the width of the window.
void HelpBrowser::resizeEvent(QResizeEvent* event) {
    for (const QString& name : PicturesOf(*document()))
        document()->addResource(QTextDocument::ImageResource, QUrl(name), Picture(name));
    document()->markContentsDirty(0, document()->characterCount());
    QTextBrowser::resizeEvent(event);
}

/// Links and frames take their colour when the topic is loaded.
void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_book && !source().isEmpty())
        reload();
}

void HelpBrowser::Mark(const QStringList& words) {
    m_words = words;
    MarkWords();
}

void HelpBrowser::MarkWords() {
    QTextCharFormat marked;
    marked.setBackground(QColor(255, 224, 102));
    marked.setForeground(Qt::black);
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : m_words)
        for (QTextCursor found = document()->find(word); !found.isNull();
             found = document()->find(word, found))
            marks += {found, marked};
    setExtraSelections(marks);
}

void HelpBrowser::Print(QPrinter& printer) const {
    QTextDocument paper;
    paper.setMarkdown(QString::fromUtf8(m_book->Content(source().fileName())));
    DressHelp(paper);
    BlackenLinks(paper);
    for (const QString& name : PicturesOf(paper))
        paper.addResource(QTextDocument::ImageResource, QUrl(name),
                          Framed(m_book->Content(name), PrintedWidth, PixelsOfPicture, Qt::gray));
    printer.setDocName(m_book->Title(Topic()));
    paper.print(&printer);
}
