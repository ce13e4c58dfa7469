#pragma once

#include <QFile>

#include <memory>

/// A file that is being written. It replaces an older file only when it is complete and on the
/// disk. A device or a pipe is written directly. If the user may write to the older file but may
/// not make a new one in its folder, Commit overwrites it from a complete file elsewhere. Every
/// failure throws RunTimeError, with the file's name and the cause in its text.
class OutputFile {
public:
    explicit OutputFile(const QString& path);
    /// Without Commit, an older file stays as it was, and no new one is left.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(const QByteArray& bytes);
    /// For a writer that checks the result of each write itself.
    QFile& Device() { return *m_device; }
    void Commit();

    /// Why a write to a device failed or was incomplete.
    static QString CauseOfFailure(QIODevice& device);

private:
    enum class Way {
        Replace,  ///< a file beside the target, which then replaces it
        Copy,     ///< a temporary file elsewhere, then copied over the target
        Straight, ///< the target itself: a device or a pipe
    };

    [[noreturn]] void Fail() const;
    void CopyOver();

    QString m_target;
    std::unique_ptr<QFile> m_device;
    Way m_way = Way::Straight;
};
