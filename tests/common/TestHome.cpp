#include "TestHome.h"

#include "Application.h"
#include "DemoStore.h"
#include "Files.h"
#include "Recordset.h"
#include "Schema.h"
#include "SettingsFile.h"

#include <QTest>

TestHome::TestHome(Content content) {
    SetAppPath(m_folder.path());
    gConnectionString = ConnectionText(Store(), StorePassword);
    QSettings::setPath(SettingsFormat(), QSettings::UserScope, File("config"));
    if (content == NoStore)
        return;
    CreateStoreFile(Store(), StorePassword);
    if (!Open())
        qFatal("no store to test with");
    CreateTables(*gConn);
    if (content == DemoSite)
        DemoStore::Fill(*gConn);
}

TestHome::~TestHome() {
    Close();
    SetAppPath({});
}

void TestHome::CopyProgramFiles(const QString& programs) const {
    for (const char* name : {"WK3.MLD", "login.bmp", "contact.bmp", "WK3_ENG.HLP", "WK3_DEU.HLP"})
        if (!QFile::copy(programs + u'/' + QString::fromLatin1(name),
                         File(QString::fromLatin1(name))))
            qFatal("cannot copy %s", name);
}

QString TestHome::TakeLog() const {
    QStringList lines = QString::fromUtf8(BytesOf(File("error.log"))).split(u'\n');
    QFile::remove(File("error.log"));
    for (QString& line : lines)
        line = line.mid(line.indexOf(u'\t') + 1);
    return lines.join(u'\n').trimmed();
}

QStringList RowsOf(const QString& query) {
    Recordset rows;
    rows.CursorLocation = adUseClient;
    rows.Open(query, *gConn, adOpenStatic, adLockReadOnly);
    QStringList lines;
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList values;
        for (int column = 0; column < rows.Columns().size(); ++column) {
            const Value value = rows.FieldAt(column);
            values += value.IsNull() ? QStringLiteral("NULL") : value.Text();
        }
        lines += values.join(u'|');
    }
    return lines;
}

QStringList ContentOfStore() {
    QStringList lines;
    for (const QString& table :
         RowsOf("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"))
        lines += QStringList(table) + RowsOf("SELECT * FROM " + table);
    return lines;
}
