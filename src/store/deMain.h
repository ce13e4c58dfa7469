#pragma once

#include "Connection.h"

/// The report data environment: a second connection to the store, opened by its connection text,
/// for reports with hierarchical queries.
class DataEnvironment {
public:
    /// Closes the connection if it is open, and opens it. Throws RunTimeError.
    void Connect(const QString& connectionText) {
        Close();
        m_main.Open(connectionText);
    }
    void Close() { m_main.Close(); }
    Connection& Main() { return m_main; }

private:
    Connection m_main;
};

/// Connected at start, closed when the program ends. The reader download report connects it anew
/// and closes it.
extern DataEnvironment deMain;
