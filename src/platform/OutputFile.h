#pragma once

#include <QFile>

#include <memory>

/// A file that is being written, under a temporary name beside its place. It gets its name only
/// when it is complete and on the disk. Every failure throws FileError. A file of the program's own
/// (OwnFiles.h) is refused.
class OutputFile {
public:
    enum class Older {
        /// An older file is replaced. A device or a pipe is written directly. If the user may write
        /// to the older file but may not make a new one in its folder, Commit overwrites it from a
        /// complete file elsewhere.
        Replace,
        /// Whatever has the name is left alone, and the new file is refused.
        Keep
    };
    explicit OutputFile(const QString& path, Older older = Older::Replace);
    /// Without Commit, an older file stays as it was, and no new one is left.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Gives the new file the owner and mode of another, as far as possible. Call it before the
    /// first byte is written, so that nobody else can read any. Only for a file that keeps an older
    /// one.
    void TakeRightsOf(const QString& path);

    void Write(const QByteArray& bytes);
    /// For a writer that checks the result of each write itself.
    QFile& Device() { return *m_device; }
    /// The file is complete: writes it to the disk and closes it. It can then be read under its
    /// temporary name, which this gives. Only for a file that keeps an older one.
    QString Finish();
    void Commit();

    /// Why a write to a device failed or was incomplete.
    static QString CauseOfFailure(QIODevice& device);
    /// Throws this as a failure to write the file.
    [[noreturn]] static void Fail(QIODevice& device, const QString& path);

private:
    enum class Way {
        Replace,  ///< a file beside the target, which then replaces it
        New,      ///< a file beside the target, which then gets its name
        Copy,     ///< a temporary file elsewhere, then copied over the target
        Straight, ///< the target itself: a device or a pipe
    };

    [[noreturn]] void Refuse(int number, const QString& cause) const;
    [[noreturn]] void Fail() const { Fail(*m_device, m_target); }
    void OpenPart();
    void OpenForReplacing();
    void CopyOver();

    QString m_target;
    std::unique_ptr<QFile> m_device;
    Way m_way = Way::Straight;
};
