#include "ReportPdf.h"

#include "Clock.h"
#include "OutputFile.h"
#include "RunTimeError.h"

#include <QFileDevice>
#include <QPainter>
#include <QPdfWriter>

#include <numeric>

namespace {

/// Passes the document on to the device. The writer ignores failed writes and takes the date from
/// the machine; this stream keeps the first failure and puts in the date of the pages.
class PdfStream : public QIODevice {
public:
    PdfStream(QIODevice& target, DateTime printedAt) : m_target(target) {
        m_stamp = QDateTime(printedAt.ToQDate(), printedAt.ToQTime())
                      .toString(QStringLiteral("yyyyMMddHHmmss"))
                      .toLatin1();
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }
    const QString& Failure() const { return m_failure; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        if (!m_failure.isNull())
            return -1;
        const qint64 written = m_target.write(Stamped(QByteArray::fromRawData(data, size)));
        if (written != size)
            m_failure = OutputFile::CauseOfFailure(m_target);
        return written;
    }

private:
    /// The new date is as long as the one it replaces, since the document counts its bytes.
    QByteArray Stamped(QByteArray bytes) {
        static const QByteArray key = QByteArrayLiteral("/CreationDate (D:");
        const qsizetype at = m_stamped ? -1 : bytes.indexOf(key);
        if (at < 0)
            return bytes;
        m_stamped = true;
        return bytes.replace(at + key.size(), m_stamp.size(), m_stamp);
    }

    QIODevice& m_target;
    QByteArray m_stamp;
    bool m_stamped = false;
    QString m_failure;
};

[[noreturn]] void Fail(const QString& reason) {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QStringLiteral("The PDF cannot be written: ") + reason);
}

} // namespace

bool ExportPdf(const DataReport& report, QIODevice& device, const QString& title,
               const PageProgress& progress) {
    const DateTime printedAt = Now();
    PdfStream stream(device, printedAt);
    QPdfWriter writer(&stream);
    writer.setTitle(title);
    writer.setPageSize(report.Paper());
    writer.setPageMargins(QMarginsF());
    // The pages' own unit: nothing is scaled, and the numbers in the document are short.
    writer.setResolution(static_cast<int>(DataReport::UnitsPerInch));
    QPainter painter;
    if (!painter.begin(&writer))
        Fail(device.errorString());
    std::vector<int> pages(static_cast<std::size_t>(report.PageCount()));
    std::iota(pages.begin(), pages.end(), 0);
    const bool all =
        report.PaintSheets(painter, writer, pages, printedAt, [&](int done, int count) {
            return stream.Failure().isNull() && (!progress || progress(done, count));
        });
    painter.end();
    if (!stream.Failure().isNull())
        Fail(stream.Failure());
    return all;
}

bool ExportPdf(const DataReport& report, const QString& path, const QString& title,
               const PageProgress& progress) {
    OutputFile file(path);
    if (!ExportPdf(report, file.Device(), title, progress))
        return false;
    file.Commit();
    return true;
}
