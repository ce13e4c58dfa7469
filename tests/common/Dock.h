#pragma once

#include "Files.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <sys/prctl.h>

/// The simulated docking station, started as a program with a scenario.
class Dock {
public:
    explicit Dock(const QByteArray& scenario) : m_log(m_folder.filePath("log")) {
        WriteBytes(Scenario(), scenario);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        // If the test dies, the dock ends too.
        m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.start(DOCKSIM, {"--scenario", Scenario(), "--log", m_log});
        m_device = QString::fromUtf8(ReadLine()).trimmed();
    }
    ~Dock() {
        m_process.write("quit\n");
        m_process.waitForFinished();
    }

    const QString& Device() const { return m_device; }
    void Say(const QByteArray& line) { m_process.write(line + '\n'); }
    /// Replaces the station and the reader.
    void Load(const QByteArray& scenario) {
        WriteBytes(Scenario(), scenario);
        Say("load " + Scenario().toUtf8());
        State();
    }
    /// When it returns, everything said before has taken effect.
    QJsonObject State() {
        Say("state");
        return QJsonDocument::fromJson(ReadLine()).object();
    }
    int Erasures() { return State()["erased"].toInt(); }
    QString Clock() { return State()["clock"].toString(); }
    /// How often the log contains this text so far.
    qsizetype Logged(const char* text) const { return BytesOf(m_log).count(text); }
    bool HasEnded() {
        return m_process.state() == QProcess::NotRunning || m_process.waitForFinished();
    }

private:
    QString Scenario() const { return m_folder.filePath("scenario"); }
    QByteArray ReadLine() {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(5000))
            ;
        return m_process.readLine();
    }

    QTemporaryDir m_folder;
    QString m_log;
    QProcess m_process;
    QString m_device;
};
