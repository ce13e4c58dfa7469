#include "OutputFile.h"

#include "FileReplacement.h"
#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

namespace {

/// Beside the target, for only within a folder can one file take another's place at once.
QString PartPath(const QFileInfo& target) {
    return target.dir().filePath(
        QStringLiteral(".%1.%2.part")
            .arg(target.fileName().left(100))
            .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0')));
}

} // namespace

OutputFile::OutputFile(const QString& path) {
    const QFileInfo given(path);
    // Through a symbolic link to the file that it means.
    const QFileInfo target(given.exists() ? given.canonicalFilePath() : path);
    m_target = target.filePath();
    m_replaces = !target.exists() || target.isFile();
    if (m_replaces) {
        m_device = std::make_unique<QFile>(PartPath(target));
        if (m_device->open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return;
        if (!target.isWritable())
            Fail();
        m_replaces = false;
    }
    m_device = std::make_unique<QFile>(m_target);
    if (!m_device->open(QIODevice::WriteOnly | QIODevice::Truncate))
        Fail();
}

OutputFile::~OutputFile() {
    // By its name: a QFile whose last write failed does not remove itself.
    if (m_replaces)
        QFile::remove(m_device->fileName());
}

void OutputFile::Write(const QByteArray& bytes) {
    if (m_device->write(bytes) != bytes.size())
        Fail();
}

void OutputFile::Commit() {
    if (!m_device->flush() || m_device->error() != QFileDevice::NoError)
        Fail();
    if (!m_replaces)
        return;
    const QString part = m_device->fileName();
    if (QFileInfo::exists(m_target))
        KeepOwnerAndMode(m_target, part);
    m_device->close();
    ReplaceFile(part, m_target);
    m_replaces = false;
}

void OutputFile::Fail() const {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QStringLiteral("The file \"%1\" cannot be written: %2")
                           .arg(QDir::toNativeSeparators(m_target), m_device->errorString()));
}
