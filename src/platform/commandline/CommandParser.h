#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <stdexcept>

namespace CLI {
class App;
}

/// Wrong usage. what() says why, in UTF-8.
class UsageError : public std::runtime_error {
public:
    explicit UsageError(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// One command of a program. It recognises a call, stores its options, and describes them.
///
/// The arguments of a call are those after the program's name. Options may come before, between or
/// after the command's words, as "--name value" or "--name=value". All arguments after a bare "--"
/// are words, as is one that begins with a single "-".
class CommandParser {
public:
    /// The words are separated by single blanks, such as "reader set-clock".
    CommandParser(const QString& program, const QString& words);
    ~CommandParser();

    /// Where the command's options are added (CommandOptions.h). All of them, before the first of
    /// the routines below.
    CLI::App& Options() { return *m_app; }

    /// True if the call's words begin with this command's.
    bool IsCalledBy(const QStringList& arguments) const;
    static bool AsksForHelp(const QStringList& arguments);
    /// The call's words, without options and their values.
    QStringList WordsOf(const QStringList& arguments) const;
    /// The first fault in the call's options; empty if there is none.
    QString FaultOf(const QStringList& arguments) const;

    /// Stores the options and the further words of a call of this command. Throws UsageError.
    void Parse(const QStringList& arguments) const;

    /// What the command does, its options and an example: the arguments of a call that follow the
    /// command's words.
    QString Help(const QString& description, const QString& example) const;

private:
    struct Call;
    Call Read(const QStringList& arguments) const;

    QString m_program;
    QStringList m_words;
    std::unique_ptr<CLI::App> m_app;
};
