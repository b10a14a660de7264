#include "ctl/command_text.h"

namespace horavex {

namespace {

constexpr const char* kFirstSections = R"(.SH NAME
horavexctl \- prayer times, qibla and calendars at the command line
.SH SYNOPSIS
.B horavexctl
.I command
.RI [ options ]
.SH DESCRIPTION
Calculates for scripts and status bars, and speaks to the running program.
Every command prints text for people or, with
.BR \-\-json ,
one JSON object whose numbers read back as they are.
No command writes a setting itself, and none opens a window.
.PP
Without a place the accepted settings count. A city takes its own zone with daylight saving, the
method that is usual in its country and, where a night needs it, a rule of high latitudes; what is
given by hand replaces just that.
.SH COMMANDS
)";

constexpr const char* kLastSections = R"(.SH EXIT STATUS
.TP
.B 0
All went well.
.TP
.B 1
A calculation gave up, which still prints its JSON; a file is missing or damaged, output cannot be
written, or the program that is spoken to does not run.
.TP
.B 2
Bad usage, told in one line on standard error.
.SH FILES
.TP
.I $XDG_CONFIG_HOME/horavex/registry.ini
Stored settings of the user.
.TP
.I $XDG_DATA_HOME/horavex
What the user has put in front of the installed data.
.SH ENVIRONMENT
.TP
.B HORAVEX_PROGRAM_FOLDER
The one folder that data is read from.
.SH EXAMPLES
.EX
horavexctl today \-\-city Cairo
horavexctl export \-\-city Cairo \-\-year 2026 \-\-format pdf \-\-output cairo.pdf
horavexctl status \-\-follow \-\-format '{next} {time}  {remaining}'
.EE
)";

/// What the formatter would take for its own: backslashes, hyphens, and marks that begin a line.
std::string Plain(const std::string& text) {
    std::string plain;
    for (const char letter : text) {
        plain += letter == '\\'  ? "\\e"
                 : letter == '-' ? "\\-"
                 : letter == '"' ? "\\(dq"
                                 : std::string(1, letter);
    }
    const bool beginsWithMark = plain.starts_with('.') || plain.starts_with('\'');
    return beginsWithMark ? "\\&" + plain : plain;
}

std::string DescriptionOf(const OptionText& option) {
    std::string text = Plain(option.description);
    if (!option.limits.empty() && option.description.find(option.limits) == std::string::npos) {
        text += " (" + Plain(option.limits) + ")";
    }
    return text + (option.isRequired ? "; required" : "");
}

std::string HeadOf(const OptionText& option) {
    if (option.isPositional) {
        return ".I " + Plain(option.names.front());
    }
    const std::string names = Plain(Joined(option.names, ", "));
    return option.value.empty() ? ".B " + names : ".BI \"" + names + " \" " + Plain(option.value);
}

std::string SectionOf(const CommandText& command) {
    std::string text =
        ".SS horavexctl " + Plain(command.name) + "\n" + Plain(command.description) + ".\n";
    for (const OptionText& option : command.options) {
        text += ".TP\n" + HeadOf(option) + "\n" + DescriptionOf(option) + "\n";
    }
    return text;
}

}  // namespace

std::string ManualPage(const std::vector<CommandText>& commands) {
    std::string page = ".TH HORAVEXCTL 1 \"\" \"Horavex " + std::string(HORAVEX_VERSION) + "\"\n";
    page += kFirstSections;
    for (const CommandText& command : commands) {
        page += SectionOf(command);
    }
    return page + kLastSections;
}

}  // namespace horavex
