#include "OutputFile.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

std::unique_ptr<QFileDevice> DeviceFor(const QString& path) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return std::make_unique<QFile>(path);
    return std::make_unique<QSaveFile>(path);
}

} // namespace

OutputFile::OutputFile(const QString& path) : m_path(path), m_device(DeviceFor(path)) {
    if (!m_device->open(QIODevice::WriteOnly))
        Fail();
}

OutputFile::~OutputFile() = default;

void OutputFile::Commit() {
    auto* replacement = qobject_cast<QSaveFile*>(m_device.get());
    const bool done = replacement ? replacement->commit() : m_device->flush();
    if (!done || m_device->error() != QFileDevice::NoError)
        Fail();
}

void OutputFile::Fail() const {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QStringLiteral("The file \"%1\" cannot be written: %2")
                           .arg(QDir::toNativeSeparators(m_path), m_device->errorString()));
}
