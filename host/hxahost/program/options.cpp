#include "host/hxahost/program/options.h"

#include <algorithm>
#include <string_view>

#include <CLI/CLI.hpp>

#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/option_examples.h"
#include "host/hxahost/program/option_values.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// Options as they were typed; their meaning is read when all of them are there.
struct TypedOptions {
  QueryOptions read;
  std::string repeat = "1";
  std::string osType = "none";
  std::string machineName;
  std::string localTime;
  bool noProgress = false;
  std::string healthFormat = "text";
  bool healthRules = false;
  std::string width;
};

std::string FormatNames(std::string_view command) {
  std::string names;
  for (const Format& format : FormatsOf(command)) names += (names.empty() ? "" : " or ") + std::string(format.name);
  return names;
}

void CheckFormat(std::string_view command, const std::string& format) {
  if (FindFormat(command, format) == nullptr) Reject("--format", format, "give " + FormatNames(command) + ".");
}

// Paths are UTF-8 on every system.
CLI::Option* AddPath(CLI::App& command, const std::string& name, const std::string& type, std::filesystem::path& path,
                     const std::string& description) {
  const auto read = [&path](const std::string& text) { path = PathFromUtf8(text); };
  return command.add_option_function<std::string>(name, read, description)->type_name(type);
}

// What every command that collects is told.
void AddCollecting(CLI::App& command, TypedOptions& typed) {
  CollectionOptions& read = typed.read.collection;
  AddPath(command, "--plugin", "FILE", read.plugin, "The plug-in to load (default: zenx.pi beside this program)");
  AddPath(command, "--directory", "DIR", read.directory, "Where the folder zenx with the tools is (default: here)");
  AddPath(command, "--output", "FILE", typed.read.output,
          "Where to write (default: standard output); complete or not at all");
  AddPath(command, "--log", "FILE", read.log, "Write the log there: one line for an entry, its level first");
  AddPath(command, "--record", "BUNDLE", read.record,
          "Keep all that the collection was told in a bundle, to be replayed");
  command.add_flag("--mask", read.isMasked, "Hide machine name, serial numbers and given names in that bundle");
  AddPath(command, "--replay", "BUNDLE", read.replay, "Run no tool: take everything from a bundle");
  command
      .add_option("--os-type", typed.osType,
                  "CIM \"OSType\" that the plug-in is told, 0 to 65535; 82 makes it leave out one tool")
      ->type_name("N|none")
      ->capture_default_str();
  command.add_option("--machine-name", typed.machineName, "What the machine is called (default: its own name)")
      ->type_name("NAME");
  command.add_option("--local-time", typed.localTime, "CIM date and time to use (default: the clock)")
      ->type_name("CIMDATETIME");
  command.add_flag("--no-progress", typed.noProgress, "Do not show on a terminal which command is running");
}

CLI::App* AddHealth(CLI::App& program, TypedOptions& typed) {
  CLI::App* const health = program.add_subcommand("health", "Say what is wrong with the controllers and their drives");
  health
      ->add_option("--format", typed.healthFormat,
                   FormatNames("health") + ": lines for people, JSON for programs, metrics")
      ->type_name("FORMAT")
      ->capture_default_str();
  health->add_flag("--rules", typed.healthRules, "Show the rules that findings are made by, and end");
  AddCollecting(*health, typed);
  health->footer(kHealthExamples);
  return health;
}

CLI::App* AddQuery(CLI::App& program, TypedOptions& typed) {
  CLI::App* const query = program.add_subcommand("query", "Run the controller utilities and show what they say");
  QueryOptions& read = typed.read;
  query->add_option("--class", read.classes, "A class to ask for; may be given again, the order counts (default: all)")
      ->type_name("NAME")
      ->allow_extra_args(false);
  query->add_option("--repeat", typed.repeat, "How often to query; the tools are run by the first query alone")
      ->type_name("N")
      ->capture_default_str();
  query
      ->add_option("--format", read.format,
                   FormatNames("query") +
                       ": tables for a terminal, JSON for programs, a page for browsers, "
                       "instances for CIM repositories")
      ->type_name("FORMAT")
      ->capture_default_str();
  query->add_flag("--runs", read.showRuns, "Put every run of a tool into the JSON, with what came of it");
  query->add_flag("--unread", read.showUnread, "List the lines of the tools' texts whose values nothing shows");
  query->add_option("--width", typed.width, "Columns of the tables, 40 to 1000 (default: the terminal's; else 100)")
      ->type_name("N");
  query->add_flag("--ascii", read.isAscii, "Tables in ASCII alone (default where the terminal shows nothing else)");
  query->add_option("--color", read.color, "State words in colour; never where NO_COLOR is set")
      ->type_name("auto|always|never")
      ->capture_default_str();
  AddCollecting(*query, typed);
  query->footer(kExamples);
  return query;
}

CLI::App* AddDiff(CLI::App& program, DiffOptions& read) {
  CLI::App* const diff = program.add_subcommand("diff", "Show what is different between two JSON results");
  diff->add_option("OLD", read.oldFile, "What \"hxahost query --format json --output OLD\" wrote first, or a bundle")
      ->required();
  diff->add_option("NEW", read.newFile, "What it wrote later")->required();
  diff->add_option("--format", read.format, FormatNames("diff"))->type_name("FORMAT")->capture_default_str();
  diff->footer(kDiffExamples);
  return diff;
}

struct TypedBundle {
  BundleOptions read;
  std::vector<std::string> items;
};

CLI::App* AddBundle(CLI::App& program, TypedBundle& typed) {
  CLI::App* const bundle = program.add_subcommand("bundle", "Look into what \"hxahost query --record\" wrote");
  bundle->require_subcommand(1);
  bundle->footer(kBundleExamples);
  BundleOptions& read = typed.read;
  CLI::App* const list = bundle->add_subcommand("list", "One line for each command, and for the log");
  AddPath(*list, "FILE", "TEXT", read.file, "The bundle")->required();
  CLI::App* const show = bundle->add_subcommand("show", "What a command printed, or what holds for all of them");
  AddPath(*show, "FILE", "TEXT", read.file, "The bundle")->required();
  show->add_option("ITEM", typed.items, "Numbers of the list (default: what stands before the items)");
  show->add_flag("--raw", read.isRaw, "The bytes themselves, for a file or another program");
  AddPath(*show, "--output", "FILE", read.output, "Where to write (default: standard output)");
  CLI::App* const mask = bundle->add_subcommand("mask", "Hide machine name, serial numbers and given names");
  AddPath(*mask, "IN", "TEXT", read.file, "The bundle")->required();
  AddPath(*mask, "OUT", "TEXT", read.output, "The masked one")->required();
  return bundle;
}

void RejectEmptyValues(const CLI::App& query) {
  for (const CLI::Option* const option : query.get_options()) {
    if (option->get_type_size() > 0 && std::ranges::count(option->results(), std::string()) > 0) {
      Reject(option->get_name(), "", "give a value, or leave the option out.");
    }
  }
}

void CheckBundles(const CollectionOptions& options) {
  if (options.isMasked && options.record.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--mask hides what is in a bundle: name one with --record, or leave it out.");
  }
  if (!options.replay.empty() && !options.directory.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--directory is where tools are run, and --replay runs none: leave one of them out.");
  }
}

QueryOptions ReadCollecting(const CLI::App& query, const TypedOptions& typed) {
  RejectEmptyValues(query);
  QueryOptions options = typed.read;
  options.repeat = ReadRepeat(typed.repeat);
  CollectionOptions& collection = options.collection;
  collection.osType = ReadOsType(typed.osType);
  collection.hasOsType = query.get_option("--os-type")->count() > 0;
  if (!typed.machineName.empty()) collection.machineName = typed.machineName;
  if (!typed.localTime.empty()) collection.localTime = ReadLocalTime(typed.localTime);
  collection.showProgress = !typed.noProgress;
  if (!typed.width.empty()) options.width = ReadWidth(typed.width);
  CheckColor(options.color);
  CheckBundles(collection);
  return options;
}

DiffOptions ReadDiff(const CLI::App& diff, const DiffOptions& read) {
  RejectEmptyValues(diff);
  CheckFormat("diff", read.format);
  return read;
}

// "hxahost bundle ...": the subcommand that was given decides.
CommandLine ReadBundleCommand(const CLI::App& bundle, const TypedBundle& typed) {
  const CLI::App& given = *bundle.get_subcommands().front();
  RejectEmptyValues(given);
  CommandLine line;
  line.bundle = typed.read;
  for (const std::string& item : typed.items) {
    const auto number = WholeNumber(item);
    if (!number || *number == 0) Reject("ITEM", item, "give a number that \"hxahost bundle list\" shows.");
    line.bundle.items.push_back(*number);
  }
  if (line.bundle.isRaw && line.bundle.items.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments, "--raw needs an ITEM: the bytes of which item are wanted?");
  }
  line.command = given.get_name() == "list"   ? Command::kBundleList
                 : given.get_name() == "show" ? Command::kBundleShow
                                              : Command::kBundleMask;
  return line;
}

CommandLine ReadQuery(const CLI::App& query, const TypedOptions& typed) {
  CommandLine line{Command::kQuery, "", ReadCollecting(query, typed)};
  CheckFormat("query", line.query.format);
  if (line.query.showUnread && !line.query.classes.empty()) {
    throw ProgramError(
        ExitStatus::kWrongArguments,
        "--unread needs every class: leave --class out, or what was not asked for would count as unread.");
  }
  return line;
}

CommandLine ReadHealth(const CLI::App& health, const TypedOptions& typed) {
  CommandLine line{typed.healthRules ? Command::kHealthRules : Command::kHealth, "", ReadCollecting(health, typed)};
  line.query.format = typed.healthFormat;
  CheckFormat("health", line.query.format);
  return line;
}

// The help that says what the command takes: a command's own, where one was given.
std::string HelpOf(const CLI::App& program) {
  const auto given = program.get_subcommands();
  return "hxahost " + (given.empty() ? "" : given.front()->get_name() + " ") + "--help";
}

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
  CLI::App program("hxahost - loads the collector plug-in, queries it and shows what it publishes", "hxahost");
  program.allow_windows_style_options(false);  // the same command line on every system
  program.set_version_flag("--version", "hxahost " ZENX_VERSION, "Show the version");
  program.require_subcommand(1);
  program.footer(kExamples);
  TypedOptions typed;
  const CLI::App* const query = AddQuery(program, typed);
  const CLI::App* const health = AddHealth(program, typed);
  CLI::App* const classes = program.add_subcommand("classes", "List the classes that the plug-in publishes");
  classes->footer(kClassesExamples);
  std::string schemaFormat = CommandLine().schemaFormat;
  CLI::App* const schema = program.add_subcommand("schema", "Show these classes with their properties");
  schema->footer(kSchemaExamples);
  schema->add_option("--format", schemaFormat, FormatNames("schema") + ": to be compiled, or to be read")
      ->type_name("FORMAT")
      ->capture_default_str();
  DiffOptions typedDiff;
  const CLI::App* const diff = AddDiff(program, typedDiff);
  TypedBundle typedBundle;
  const CLI::App* const bundle = AddBundle(program, typedBundle);
  try {
    program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    return {Command::kShowText, program.help(), {}};
  } catch (const CLI::CallForVersion& version) {
    return {Command::kShowText, std::string(version.what()) + "\n", {}};
  } catch (const CLI::ParseError& error) {
    throw ProgramError(ExitStatus::kWrongArguments, Printable(error.what()) + ": see " + HelpOf(program) + ".");
  }
  if (query->parsed()) return ReadQuery(*query, typed);
  if (health->parsed()) return ReadHealth(*health, typed);
  if (diff->parsed()) return {Command::kDiff, "", {}, ReadDiff(*diff, typedDiff)};
  if (bundle->parsed()) return ReadBundleCommand(*bundle, typedBundle);
  if (classes->parsed()) return {Command::kClasses, "", {}};
  CheckFormat("schema", schemaFormat);
  CommandLine line{Command::kSchema, "", {}};
  line.schemaFormat = schemaFormat;
  return line;
}

}  // namespace hxahost
