#!/usr/bin/env python3
"""Writes the man pages of programs, and the completion of those with commands, from their --help.

usage: manual.py VERSION DATE FOLDER PROGRAM...

So every text stands once, in the program. The help has this form: calls after "usage:", blocks
between blank lines, and sections whose heading ends in ":" with entries of two columns. An entry of
another form is a mistake, and ends this script.
"""
import re
import subprocess
import sys
import textwrap
from dataclasses import dataclass, field
from pathlib import Path

FILE_KINDS = ("PATH", "FILE")
COMMON = "Options of every command"


def fail(text):
    sys.exit(f"manual.py: {text}")


@dataclass
class Entry:
    """A row of two columns: an option, an argument or a command."""
    name: str
    text: str
    mark: bool = False  # the "*" in front of a command

    @property
    def word(self):
        return self.name.split()[0]

    @property
    def kind(self):
        """What an option's value is; empty if it has none."""
        words = [word for word in self.name.split()[1:] if word != "(required)"]
        return words[0] if words else ""


@dataclass
class Help:
    calls: list = field(default_factory=list)
    paragraphs: list = field(default_factory=list)
    sections: dict = field(default_factory=dict)  # heading: entries
    statuses: str = ""
    example: str = ""


def entries_of(lines, where):
    found = []
    for line in lines:
        row = re.fullmatch(r"([* ]) (\S.*?)(?:  +(.*))?", line)
        wrapped = re.fullmatch(r" {8,}(\S.*)", line)
        if wrapped and found and not found[-1].text:
            found[-1].text = wrapped[1]
        elif row and not wrapped:
            found.append(Entry(row[2], row[3] or "", row[1] == "*"))
        else:
            fail(f"{where}: no entry: {line}")
    return found


def help_of(program, words=()):
    where = " ".join([program.name, *words])
    text = subprocess.run([program, *words, "--help"], check=True, capture_output=True, text=True).stdout
    shown = Help()
    for block in text.strip("\n").split("\n\n"):
        lines = block.split("\n")
        if not shown.calls and len(lines) > 1 and lines[1].startswith("Usage: "):
            shown.paragraphs.append(lines.pop(0))  # a command's purpose
        if lines[0].lower().startswith("usage: "):
            shown.calls = [lines[0][7:]] + [line.strip() for line in lines[1:]]
        elif lines[0].startswith("exit status: "):
            shown.statuses = " ".join(lines)[13:]
        elif lines[0].startswith("Example: "):
            shown.example = lines[0][9:]
        elif re.fullmatch(r"[A-Z][a-z ]+:", lines[0]):
            shown.sections[lines[0][:-1]] = entries_of(lines[1:], where)
        elif re.match(r"[* ] ", lines[0]):
            shown.sections["Commands"] = entries_of(lines, where)
        elif re.match(r"       " + program.name, lines[0]):
            shown.calls += [line.strip() for line in lines]
        else:
            shown.paragraphs.append(" ".join(lines))
    if not shown.calls or not shown.paragraphs:
        fail(f"{where}: no usage or no description")
    return shown


def roff(text):
    text = text.replace("\\", r"\e").replace("-", r"\-")
    return r"\&" + text if text.startswith((".", "'")) else text


def prose(text):
    """As lines, each sentence on its own."""
    sentences = text.replace(". ", ".\n").split("\n")
    return [roff(line) for sentence in sentences
            for line in textwrap.wrap(sentence, 70, break_long_words=False, break_on_hyphens=False)]


def bold_name(entry):
    kind = rf" \fI{roff(entry.kind)}\fR" if entry.kind else ""
    required = " (required)" if entry.name.endswith(" (required)") else ""
    return rf"\fB{roff(entry.word)}\fR{kind}{required}"


def paragraph(text):
    return [".PP"] + prose(text)


def list_of(entries):
    return [line for entry in entries for line in (".TP", bold_name(entry), *prose(entry.text))]


def call_lines(calls):
    lines = []
    for call in calls:
        program, *rest = call.split(" ", 1)
        lines += [".PP" if not lines else ".br", r"\fB" + roff(program) + r"\fR" + "".join(" " + roff(r) for r in rest)]
    return lines


def command_lines(entry, shown):
    """A command's own section. Its help names the options of every command again: they are left out."""
    lines = [f'.SS "{roff(entry.name)}{" *" if entry.mark else ""}"', *prose(entry.text + ".")]
    lines += call_lines(shown.calls)
    for heading, entries in shown.sections.items():
        if heading != COMMON:
            lines += list_of(entry for entry in entries if entry.word != "--help")
    return lines + paragraph("Example:") + [".RS", *prose(shown.example), ".RE"]


def page_of(program, shown, commands, version, date, others):
    first = shown.paragraphs[0]
    purpose = first[0].lower() + first[1:].split(". ")[0].rstrip(".")
    lines = [f'.TH {program.name.upper()} 1 "{date}" "Wardlock {version}" "User Commands"',
             ".nh", ".ad l", ".SH NAME", f"{program.name} \\-", *prose(purpose), ".SH SYNOPSIS"]
    lines += call_lines(shown.calls)[1:]
    lines += [".SH DESCRIPTION"] + [line for text in shown.paragraphs for line in paragraph(text)][1:]
    if commands:
        lines += [".SH COMMANDS"]
        for entry, command in commands:
            lines += command_lines(entry, command)
        shown.sections["Options"] = commands[0][1].sections[COMMON] + [
            Entry("--help", "shows the commands, or the options of a command"), Entry("--version", "shows the version")]
    lines += [".SH OPTIONS"] + list_of(shown.sections["Options"])
    lines += [".SH EXIT STATUS"]
    for status in shown.statuses.split(", "):
        number, meaning = status.split(" ", 1)
        if not number.isdigit():
            fail(f"{program.name}: no exit status: {status}")
        lines += [".TP", rf"\fB{number}\fR", *prose(meaning)]
    lines += [".SH SEE ALSO", ",\n".join(rf"\fB{roff(name)}\fR(1)" for name in others),
              ".PP", "README.md and docksim.md, among the installed documents."]
    return "\n".join(lines) + "\n"


def completion_of(program, shown, commands):
    """A script of bash: what can follow what, and one routine that looks there."""
    name = program.name
    common = commands[0][1].sections[COMMON]
    options, files = {"": common + [Entry("--help", ""), Entry("--version", "")]}, []
    for entry, command in commands:
        options[entry.name] = command.sections["Options"] + common
        files += [entry.name for argument in command.sections.get("Arguments", []) if argument.word in FILE_KINDS]
    kinds = {}
    for entries in options.values():
        for entry in entries:
            kinds.setdefault(entry.word, []).append(entry.kind)
    values = {word: of[0] for word, of in kinds.items() if all(of)}
    for command, entries in options.items():
        for entry in entries:
            if entry.kind != values.get(entry.word, ""):
                values[f"{command} {entry.word}"] = entry.kind

    def table(rows):
        return "\n".join(f"    ['{key}']='{value}'" for key, value in rows)

    first = dict.fromkeys(entry.name.split()[0] for entry, _ in commands)
    words = {"-": " ".join(first)}
    for entry, _ in commands:
        head, _, tail = entry.name.partition(" ")
        if tail:
            words[head] = (words.get(head, "") + " " + tail).strip()
    return f"""# Bash completion of {name}, made from its help.

# The words that can follow; "-" stands for the beginning.
declare -gA _{name}_words=(
{table(words.items())}
)
# The options of each command, and of a call without one.
declare -gA _{name}_options=(
{table((key or "-", " ".join(entry.word for entry in entries)) for key, entries in options.items())}
)
# What the value of an option is, of that command if it is named. Words with "|" are a choice.
declare -gA _{name}_values=(
{table(values.items())}
)
# The commands that take a file.
declare -gA _{name}_files=(
{table((command, "FILE") for command in files)}
)
""" + ROUTINE.replace("NAME", name)


ROUTINE = """
_NAME()
{
    local cur prev words cword split
    _init_completion -n : -s || return

    # The command's words so far, and the option whose value comes next.
    local command= option= i
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
            --*=*) ;;
            --*)
                option=${words[i]}
                [[ ${_NAME_values["$command $option"]-${_NAME_values[$option]-}} ]] && ((i++))
                ;;
            *) command+=${command:+ }${words[i]} ;;
        esac
    done

    local kind=${_NAME_values["$command $prev"]-${_NAME_values[$prev]-}}
    case $kind in
        '') ;;
        *'|'*) COMPREPLY=($(compgen -W "${kind//|/ }" -- "$cur")); return ;;
        PATH) _filedir; return ;;
        *) return ;;
    esac
    $split && return

    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "${_NAME_options[${command:--}]-${_NAME_options[-]}}" -- "$cur"))
    elif [[ ${_NAME_words[${command:--}]-} ]]; then
        COMPREPLY=($(compgen -W "${_NAME_words[${command:--}]}" -- "$cur"))
    elif [[ ${_NAME_files[$command]-} ]]; then
        _filedir
    fi
} &&
    complete -F _NAME NAME
"""


def main(version, date, folder, *paths):
    programs = [Path(path) for path in paths]
    for program in programs:
        shown = help_of(program)
        commands = [(entry, help_of(program, entry.name.split())) for entry in shown.sections.get("Commands", [])]
        others = [other.name for other in programs if other != program]
        Path(folder, program.name + ".1").write_text(page_of(program, shown, commands, version, date, others))
        if commands:
            Path(folder, program.name).write_text(completion_of(program, shown, commands))


if len(sys.argv) < 5:
    fail("usage: manual.py VERSION DATE FOLDER PROGRAM...")
main(*sys.argv[1:])
