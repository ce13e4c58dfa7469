#include "OutputFile.h"

#include "FileReplacement.h"
#include "OwnFiles.h"
#include "StoreLock.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryFile>

#include <cerrno>

namespace {

/// Of the target's name in that of its temporary file. A letter has at most three bytes, and a name
/// at most 255.
constexpr int LettersOfTarget = 60;

/// Beside the target, because only within one folder can a file replace another atomically.
QString PartPath(const QFileInfo& target) {
    return target.dir().filePath(
        QStringLiteral(".%1.%2.part")
            .arg(target.fileName().left(LettersOfTarget))
            .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0')));
}

bool IsRefusal(int error) { return error == EACCES || error == EPERM; }

} // namespace

OutputFile::OutputFile(const QString& path, Older older) {
    const QFileInfo target(older == Older::Keep ? path : FileMeantBy(path));
    m_target = target.filePath();
    if (StoreLock::IsHeldHere(m_target))
        Refuse(RunTimeErrorNumber::UsedByProgram, QStringLiteral("is the open database."));
    if (IsOwnFile(m_target))
        Refuse(RunTimeErrorNumber::UsedByProgram,
               QStringLiteral("is one of the program's own files."));
    if (older == Older::Replace) {
        OpenForReplacing();
        return;
    }
    if (!IsFreeName(m_target))
        Refuse(RunTimeErrorNumber::FileExists, QStringLiteral("already exists."));
    OpenPart();
    if (!m_device->isOpen())
        Fail();
    m_way = Way::New;
}

void OutputFile::OpenPart() {
    m_device = std::make_unique<QFile>(PartPath(QFileInfo(m_target)));
    m_device->open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

void OutputFile::OpenForReplacing() {
    const QFileInfo target(m_target);
    if (target.exists() && !target.isFile()) {
        m_device = std::make_unique<QFile>(m_target);
    } else {
        OpenPart();
        if (m_device->isOpen()) {
            m_way = Way::Replace;
            return;
        }
        if (!IsRefusal(errno) || !target.isWritable())
            Fail();
        m_device = std::make_unique<QTemporaryFile>();
        m_way = Way::Copy;
    }
    if (!m_device->open(m_way == Way::Copy ? QIODevice::ReadWrite : QIODevice::WriteOnly))
        Fail();
}

OutputFile::~OutputFile() {
    // By its name, because a QFile whose last write failed does not remove itself.
    if (m_way == Way::Replace || m_way == Way::New)
        QFile::remove(m_device->fileName());
}

void OutputFile::TakeRightsOf(const QString& path) { KeepOwnerAndMode(path, m_device->fileName()); }

void OutputFile::Write(const QByteArray& bytes) {
    if (m_device->write(bytes) != bytes.size())
        Fail();
}

QString OutputFile::Finish() {
    if (m_device->isOpen()) {
        if (!m_device->flush() || m_device->error() != QFileDevice::NoError)
            Fail();
        m_device->close();
        SyncFile(m_device->fileName());
    }
    return m_device->fileName();
}

void OutputFile::Commit() {
    if (m_way == Way::New) {
        PlaceNewFile(Finish(), m_target);
        m_way = Way::Straight;
        return;
    }
    if (!m_device->flush() || m_device->error() != QFileDevice::NoError)
        Fail();
    if (m_way == Way::Copy) {
        CopyOver();
    } else if (m_way == Way::Replace) {
        const QString part = m_device->fileName();
        if (QFileInfo::exists(m_target))
            KeepOwnerAndMode(m_target, part);
        m_device->close();
        ReplaceFile(part, m_target);
        m_way = Way::Straight;
    }
}

void OutputFile::CopyOver() {
    m_device->seek(0);
    const QByteArray bytes = m_device->readAll();
    m_device = std::make_unique<QFile>(m_target);
    if (!m_device->open(QIODevice::WriteOnly | QIODevice::Truncate))
        Fail();
    Write(bytes);
    if (!m_device->flush())
        Fail();
    m_device->close();
    SyncFile(m_target);
}

QString OutputFile::CauseOfFailure(QIODevice& device) {
    // An incomplete write does not give a cause. The next write does.
    auto* file = qobject_cast<QFileDevice*>(&device);
    if (file && file->isOpen()) {
        file->putChar('\n');
        file->flush();
    }
    return device.errorString();
}

void OutputFile::Refuse(int number, const QString& cause) const {
    throw FileError(number, m_target,
                    QStringLiteral("The file \"%1\" ").arg(QDir::toNativeSeparators(m_target)) +
                        cause);
}

void OutputFile::Fail(QIODevice& device, const QString& path) {
    const QString cause = CauseOfFailure(device);
    throw FileError(FileErrorNumber(), path,
                    QStringLiteral("The file \"%1\" cannot be written: %2")
                        .arg(QDir::toNativeSeparators(path), cause));
}
