#include "PrintQueue.h"

#include "RunTimeError.h"

#include <QFile>
#include <QPrintEngine>
#include <QPrinter>
#include <QScopeGuard>

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
#include <cups/cups.h>
#endif

QStringList SystemOptions(const QPrinter& printer) {
    // The property has no name in Qt's public headers.
    constexpr auto key = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    return printer.printEngine()->property(key).toStringList();
}

void PrintingFailed(const QPrinter& printer, const QString& reason) {
    constexpr int printerError = 482;
    throw RunTimeError(
        printerError,
        (QStringLiteral("The printer \"%1\" takes no pages. ").arg(printer.printerName()) + reason)
            .trimmed());
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
const bool PrintsFiles = true;

void SendToPrinter(const QPrinter& printer, const QString& path) {
    int count = 0;
    cups_option_t* options = nullptr;
    const auto freeOptions = qScopeGuard([&] { cupsFreeOptions(count, options); });
    const auto add = [&](const QString& name, const QString& value) {
        count = cupsAddOption(name.toLocal8Bit().constData(), value.toLocal8Bit().constData(),
                              count, &options);
    };
    add(QStringLiteral("media"), printer.pageLayout().pageSize().key());
    add(QStringLiteral("sides"),
        printer.duplex() == QPrinter::DuplexNone        ? QStringLiteral("one-sided")
        : printer.duplex() == QPrinter::DuplexShortSide ? QStringLiteral("two-sided-short-edge")
                                                        : QStringLiteral("two-sided-long-edge"));
    if (printer.copyCount() > 1) {
        add(QStringLiteral("copies"), QString::number(printer.copyCount()));
        if (printer.collateCopies())
            add(QStringLiteral("Collate"), QStringLiteral("True"));
    }
    const QStringList chosen = SystemOptions(printer);
    for (qsizetype i = 0; i + 1 < chosen.size(); i += 2)
        if (chosen[i] != PageRangesOption && chosen[i] != PageSetOption)
            add(chosen[i], chosen[i + 1]);
    // After a slash comes the name of a set of the user's preferences for that printer.
    const QString name = printer.printerName().section(u'/', 0, 0);
    if (cupsPrintFile(name.toLocal8Bit().constData(), QFile::encodeName(path).constData(),
                      printer.docName().toUtf8().constData(), count, options) == 0)
        PrintingFailed(printer, QString::fromUtf8(cupsLastErrorString()));
}
#else
const bool PrintsFiles = false;

void SendToPrinter(const QPrinter&, const QString&) {}
#endif
