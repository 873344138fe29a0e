#include "host/hxahost/program/manual_page.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "host/hxahost/program/command_texts.h"
#include "host/hxahost/terminal/wrap.h"

namespace hxahost {

namespace {

constexpr std::size_t kSourceWidth = 78;  // columns

constexpr std::string_view kBegin = R"(.Dd November 22, 2026
.Dt HXAHOST 1
.Os
.Sh NAME
.Nm hxahost
.Nd tell which RAID disk to replace
.Sh SYNOPSIS
)";

constexpr std::string_view kDescription = R"(.Sh DESCRIPTION
.Nm
loads the collector plug-in
.Pa zenx.pi ,
queries it and shows the instances that it publishes.
The plug-in runs the controller utilities
.Pa zenx/qcmdrun.exe ,
.Pa zenx/hrconf_64.exe
and
.Pa zenx/arcconf.exe
in the working directory and reads the RAID manager's event log.
A utility that is missing or fails is not a failure of
.Nm :
the output shows it.
.Pp
One program at a time collects with a folder
.Pa zenx .
.Pp
Without a command,
.Nm
runs
.Cm status .
)";

constexpr std::string_view kEnd = R"(.Sh ENVIRONMENT
.Bl -tag -width Ds
.It Ev COLUMNS
The width of a terminal.
.It Ev NO_COLOR
If set and not empty: no colour except with
.Fl -color Cm always .
.It Ev LC_ALL , LC_CTYPE , LANG
The first that is set tells whether the terminal shows UTF-8.
.It Ev TERM
If not set or
.Ql dumb :
no colour except with
.Fl -color Cm always .
.It Ev ZENX_OS_VERSION
Replaces the version of Windows on other systems, for example
.Ql 6.1 .
Not set: no Windows NT system.
.It Ev ZENX_RAID_LOG_DIR
Replaces the registry value with the folder of the RAID manager's log on other
systems.
Not set: no such value.
.El
.Sh FILES
.Bl -tag -width Ds
.It Pa /usr/lib/zenx
The program, the host's library
.Pa libhxacore.so ,
the plug-in manager
.Pa plugin.nsp
and the plug-in
.Pa zenx.pi .
.It Pa /usr/share/doc/zenx/docs
Documents.
.It Pa /usr/share/zenx/prometheus/zenx.rules.yml
Alert rules for Prometheus.
.It Pa zenx-health.service , zenx-health.timer
Units for systemd that write metrics every five minutes after
.Ql systemctl enable --now zenx-health.timer .
.El
)";

// Text in mdoc: a backslash, a long option and a first character that begins a macro are escaped.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text[place] == '\\') {
      escaped += "\\e";
    } else if (text[place] == '-' && (place == 0 || text[place - 1] == ' ' || text[place - 1] == '-')) {
      escaped += "\\-";
    } else {
      escaped += text[place];
    }
  }
  return escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" + escaped : escaped;
}

// The text as sentences, each on its own line.
std::string Paragraph(std::string_view text) {
  std::string lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(". "), text.size());
    std::string sentence(text.substr(0, end));
    text.remove_prefix(std::min(end + 2, text.size()));
    if (!sentence.ends_with('.')) sentence += '.';
    for (const std::string& line : WrapWords(sentence, kSourceWidth)) lines += Escaped(line) + "\n";
  }
  return lines;
}

struct ManualCommand {
  const CLI::App* app;
  std::string name;  // "bundle list"
};

void AddCommandsOf(const CLI::App& app, const std::string& before, std::vector<ManualCommand>& commands) {
  for (const CLI::App* const each : app.get_subcommands({})) {
    commands.push_back({each, before + each->get_name()});
    AddCommandsOf(*each, before + each->get_name() + " ", commands);
  }
}

std::vector<const CLI::Option*> OptionsOf(const CLI::App& app, bool isPositional) {
  return app.get_options(
      [isPositional](const CLI::Option* option) { return option->get_positional() == isPositional; });
}

bool IsSame(const CLI::Option& left, const CLI::Option& right) {
  return left.get_name() == right.get_name() && left.get_description() == right.get_description();
}

// The names of the commands that have the option.
std::vector<std::string> CommandsWith(const CLI::Option& option, const std::vector<ManualCommand>& commands) {
  std::vector<std::string> names;
  for (const ManualCommand& command : commands) {
    const auto options = OptionsOf(*command.app, false);
    if (std::ranges::any_of(options, [&](const CLI::Option* each) { return IsSame(*each, option); })) {
      names.push_back(command.name);
    }
  }
  return names;
}

// ".It Fl -output Ar FILE , Fl o".
std::string OptionItem(const CLI::Option& option) {
  std::string item = ".It";
  for (const std::string& name : option.get_lnames()) item += " Fl -" + name;
  if (option.get_type_size() != 0 && !option.get_type_name().empty()) item += " Ar " + option.get_type_name();
  for (const std::string& name : option.get_snames()) item += " , Fl " + name;
  const std::string value = option.get_default_str();
  return item + "\n" + Paragraph(option.get_description()) + (value.empty() ? "" : Paragraph("Default: " + value));
}

std::string List(const std::string& items) { return items.empty() ? "" : ".Bl -tag -width Ds\n" + items + ".El\n"; }

std::string Synopsis(const std::vector<ManualCommand>& commands) {
  std::string text;
  for (const ManualCommand& command : commands) {
    if (!command.app->get_subcommands({}).empty()) continue;
    const std::string name = command.name == "status" ? ".Op Cm status\n" : ".Cm " + command.name + "\n";
    text += ".Nm\n" + name + ".Op Ar option ...\n";
    for (const CLI::Option* const each : OptionsOf(*command.app, true)) {
      const std::string several = each->get_expected_max() > 1 ? " ..." : "";
      text += (each->get_required() ? ".Ar " : ".Op Ar ") + each->get_name(true) + several + "\n";
    }
  }
  return text + ".Nm\n.Fl -help | Fl -version\n";
}

std::string CommonOptions(const std::vector<ManualCommand>& commands) {
  std::vector<const CLI::Option*> shown;
  std::string items;
  for (const ManualCommand& command : commands) {
    for (const CLI::Option* const option : OptionsOf(*command.app, false)) {
      const std::vector<std::string> names = CommandsWith(*option, commands);
      const bool isShown = std::ranges::any_of(shown, [&](const CLI::Option* each) { return IsSame(*each, *option); });
      if (names.size() < 2 || isShown) continue;
      shown.push_back(option);
      items += OptionItem(*option);
      if (names.size() < commands.size()) items += Paragraph(fmt::format("Commands: {}", fmt::join(names, ", ")));
    }
  }
  return ".Sh OPTIONS OF SEVERAL COMMANDS\n" + List(items);
}

std::string Section(const ManualCommand& command, const std::vector<ManualCommand>& commands) {
  std::string text = ".Ss " + command.name + "\n" + Paragraph(command.app->get_description());
  std::string items;
  for (const CLI::Option* const option : OptionsOf(*command.app, true)) {
    items += ".It Ar " + option->get_name(true) + "\n" + Paragraph(option->get_description());
  }
  for (const CLI::Option* const option : OptionsOf(*command.app, false)) {
    if (CommandsWith(*option, commands).size() == 1) items += OptionItem(*option);
  }
  return text + List(items);
}

// Subcommands have the exit status and the examples of their command.
bool IsSubcommand(const ManualCommand& command) { return command.name.find(' ') != std::string::npos; }

std::string ExitStatuses(const std::vector<ManualCommand>& commands) {
  std::string items;
  for (const ManualCommand& command : commands) {
    if (IsSubcommand(command)) continue;
    const std::string_view text = CommandTextOf(command.name).exitStatus;
    if (!text.empty()) items += ".It Cm " + command.name + "\n" + Paragraph(text);
  }
  return ".Sh EXIT STATUS\n" + List(items);
}

std::string Examples(const std::vector<ManualCommand>& commands) {
  std::string items;
  for (const ManualCommand& command : commands) {
    if (IsSubcommand(command)) continue;
    for (const Example& example : CommandTextOf(command.name).examples) {
      items += fmt::format(".It Li {}\n{}\n", Escaped(example.command), Escaped(example.purpose));
    }
  }
  return ".Sh EXAMPLES\n" + List(items);
}

}  // namespace

std::string ManualPage(const CLI::App& program) {
  std::vector<ManualCommand> commands;
  AddCommandsOf(program, "", commands);
  std::string page = std::string(kBegin) + Synopsis(commands) + std::string(kDescription) + ".Sh COMMANDS\n";
  for (const ManualCommand& command : commands) page += Section(command, commands);
  return page + CommonOptions(commands) + std::string(kEnd) + ExitStatuses(commands) + Examples(commands);
}

}  // namespace hxahost
