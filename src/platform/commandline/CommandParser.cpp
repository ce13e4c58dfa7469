#include "CommandParser.h"

#include <CLI/CLI.hpp>

namespace {

constexpr int OptionColumn = 32;

bool IsOption(const QString& argument) { return argument.startsWith(u"--"); }

} // namespace

/// A call, taken apart. The library reads a command's options only after its words, so the two are
/// separated first.
struct CommandParser::Call {
    std::vector<std::string> options; ///< each name followed by its value, if it takes one
    QStringList words;
    QString fault; ///< the first that was found; empty if none
};

CommandParser::CommandParser(const QString& program, const QString& words)
    : m_program(program), m_words(words.split(u' ', Qt::SkipEmptyParts)),
      m_app(std::make_unique<CLI::App>()) {
    m_app->set_help_flag("--help", "shows this text");
    m_app->allow_windows_style_options(false);
    m_app->get_formatter()->column_width(OptionColumn);
    m_app->get_formatter()->label("REQUIRED", "(required)");
    m_app->get_formatter()->label("Positionals", "Arguments");
}

CommandParser::~CommandParser() = default;

CommandParser::Call CommandParser::Read(const QStringList& arguments) const {
    Call call;
    QStringList names;
    const auto fault = [&call](const QString& text) {
        if (call.fault.isEmpty())
            call.fault = text;
    };
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == u"--") {
            call.words += arguments.mid(i + 1);
            break;
        }
        if (!IsOption(arguments[i])) {
            call.words += arguments[i];
            continue;
        }
        const qsizetype equals = arguments[i].indexOf(u'=');
        const QString name = arguments[i].left(equals);
        const CLI::Option* option = m_app->get_option_no_throw(name.toStdString());
        const bool takesValue = option && option->get_items_expected_max() > 0;
        if (!option)
            fault(QStringLiteral("unknown option ") + name);
        else if (names.contains(name) &&
                 option->get_multi_option_policy() != CLI::MultiOptionPolicy::TakeAll)
            fault(name + QStringLiteral(" is given twice"));
        else if (!takesValue && equals >= 0)
            fault(name + QStringLiteral(" takes no value"));
        else if (takesValue && equals < 0 && i + 1 == arguments.size())
            fault(name + QStringLiteral(" needs a value"));
        names += name;
        call.options.push_back(name.toStdString());
        if (takesValue)
            call.options.push_back(
                (equals >= 0 ? arguments[i].mid(equals + 1) : arguments.value(++i)).toStdString());
    }
    return call;
}

bool CommandParser::IsCalledBy(const QStringList& arguments) const {
    return WordsOf(arguments).mid(0, m_words.size()) == m_words;
}

bool CommandParser::AsksForHelp(const QStringList& arguments) {
    return arguments.mid(0, arguments.indexOf(QStringLiteral("--")))
        .contains(QStringLiteral("--help"));
}

QStringList CommandParser::WordsOf(const QStringList& arguments) const {
    return Read(arguments).words;
}

QString CommandParser::FaultOf(const QStringList& arguments) const { return Read(arguments).fault; }

void CommandParser::Parse(const QStringList& arguments) const {
    const Call call = Read(arguments);
    if (!call.fault.isEmpty())
        throw UsageError(call.fault);
    const QStringList words = call.words.mid(m_words.size());
    const auto places =
        m_app->get_options([](const CLI::Option* option) { return option->get_positional(); });
    if (words.size() > static_cast<qsizetype>(places.size()))
        throw UsageError(QStringLiteral("unexpected argument \"%1\"").arg(words[places.size()]));
    std::vector<std::string> all = call.options;
    all.emplace_back("--"); // even a word with a "-" in front is no option
    for (const QString& word : words)
        all.push_back(word.toStdString());
    std::reverse(all.begin(), all.end()); // the library's order
    try {
        m_app->parse(all);
    } catch (const CLI::Error& error) {
        throw UsageError(QString::fromUtf8(error.what()));
    }
}

QString CommandParser::Help(const QString& description, const QString& example) const {
    const QString name = m_program + u' ' + m_words.join(u' ');
    m_app->name(name.toStdString());
    m_app->description(description.toStdString());
    m_app->footer((QStringLiteral("Example: ") + name + u' ' + example).toStdString());
    return QString::fromStdString(m_app->help())
        .replace(QStringLiteral("\n\n\n"), QStringLiteral("\n\n"));
}
