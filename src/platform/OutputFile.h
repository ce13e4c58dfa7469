#pragma once

#include <QString>

#include <memory>

class QFileDevice;

/// A file that is being written. It takes the place of an older one only when it is complete; what
/// is no regular file, such as a device or a pipe, is written as it stands. Every failure throws
/// RunTimeError, with the file's name in its text.
class OutputFile {
public:
    explicit OutputFile(const QString& path);
    /// Without a Commit before, an older file stays as it was.
    ~OutputFile();

    QFileDevice& Device() { return *m_device; }
    void Commit();

private:
    [[noreturn]] void Fail() const;

    QString m_path;
    std::unique_ptr<QFileDevice> m_device;
};
