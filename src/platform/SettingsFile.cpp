#include "SettingsFile.h"

#include <QFileDevice>

#include <array>

namespace {

/// `text` in quotes, as one line.
QByteArray Quoted(const QString& text) {
    QByteArray line = "\"";
    for (const char byte : text.toUtf8()) {
        if (byte == '\n')
            line += "\\n";
        else if (byte == '\r')
            line += "\\r";
        else if (byte == '\0')
            line += "\\0";
        else if (byte == '"' || byte == '\\')
            (line += '\\') += byte;
        else
            line += byte;
    }
    return line + '"';
}

/// What a backslash means, with what follows it. An escape by number takes all hexadecimal
/// digits that follow.
QString Escaped(const QString& line, qsizetype& at) {
    const QChar letter = line[at++];
    if (letter == u'x') {
        const qsizetype digits = at;
        while (at < line.size() && QStringView(u"0123456789abcdefABCDEF").contains(line[at]))
            ++at;
        return QChar(line.mid(digits, at - digits).toUShort(nullptr, 16));
    }
    constexpr std::array<QChar, 4> Meanings = {u'\n', u'\r', u'\t', u'\0'};
    const qsizetype known = QStringView(u"nrt0").indexOf(letter);
    return known < 0 ? letter : Meanings[static_cast<std::size_t>(known)];
}

/// A value as it stands in the file. Text outside of quotes counts too, so a value that was edited
/// by hand may hold commas.
QString Unquoted(const QString& line) {
    QString text;
    for (qsizetype at = 0; at < line.size();) {
        const QChar letter = line[at++];
        if (letter == u'\\' && at < line.size())
            text += Escaped(line, at);
        else if (letter != u'"')
            text += letter;
    }
    return text.startsWith(u"@@") ? text.mid(1) : text; // how Qt wrote a text with an "@" in front
}

bool Read(QIODevice& device, QSettings::SettingsMap& values) {
    QString section;
    for (QByteArray bytes = device.readLine(); !bytes.isEmpty(); bytes = device.readLine()) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']'))
            section = line.mid(1, line.size() - 2) + u'/';
        else if (equals > 0 && !line.startsWith(u';'))
            values[section + line.left(equals).trimmed()] =
                Unquoted(line.mid(equals + 1).trimmed());
    }
    return true;
}

/// The map is sorted, so the keys of a section follow each other.
bool Write(QIODevice& device, const QSettings::SettingsMap& values) {
    QByteArray all;
    QString section;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QString of = value.key().section(u'/', 0, 0);
        if (of != section)
            all += (all.isEmpty() ? "[" : "\n[") + of.toUtf8() + "]\n";
        section = of;
        // Qt's own form gives a text with an "@" in front a meaning of its own.
        const QString text = value->toString();
        all += value.key().section(u'/', 1).toUtf8() + '=' +
               Quoted(text.startsWith(u'@') ? u'@' + text : text) + '\n';
    }
    // Whatever is written later, when the file is closed, fails without a trace.
    auto* file = qobject_cast<QFileDevice*>(&device);
    return device.write(all) == all.size() && file && file->flush();
}

} // namespace

QSettings::Format SettingsFormat() {
#ifdef Q_OS_WIN
    return QSettings::NativeFormat;
#else
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("conf"), Read, Write, Qt::CaseSensitive);
    return format;
#endif
}
