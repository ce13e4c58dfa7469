#pragma once

#include <QString>

#include <exception>

/// The one type that is thrown. It passes through inner routines and is caught at the doors of the
/// program (mErrorHandler.h).
class RunTimeError : public std::exception {
public:
    RunTimeError(int number, QString description)
        : m_number(number), m_description(std::move(description)), m_what(m_description.toUtf8()) {}

    /// Always above zero: one of RunTimeErrorNumber, or StoreEngine plus the engine's own code.
    int Number() const { return m_number; }
    const QString& Description() const { return m_description; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

namespace RunTimeErrorNumber {
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int WrongLength = 10;
constexpr int TypeMismatch = 13;
constexpr int FileNotFound = 53;
constexpr int UsedByProgram = 55; ///< a name that the program itself uses
constexpr int DeviceError = 57;   ///< a disk or the network reports an error
constexpr int FileExists = 58;
constexpr int DiskFull = 61;
constexpr int PermissionDenied = 70;
constexpr int FileAccess = 75; ///< a file cannot be used for another reason
constexpr int PathNotFound = 76;
constexpr int InvalidPropertyValue = 380;
constexpr int AtBeginOrEnd = 3021;     ///< no current row
constexpr int FileInUse = 3045;        ///< another process holds the store
constexpr int NoSuchItem = 3265;       ///< no column, section or control of that name
constexpr int ObjectClosed = 3704;     ///< the object is not open
constexpr int ObjectOpen = 3705;       ///< the object is open already
constexpr int PortNotAvailable = 8002; ///< no such serial device, or it cannot be opened
constexpr int PortNotOpen = 8018;      ///< reading or writing a closed port
constexpr int StoreEngine = 10000;     ///< plus the engine's result code
constexpr int StoreReadOnly = StoreEngine + 8;
constexpr int Interrupted = StoreEngine + 9; ///< the caller has ended a statement
constexpr int StoreDamaged = StoreEngine + 11;
constexpr int StoreCannotOpen = StoreEngine + 14;
} // namespace RunTimeErrorNumber
