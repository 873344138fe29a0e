#include "host/hxahost/program/options.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <string_view>
#include <system_error>

#include <fmt/core.h>
#include <CLI/CLI.hpp>

#include "host/hxahost/program/command_texts.h"
#include "host/hxahost/program/completion.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/program/help_layout.h"
#include "host/hxahost/program/manual_page.h"
#include "host/hxahost/program/option_values.h"
#include "host/hxahost/program/unexpected_arguments.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/system/machine_name.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// The typed options of every command; they are interpreted after parsing.
struct TypedOptions {
  QueryOptions read;
  std::string repeat = "1";
  std::string osType = "none";
  std::string machineName;
  std::string localTime;
  bool noProgress = false;
  std::string healthFormat = "text";
  std::string statusFormat = "text";
  std::vector<std::string> limits;
  std::string runSeconds;
  std::string collectionSeconds;
  std::string outputMebibytes;
  std::string waitSeconds;
  bool waitsNot = false;
  bool asksOnce = false;
  bool asksAgain = false;
  std::string expectedControllers;
  std::string expectedDisks;
  bool healthRules = false;
  std::string width;
  std::string inputLimit = "256";
  DiffOptions diff;
  FleetCommandOptions fleet;
  std::vector<std::string> fleetPaths;
  std::string staleDays;
  BundleOptions bundle;
  std::vector<std::string> bundleItems;
  std::string mask;  // "true" if it was given without a value
  bool masksAll = false;
  std::string schemaFormat = CommandLine().schemaFormat;
  bool withSuperclasses = false;  // of the schema
  std::vector<std::string> helpOf;
  std::vector<std::string> object;
};

std::string FormatNames(std::string_view command) {
  std::string names;
  const std::span<const Format> formats = FormatsOf(command);
  for (const Format& format : formats) {
    const bool isLast = &format == &formats.back();
    names += (names.empty() ? "" : isLast ? " or " : ", ") + std::string(format.name);
  }
  return names;
}

// "-f,--format", with the formats of the command.
void AddFormat(CLI::App& command, std::string& format, const std::string& purposes = "") {
  command.add_option("-f,--format", format, FormatNames(command.get_name()) + purposes)
      ->type_name("FORMAT")
      ->capture_default_str();
}

void CheckSuperclasses(bool isGiven, const std::string& format) {
  if (!isGiven || format == "mof") return;
  throw ProgramError(ExitStatus::kWrongArguments, "--superclasses is about MOF: give --format mof, or leave it out.");
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

// "-" is standard output, and so is its file, which would be replaced otherwise: an empty path.
CLI::Option* AddOutputPath(CLI::App& command, const std::string& name, const std::string& type,
                           std::filesystem::path& path, const std::string& description) {
  const auto read = [&path](const std::string& text) {
    std::error_code notThere;
    path = PathFromUtf8(text);
    if (path == kStandardStream || std::filesystem::equivalent(path, "/dev/stdout", notThere)) path.clear();
  };
  return command.add_option_function<std::string>(name, read, description)->type_name(type);
}

void AddOutput(CLI::App& command, std::filesystem::path& path) {
  AddOutputPath(
      command, "-o,--output", "FILE", path,
      "Write to this file; it is replaced only when the output is complete (default, and -: standard output)");
}

// The limits for the utilities.
void AddRunLimits(CLI::App& command, TypedOptions& typed) {
  command
      .add_option("--limit", typed.runSeconds,
                  "Limit for one run of a tool (default: 300). After a run reached it, nothing more is asked about "
                  "this controller; after a second one, nothing more of this tool")
      ->type_name("SECONDS");
  command.add_option("--deadline", typed.collectionSeconds, "Limit for all runs together (default: none)")
      ->type_name("SECONDS");
  command
      .add_option("--output-limit", typed.outputMebibytes, "Limit for the output of all runs together (default: 512)")
      ->type_name("MIB");
  command.add_flag(
      "--ask-once", typed.asksOnce,
      "Run each command of a tool once and answer repeated ones from memory (default of status and health)");
  command.add_flag(
      "--ask-again", typed.asksAgain,
      "Run a command as often as the plug-in asks, as the diagnostics host does (default of query and explain)");
}

// The wait for another program: two never collect at once.
void AddWaiting(CLI::App& command, TypedOptions& typed) {
  command
      .add_option(
          "--wait", typed.waitSeconds,
          "Limit for the wait until another program that collects has ended (default: 240). After it, nothing is "
          "collected, and the exit status is 5, of health 3")
      ->type_name("SECONDS");
  command.add_flag("--no-wait", typed.waitsNot, "Do not wait for another program that collects");
}

void AddLocalTime(CLI::App& command, TypedOptions& typed) {
  command
      .add_option(
          "--local-time", typed.localTime,
          "Use this time, as yyyymmddhhmmss.mmmmmmsutc with the offset from UTC in minutes (default: the clock)")
      ->type_name("CIMDATETIME");
}

void AddInputLimit(CLI::App& command, TypedOptions& typed) {
  command
      .add_option("--input-limit", typed.inputLimit,
                  "Refuse to read larger files, 1 to 65536 MiB; this includes the RAID manager's log")
      ->type_name("MIB")
      ->capture_default_str();
}

// The options of every command that collects.
void AddCollecting(CLI::App& command, TypedOptions& typed) {
  CollectionOptions& read = typed.read.collection;
  AddPath(command, "--plugin", "FILE", read.plugin, "Load this plug-in (default: zenx.pi beside this program)");
  AddPath(command, "--directory", "DIR", read.directory,
          "The folder that contains the folder zenx with the tools (default: the working directory)");
  AddOutput(command, typed.read.output);
  AddPath(command, "--log", "FILE", read.log,
          "Write the log of the plug-in to this file: one line per entry, its level first");
  AddPath(command, "--record", "BUNDLE", read.record,
          "Write everything that the collection receives to this bundle, for --replay (query: - is standard output)");
  command.add_flag(
      "--mask", typed.mask,
      "Mask the machine's name, serial numbers and given names in that bundle; --mask=all also FRU part numbers");
  AddPath(command, "--replay", "BUNDLE", read.replay,
          "Run no tool and take all answers from this bundle (-: standard input)");
  AddInputLimit(command, typed);
  AddRunLimits(command, typed);
  AddWaiting(command, typed);
  command
      .add_option("--os-type", typed.osType,
                  "CIM \"OSType\" that is passed to the plug-in, 0 to 65535; 82 makes it leave out hrconf_64")
      ->type_name("N|none")
      ->capture_default_str();
  command.add_option("--machine-name", typed.machineName, "Use this name of the machine (default: its own)")
      ->type_name("NAME");
  AddLocalTime(command, typed);
  command.add_flag("--no-progress", typed.noProgress, "Do not show the running command on a terminal");
}

// The layout of text for a terminal.
void AddLayout(CLI::App& command, TypedOptions& typed) {
  command
      .add_option("--width", typed.width, "Columns of the output, 40 to 1000 (default: those of the terminal, or 100)")
      ->type_name("N");
  command.add_flag("--ascii", typed.read.isAscii, "Write only ASCII (default on terminals that show only ASCII)");
}

void AddColour(CLI::App& command, TypedOptions& typed) {
  command.add_option("--color", typed.read.color, "Show states in colour; auto: on a terminal, if NO_COLOR is not set")
      ->type_name("auto|always|never")
      ->capture_default_str();
}

void AddLimits(CLI::App& command, TypedOptions& typed) {
  command
      .add_option("--warn", typed.limits,
                  "Warn from this value on; may be repeated. NAME: " + LimitNames() + "; N: a number or \"off\"")
      ->type_name("NAME=N")
      ->allow_extra_args(false);
}

void AddExpectations(CLI::App& command, TypedOptions& typed) {
  Expectations& expected = typed.read.expectations;
  command
      .add_option("--expect", expected.tools,
                  "These utilities must be installed, or the health is unknown: " + ToolNames() +
                      "; separated by commas; may be repeated")
      ->type_name("TOOL")
      ->delimiter(',')
      ->allow_extra_args(false);
  command.add_option("--expect-controllers", typed.expectedControllers, "Fewer controllers than this are critical")
      ->type_name("N");
  command.add_option("--expect-disks", typed.expectedDisks, "Fewer disks than this are critical")->type_name("N");
  AddPath(command, "--baseline", "FILE", typed.read.baseline,
          "Compare with this JSON result or bundle: a controller, logical drive or disk that is missing now is "
          "critical; a new or moved one and more errors are information");
}

void AddStatus(CLI::App& status, TypedOptions& typed) {
  AddFormat(status, typed.statusFormat, ": text is one screen, json is for programs");
  AddLimits(status, typed);
  AddExpectations(status, typed);
  AddLayout(status, typed);
  AddColour(status, typed);
  AddCollecting(status, typed);
}

void AddHealth(CLI::App& health, TypedOptions& typed) {
  AddFormat(health, typed.healthFormat,
            ": text is for people, nagios for Nagios and compatible programs, json for programs, prometheus for the "
            "textfile collector of the node exporter");
  health.add_flag("-v,--verbose", typed.read.isVerbose, "Show the findings of each incident");
  AddPath(health, "--save-baseline", "FILE", typed.read.saveBaseline,
          "Write a JSON result for later use with --baseline; nothing is written if a utility did not answer");
  health.add_flag("--rules", typed.healthRules, "Show the rules for findings, and exit");
  AddLimits(health, typed);
  AddExpectations(health, typed);
  AddLayout(health, typed);
  AddColour(health, typed);
  AddCollecting(health, typed);
}

void AddExplain(CLI::App& explain, TypedOptions& typed) {
  explain
      .add_option("WHAT", typed.object,
                  "A controller (C4), a logical drive (C4 LD3), an array (C4 array A), a disk (C4 slot 8), or the "
                  "name, serial number or DeviceID of one")
      ->required();
  AddLayout(explain, typed);
  AddCollecting(explain, typed);
}

void AddQuery(CLI::App& query, TypedOptions& typed) {
  QueryOptions& read = typed.read;
  query
      .add_option("--class", read.classes,
                  "Query only these classes, in this order: names with or without KVRSG_ and zx, or controllers, "
                  "drives, groups, disks, events, versions; separated by commas. For associations, name the classes "
                  "that they link first (default: all)")
      ->type_name("NAME")
      ->delimiter(',')
      ->allow_extra_args(false);
  query.add_option("--repeat", typed.repeat, "Query so many times in one process; only the first query runs the tools")
      ->type_name("N")
      ->capture_default_str();
  AddFormat(query, read.format,
            ": table is for people, json for programs, jsonl has one instance per line, csv is for spreadsheets, html "
            "is a report for browsers, cim-xml and mof are for CIM repositories");
  query.add_flag("--runs", read.showRuns, "Add every run of a tool and its outcome to the JSON");
  query.add_flag("--unread", read.showUnread,
                 "List the lines of the tools' texts whose values no property shows; needs all classes");
  query.add_flag("--all", read.showAll, "Add versions, statistics and numbers of instances to the tables");
  query.add_flag("-v,--verbose", read.isVerbose,
                 "Keep the short forms of states in the tables, as in \"Critical (CRT)\"");
  AddLimits(query, typed);
  AddExpectations(query, typed);
  query.add_flag(
      "--superclasses", read.withSuperclasses,
      "Declare the classes in the MOF, derived from those of the DMTF's schema, for repositories that contain it");
  AddLayout(query, typed);
  AddColour(query, typed);
  AddCollecting(query, typed);
}

void AddDiff(CLI::App& diff, TypedOptions& typed) {
  DiffOptions& read = typed.diff;
  diff.add_option("OLD", read.oldFile, "The older result of \"hxahost query --format json\", or a bundle")->required();
  diff.add_option("NEW", read.newFile, "The newer one")->required();
  AddFormat(diff, read.format);
  diff.add_flag("-v,--verbose", read.isVerbose,
                "Show every change with the path of its object, and each changed link, version and raw text");
  AddInputLimit(diff, typed);
}

void AddFleet(CLI::App& fleet, TypedOptions& typed) {
  fleet
      .add_option("PATH", typed.fleetPaths,
                  "Results (JSON, JSON lines), bundles, and folders with files *.json, *.jsonl and *.bundle")
      ->required();
  AddFormat(fleet, typed.fleet.shown.format,
            ": table is for people, json for programs, jsonl for databases (one object per line), csv for "
            "spreadsheets, html for browsers, prometheus for the textfile collector of the node exporter");
  fleet.add_option("--stale", typed.staleDays, "List machines whose newest result is older")->type_name("DAYS");
  fleet.add_flag("--all", typed.read.showAll, "List all machines in the tables, also those with nothing wrong");
  AddOutput(fleet, typed.read.output);
  AddPath(fleet, "--pages", "DIR", typed.fleet.pages,
          "With --format html, write the report of each machine to this folder and link to it");
  AddLocalTime(fleet, typed);
  AddInputLimit(fleet, typed);
  fleet.add_flag("--no-progress", typed.noProgress, "Do not show the current file on a terminal");
  AddLimits(fleet, typed);
  AddLayout(fleet, typed);
  AddColour(fleet, typed);
}

void AddBundle(CLI::App& bundle, TypedOptions& typed) {
  bundle.require_subcommand(1);
  BundleOptions& read = typed.bundle;
  CLI::App* const list = bundle.add_subcommand("list", "List the commands and the log");
  AddPath(*list, "FILE", "TEXT", read.file, "The bundle")->required();
  CLI::App* const show = bundle.add_subcommand("show", "Show outputs, or the values before the commands");
  AddPath(*show, "FILE", "TEXT", read.file, "The bundle")->required();
  show->add_option("ITEM", typed.bundleItems, "Numbers of bundle list (default: the values before the commands)");
  show->add_flag("--raw", read.isRaw, "Write the bytes of the items unchanged");
  AddOutput(*show, read.output);
  CLI::App* const mask = bundle.add_subcommand("mask", "Mask names and serial numbers in a copy");
  AddPath(*mask, "IN", "TEXT", read.file, "The bundle")->required();
  AddOutputPath(*mask, "OUT", "TEXT", read.output, "The masked copy (-: standard output)")->required();
  mask->add_flag("--all", typed.masksAll, "Mask FRU part numbers, too");
  for (CLI::App* const command : {list, show, mask}) AddInputLimit(*command, typed);
}

void AddNothing(CLI::App&, TypedOptions&) {}

void AddSchema(CLI::App& schema, TypedOptions& typed) {
  AddFormat(schema, typed.schemaFormat, ": mof is for CIM repositories, markdown for people");
  schema.add_flag("--superclasses", typed.withSuperclasses,
                  "In MOF, derive the classes from those of the DMTF's schema, for repositories that contain it");
}

void AddHelp(CLI::App& help, TypedOptions& typed) {
  help.add_option("COMMAND", typed.helpOf, "The command, or command and subcommand (default: the program)");
}

void RejectEmptyValues(const CLI::App& query) {
  for (const CLI::Option* const option : query.get_options()) {
    if (option->get_type_size() > 0 && std::ranges::count(option->results(), std::string()) > 0) {
      Reject(option->get_name(), "", "give a value, or leave the option out.");
    }
  }
}

void CheckBundles(const std::string& command, const CollectionOptions& options) {
  if (options.record == kStandardStream && command != "query") {
    throw ProgramError(
        ExitStatus::kWrongArguments,
        "--record - writes the bundle in the place of tables: give it to hxahost query, or name a file.");
  }
  if (options.mask && options.record.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--mask hides what is in a bundle: name one with --record, or leave it out.");
  }
  if (!options.replay.empty() && !options.directory.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--directory is where tools are run, and --replay runs none: leave one of them out.");
  }
}

// Standard output has the result.
void CheckIsNoStream(const std::string& option, const std::filesystem::path& path) {
  if (path == kStandardStream) Reject(option, std::string(kStandardStream), "name a file.");
}

constexpr unsigned kMostSeconds = 86400;

std::chrono::seconds ReadWait(const TypedOptions& typed) {
  if (typed.waitsNot && !typed.waitSeconds.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments, "--wait and --no-wait: leave one of them out.");
  }
  if (typed.waitsNot) return std::chrono::seconds(0);
  const auto seconds = ReadNumber("--wait", typed.waitSeconds, kMostSeconds);
  return seconds ? std::chrono::seconds(*seconds) : kUsualWait;
}

RunLimits ReadRunLimits(const TypedOptions& typed) {
  constexpr unsigned kMostMebibytes = 1U << 20U;
  if (typed.asksOnce && typed.asksAgain) {
    throw ProgramError(ExitStatus::kWrongArguments, "--ask-once and --ask-again: leave one of them out.");
  }
  RunLimits limits;
  limits.runSeconds = ReadNumber("--limit", typed.runSeconds, kMostSeconds);
  limits.collectionSeconds = ReadNumber("--deadline", typed.collectionSeconds, kMostSeconds);
  if (const auto most = ReadNumber("--output-limit", typed.outputMebibytes, kMostMebibytes)) {
    limits.outputBytes = *most * kMebibyte;
  }
  limits.asksOnce = typed.asksOnce;
  return limits;
}

// Options that commands with and without a collection share.
QueryOptions ReadShown(const CLI::App& command, const TypedOptions& typed) {
  RejectEmptyValues(command);
  QueryOptions options = typed.read;
  if (!typed.localTime.empty()) options.collection.localTime = ReadLocalTime(typed.localTime);
  options.collection.showProgress = !typed.noProgress;
  options.limits = ReadLimits(typed.limits);
  if (!typed.width.empty()) options.width = ReadWidth(typed.width);
  CheckColor(options.color);
  return options;
}

std::string ReadMachineName(const std::string& name) {
  if (name.size() <= kLongestMachineName) return name;
  throw ProgramError(ExitStatus::kWrongArguments,
                     fmt::format("--machine-name has {} bytes: give at most {}.", name.size(), kLongestMachineName));
}

QueryOptions ReadCollecting(const CLI::App& query, const TypedOptions& typed) {
  QueryOptions options = ReadShown(query, typed);
  options.repeat = ReadRepeat(typed.repeat);
  CollectionOptions& collection = options.collection;
  collection.osType = ReadOsType(typed.osType);
  collection.hasOsType = query.get_option("--os-type")->count() > 0;
  if (!typed.machineName.empty()) collection.machineName = ReadMachineName(typed.machineName);
  collection.mask = ReadMask(typed.mask);
  collection.inputLimit = ReadInputLimit(typed.inputLimit);
  collection.limits = ReadRunLimits(typed);
  collection.longestWait = ReadWait(typed);
  options.expectations.controllers = ReadNumber("--expect-controllers", typed.expectedControllers);
  options.expectations.disks = ReadNumber("--expect-disks", typed.expectedDisks);
  CheckTools(options.expectations.tools);
  CheckBundles(query.get_name(), collection);
  CheckIsNoStream("--log", collection.log);
  CheckIsNoStream("--save-baseline", options.saveBaseline);
  return options;
}

CommandLine ReadDiff(const CLI::App& diff, const TypedOptions& typed) {
  RejectEmptyValues(diff);
  CheckFormat("diff", typed.diff.format);
  CommandLine line{Command::kDiff, "", {}, typed.diff};
  line.diff.inputLimit = ReadInputLimit(typed.inputLimit);
  return line;
}

CommandLine ReadFleetCommand(const CLI::App& fleet, const TypedOptions& typed) {
  CommandLine line{Command::kFleet, "", {}};
  line.fleet = typed.fleet;
  line.fleet.shown = ReadShown(fleet, typed);
  line.fleet.shown.format = typed.fleet.shown.format;
  line.fleet.shown.collection.inputLimit = ReadInputLimit(typed.inputLimit);
  CheckFormat("fleet", line.fleet.shown.format);
  if (!line.fleet.pages.empty() && line.fleet.shown.format != "html") {
    throw ProgramError(ExitStatus::kWrongArguments,
                       "--pages is for what --format html links to: give that, or leave it out.");
  }
  for (const std::string& path : typed.fleetPaths) line.fleet.paths.push_back(PathFromUtf8(path));
  if (!typed.staleDays.empty()) {
    line.fleet.staleDays = WholeNumber(typed.staleDays);
    if (!line.fleet.staleDays) Reject("--stale", typed.staleDays, "give a number of days.");
  }
  return line;
}

// "hxahost bundle ...": the subcommand decides.
CommandLine ReadBundle(const CLI::App& bundle, const TypedOptions& typed) {
  const CLI::App& given = *bundle.get_subcommands().front();
  RejectEmptyValues(given);
  CommandLine line;
  line.bundle = typed.bundle;
  line.bundle.inputLimit = ReadInputLimit(typed.inputLimit);
  line.bundle.mask = typed.masksAll ? MaskScope::kAll : MaskScope::kNames;
  for (const std::string& item : typed.bundleItems) {
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
  CheckSuperclasses(line.query.withSuperclasses, line.query.format);
  if (line.query.showUnread && !line.query.classes.empty()) {
    throw ProgramError(
        ExitStatus::kWrongArguments,
        "--unread needs every class: leave --class out, or what was not asked for would count as unread.");
  }
  return line;
}

CommandLine ReadStatus(const CLI::App& status, const TypedOptions& typed) {
  CommandLine line{Command::kStatus, "", ReadCollecting(status, typed)};
  line.query.collection.limits.asksOnce = !typed.asksAgain;
  line.query.format = typed.statusFormat;
  CheckFormat("status", line.query.format);
  return line;
}

CommandLine ReadHealth(const CLI::App& health, const TypedOptions& typed) {
  CommandLine line{typed.healthRules ? Command::kHealthRules : Command::kHealth, "", ReadCollecting(health, typed)};
  line.query.collection.limits.asksOnce = !typed.asksAgain;
  line.query.format = typed.healthFormat;
  CheckFormat("health", line.query.format);
  return line;
}

// The name of the object may consist of several words.
CommandLine ReadExplain(const CLI::App& explain, const TypedOptions& typed) {
  CommandLine line{Command::kExplain, "", ReadCollecting(explain, typed)};
  for (const std::string& word : typed.object) line.object += (line.object.empty() ? "" : " ") + word;
  return line;
}

CommandLine ReadClasses(const CLI::App&, const TypedOptions&) { return {Command::kClasses, "", {}}; }

CommandLine ReadSchema(const CLI::App&, const TypedOptions& typed) {
  CheckFormat("schema", typed.schemaFormat);
  CheckSuperclasses(typed.withSuperclasses, typed.schemaFormat);
  CommandLine line{Command::kSchema, "", {}};
  line.schemaFormat = typed.schemaFormat;
  line.withSuperclasses = typed.withSuperclasses;
  return line;
}

// "hxahost help query" is "hxahost query --help".
CommandLine ReadHelp(const CLI::App&, const TypedOptions& typed) {
  std::vector<std::string> arguments = typed.helpOf;
  arguments.emplace_back("--help");
  return ParseCommandLine(arguments);
}

struct CommandRow {
  const char* name;
  void (*add)(CLI::App& command, TypedOptions& typed);  // its options
  CommandLine (*read)(const CLI::App& command, const TypedOptions& typed);
};

// For the completion of shells, with the words so far, and for the manual page; people do not need them.
constexpr std::string_view kCompleteCommand = "complete";
constexpr std::string_view kManualCommand = "manual";

// Help, advice on mistyped words and completion are made from this table.
constexpr CommandRow kCommands[] = {
    {"status",  AddStatus,  ReadStatus      },
    {"query",   AddQuery,   ReadQuery       },
    {"health",  AddHealth,  ReadHealth      },
    {"explain", AddExplain, ReadExplain     },
    {"diff",    AddDiff,    ReadDiff        },
    {"fleet",   AddFleet,   ReadFleetCommand},
    {"bundle",  AddBundle,  ReadBundle      },
    {"classes", AddNothing, ReadClasses     },
    {"schema",  AddSchema,  ReadSchema      },
    {"help",    AddHelp,    ReadHelp        },
};

void AddCommands(CLI::App& program, TypedOptions& typed) {
  program.set_help_flag("-h,--help", "Show this help and exit");
  program.allow_windows_style_options(false);  // the same command line on every system
  program.set_version_flag("-V,--version", "hxahost " ZENX_VERSION, "Show the version and exit");
  program.require_subcommand(1);
  program.formatter(std::make_shared<HelpLayout>());
  program.footer(HelpFooter(CommandTextOf("")));
  for (const CommandRow& row : kCommands) {
    const CommandText& text = CommandTextOf(row.name);
    CLI::App* const command = program.add_subcommand(row.name, std::string(text.description));
    command->footer(HelpFooter(text));  // its subcommands inherit it
    row.add(*command, typed);
  }
}

// Without a command, "status" is run; the first argument is then one of its options.
std::vector<std::string> WithCommand(std::vector<std::string> arguments) {
  constexpr std::string_view kOfProgram[] = {"--help", "-h", "--version", "-V"};
  const bool hasNone = arguments.empty() ||
                       (arguments.front().starts_with('-') && std::ranges::count(kOfProgram, arguments.front()) == 0);
  if (hasNone) arguments.insert(arguments.begin(), "status");
  return arguments;
}

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& typed) {
  const std::vector<std::string> arguments = WithCommand(typed);
  CLI::App program(std::string(CommandTextOf("").description), "hxahost");
  TypedOptions options;
  AddCommands(program, options);
  if (arguments.front() == kCompleteCommand) {
    return {Command::kShowText, Completions(program, {arguments.begin() + 1, arguments.end()}), {}};
  }
  if (arguments.front() == kManualCommand) return {Command::kShowText, ManualPage(program), {}};
  try {
    program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForVersion& version) {
    return {Command::kShowText, std::string(version.what()) + "\n", {}};
  } catch (const CLI::CallForHelp&) {
    RejectUnexpected(program, arguments);
    return {Command::kShowText, program.help(), {}};
  } catch (const CLI::ParseError& error) {
    RejectUnexpected(program, arguments);
    throw ProgramError(ExitStatus::kWrongArguments,
                       Printable(error.what()) + ": see " + GivenCommand(program) + " --help.");
  }
  const CLI::App& command = *program.get_subcommands().front();
  return std::ranges::find(kCommands, command.get_name(), &CommandRow::name)->read(command, options);
}

}  // namespace hxahost
