#include "PdfStream.h"

#include "OutputFile.h"

#include <QDateTime>
#include <QRegularExpression>

namespace {

constexpr qsizetype HeadSize = 1024, TailSize = 512;

/// A text of any language. Written as hexadecimal digits, because a reader takes the byte 13 in a
/// text for a line break, and "č" has such a byte.
QByteArray PdfText(const QString& text) {
    QByteArray bytes("\xFE\xFF", 2);
    for (const QChar unit : text) {
        bytes += static_cast<char>(unit.unicode() >> 8);
        bytes += static_cast<char>(unit.unicode() & 0xFF);
    }
    return '<' + bytes.toHex().toUpper() + '>';
}

/// The digits of a date as PDF writes it.
QByteArray DateDigits(const QDateTime& date) {
    return date.toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1();
}

QDateTime LocalTime(DateTime time) { return {time.ToQDate(), time.ToQTime()}; }

QByteArray PdfDate(const QDateTime& date) {
    const int minutes = date.offsetFromUtc() / 60;
    const QString offset = QStringLiteral("%1%2'%3'")
                               .arg(QLatin1Char(minutes < 0 ? '-' : '+'))
                               .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
                               .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
    return "(D:" + DateDigits(date) + offset.toLatin1() + ')';
}

QByteArray Entry(const char* key, const QByteArray& value) {
    return QByteArray(key) + ' ' + value + '\n';
}

/// A new version of an object, a dictionary.
QByteArray Dictionary(int object, const QByteArray& entries) {
    return QByteArray::number(object) + " 0 obj\n<<\n" + entries + ">>\nendobj\n";
}

/// The line of an object in a table of places.
QByteArray TableLine(int object, qint64 place) {
    return QByteArray::number(object) + " 1\n" + QByteArray::number(place).rightJustified(10, '0') +
           " 00000 n \n";
}

} // namespace

PdfStream::PdfStream(QIODevice& target, PdfProperties properties)
    : m_target(target), m_properties(std::move(properties)),
      m_stamp(DateDigits(LocalTime(m_properties.created))) {
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 PdfStream::writeData(const char* data, qint64 size) {
    if (!m_failure.isNull())
        return -1;
    const QByteArray bytes = Stamped(QByteArray::fromRawData(data, size));
    const qint64 written = m_target.write(bytes);
    if (written != size)
        m_failure = OutputFile::CauseOfFailure(m_target);
    m_size += size;
    if (m_head.size() < HeadSize)
        m_head += bytes.left(HeadSize - m_head.size());
    m_tail = (m_tail + bytes.right(TailSize)).right(TailSize);
    return written;
}

/// The new date is as long as the one it replaces, since the document counts its bytes.
QByteArray PdfStream::Stamped(QByteArray bytes) {
    static const QByteArray key = QByteArrayLiteral("/CreationDate (D:");
    const qsizetype at = m_stamped ? -1 : bytes.indexOf(key);
    if (at < 0)
        return bytes;
    m_stamped = true;
    return bytes.replace(at + key.size(), m_stamp.size(), m_stamp);
}

void PdfStream::AppendProperties() {
    static const QRegularExpression catalogue(
        QStringLiteral("/Type /Catalog\\s*/Pages (\\d+ 0 R)\\s*>>"));
    static const QRegularExpression trailer(
        QStringLiteral("/Size (\\d+)\\s*/Info (\\d+) 0 R\\s*/Root (\\d+) 0 R.*startxref\\s*(\\d+)"),
        QRegularExpression::DotMatchesEverythingOption);
    const auto pages = catalogue.match(QString::fromLatin1(m_head));
    const auto end = trailer.match(QString::fromLatin1(m_tail));
    // If another version of the library writes another form, the document is complete without this.
    if (!pages.hasMatch() || !end.hasMatch())
        return;
    const int info = end.captured(2).toInt(), root = end.captured(3).toInt();

    QByteArray entries;
    if (!m_properties.title.isEmpty())
        entries += Entry("/Title", PdfText(m_properties.title));
    if (!m_properties.author.isEmpty())
        entries += Entry("/Author", PdfText(m_properties.author));
    entries += Entry("/Producer", PdfText(QStringLiteral("Qt ") + QLatin1String(qVersion())));
    entries += Entry("/CreationDate", PdfDate(LocalTime(m_properties.created)));
    QByteArray more = Dictionary(info, entries);
    const qint64 rootAt = m_size + more.size();
    entries = Entry("/Type", "/Catalog") + Entry("/Pages", pages.captured(1).toLatin1());
    if (!m_properties.language.isEmpty())
        entries += Entry("/Lang", '(' + m_properties.language.toLatin1() + ')');
    if (m_properties.rightToLeft)
        entries += Entry("/ViewerPreferences", "<< /Direction /R2L >>");
    more += Dictionary(root, entries);
    const qint64 tableAt = m_size + more.size();
    more += "xref\n" + TableLine(info, m_size) + TableLine(root, rootAt) + "trailer\n<<\n" +
            Entry("/Size", end.captured(1).toLatin1()) +
            Entry("/Info", QByteArray::number(info) + " 0 R") +
            Entry("/Root", QByteArray::number(root) + " 0 R") +
            Entry("/Prev", end.captured(4).toLatin1()) + ">>\nstartxref\n" +
            QByteArray::number(tableAt) + "\n%%EOF\n";
    write(more);
}
