#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <stdexcept>

namespace {

QString Content(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("unreadable: " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

/// Where the bracket that is open at `from` is closed.
qsizetype ClosingBracket(const QString& code, qsizetype from) {
    bool inText = false;
    int depth = 1;
    for (; from < code.size() && depth > 0; ++from) {
        if (inText && code[from] == u'\\')
            ++from;
        else if (code[from] == u'"')
            inText = !inText;
        else if (!inText && code[from] == u'(')
            ++depth;
        else if (!inText && code[from] == u')')
            --depth;
    }
    return from;
}

/// The string literals of a piece of code; adjacent ones are one.
QStringList Literals(const QString& code) {
    static const QRegularExpression adjacent("\"\\s*\"");
    static const QRegularExpression literal("\"((?:[^\"\\\\]|\\\\.)*)\"");
    QStringList texts;
    QString joined = code;
    joined.replace("\\\"", QString(QChar(1))).replace(adjacent, {});
    for (auto all = literal.globalMatch(joined); all.hasNext();) {
        QString text = all.next().captured(1);
        texts += text.replace("\\n", "\n").replace("\\r", "\r").replace(QChar(1), u'"');
    }
    return texts;
}

void AddTextsOfCode(const QString& code, QSet<QString>& texts) {
    static const QRegularExpression call("\\b(?:Translate|m_translate|QT_TR_NOOP)\\(");
    for (auto all = call.globalMatch(code); all.hasNext();) {
        const qsizetype from = all.next().capturedEnd();
        for (const QString& text : Literals(code.mid(from, ClosingBracket(code, from) - from)))
            texts += text;
    }
}

void AddTextsOfForm(const QString& form, QSet<QString>& texts) {
    for (QXmlStreamReader xml(form); !xml.atEnd(); xml.readNext())
        if (xml.isStartElement() && xml.name() == u"string" &&
            !xml.attributes().hasAttribute("notr"))
            texts += xml.readElementText();
}

/// What the program can show: every text that its code translates or its forms hold.
QSet<QString> ShownTexts() {
    QSet<QString> texts;
    for (QDirIterator files(SOURCES, {"*.cpp", "*.h", "*.ui"}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString path = files.next();
        if (path.endsWith(".ui"))
            AddTextsOfForm(Content(path), texts);
        else
            AddTextsOfCode(Content(path), texts);
    }
    texts.remove({});
    return texts;
}

/// The entries of a language file, by their English text.
QMultiMap<QString, QString> Entries(const QString& path) {
    QMultiMap<QString, QString> entries;
    QString source;
    for (QXmlStreamReader xml(Content(path)); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"source")
            source = xml.readElementText();
        else if (xml.name() == u"translation")
            entries.insert(source, xml.attributes().hasAttribute("type") ? QString()
                                                                         : xml.readElementText());
    }
    return entries;
}

/// What the program puts values into.
QStringList MarksOf(const QString& text) {
    static const QRegularExpression mark("%\\d+:s|%[pPdt]");
    QStringList marks;
    for (auto all = mark.globalMatch(text); all.hasNext();)
        marks += all.next().captured();
    marks.sort();
    return marks;
}

} // namespace

class TextsTest : public QObject {
    Q_OBJECT

private slots:
    void EveryLanguageHasEveryText_data() {
        QTest::addColumn<QString>("path");
        const QStringList names = QDir(LANGUAGES).entryList({"*.ts"});
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << QDir(LANGUAGES).filePath(name);
        if (names.isEmpty())
            QFAIL("no language file");
    }
    void EveryLanguageHasEveryText() {
        QFETCH(const QString, path);
        const QSet<QString> shown = ShownTexts();
        QVERIFY(shown.contains("&Print Preview"));   // from a form
        QVERIFY(shown.contains("NO EXCEPTIONS"));    // from code
        QVERIFY(shown.contains("Exception Report")); // of a choice between two
        const QMultiMap<QString, QString> entries = Entries(path);
        QStringList faults;
        for (const QString& text : shown)
            if (!entries.contains(text))
                faults += "missing: " + text;
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            if (entries.count(entry.key()) > 1)
                faults += "doubled: " + entry.key();
            if (!shown.contains(entry.key()))
                faults += "never shown: " + entry.key();
            if (entry.value().isEmpty())
                faults += "not translated: " + entry.key();
            if (MarksOf(entry.key()) != MarksOf(entry.value()))
                faults += "other marks: " + entry.key();
        }
        for (const QString& fault : faults)
            qWarning("%s", qPrintable(fault));
        QVERIFY(faults.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TextsTest)
#include "TextsTest.moc"
