#pragma once

#include <QFile>

#include <memory>

/// A file that is being written. It takes the place of an older one only when it is complete and on
/// the disk; a device or a pipe is written as it stands. Where the user may write to the older file
/// but not make a new one in its folder, it is written over by Commit, from a complete file
/// elsewhere. Every failure throws RunTimeError, with the file's name and the cause in its text.
class OutputFile {
public:
    explicit OutputFile(const QString& path);
    /// Without a Commit before, an older file stays as it was, and no new one is left.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(const QByteArray& bytes);
    /// For a writer of its own, which must look at the result of every write.
    QFile& Device() { return *m_device; }
    void Commit();

    /// Why a write to a device failed or was cut short.
    static QString CauseOfFailure(QIODevice& device);

private:
    enum class Way {
        Replace,  ///< a file beside the target, which takes its place
        Copy,     ///< a temporary file elsewhere, copied over the target
        Straight, ///< the target itself: a device or a pipe
    };

    [[noreturn]] void Fail() const;
    void CopyOver();

    QString m_target;
    std::unique_ptr<QFile> m_device;
    Way m_way = Way::Straight;
};
