#pragma once

#include "DateTime.h"

#include <QIODevice>
#include <QString>

/// What a PDF says about itself. An empty text is left out.
struct PdfProperties {
    QString title;
    QString author;
    QString language;         ///< such as "de"
    bool rightToLeft = false; ///< a viewer then turns the pages from right to left
    DateTime created;         ///< local time
};

/// Passes a document of QPdfWriter on to a device while it is written, and adds what that writer
/// cannot write. The writer ignores failed writes and takes the date from the machine; this stream
/// keeps the first failure and puts in the given date.
class PdfStream : public QIODevice {
public:
    PdfStream(QIODevice& target, PdfProperties properties);

    bool isSequential() const override { return true; }
    /// Why the document is incomplete; null if it is not.
    const QString& Failure() const { return m_failure; }

    /// Call this after the writer has ended the document. Appends a revision: new versions of the
    /// information dictionary and of the catalogue, with the properties.
    void AppendProperties();

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override;

private:
    QByteArray Stamped(QByteArray bytes);

    QIODevice& m_target;
    PdfProperties m_properties;
    QByteArray m_stamp; ///< the date's 14 digits
    bool m_stamped = false;
    QString m_failure;
    qint64 m_size = 0;
    QByteArray m_head; ///< holds the catalogue
    QByteArray m_tail; ///< holds the trailer
};
