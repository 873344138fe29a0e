#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/collection/collection_options.h"
#include "host/hxahost/result/expectations.h"
#include "host/hxahost/result/limits.h"

namespace hxahost {

// The options of "hxahost query". Texts are UTF-8; an empty path was not given.
struct QueryOptions {
  CollectionOptions collection;
  std::vector<std::string> classes;  // in the order given; empty: every class that the plug-in publishes
  unsigned repeat = 1;
  std::string format = "table";
  std::filesystem::path output;
  bool showRuns = false;
  bool showUnread = false;
  bool withSuperclasses = false;
  bool showAll = false;
  bool isVerbose = false;
  std::optional<unsigned> width;  // of the tables
  bool isAscii = false;
  std::string color = "auto";
  Limits limits;
  Expectations expectations;           // its baseline is read from the next field
  std::filesystem::path baseline;      // an earlier result or bundle to compare with
  std::filesystem::path saveBaseline;  // the file for the result, a baseline for later runs
};

// The options of "hxahost bundle".
struct BundleOptions {
  std::filesystem::path file;
  std::vector<std::size_t> items;  // to be shown, counted from 1; none: the part before them
  bool isRaw = false;
  std::filesystem::path output;  // for the items, or the masked bundle
  MaskScope mask = MaskScope::kNames;
  std::uint64_t inputLimit = kLargestInput;  // in bytes
};

// The options of "hxahost diff": two results that were written before.
struct DiffOptions {
  std::string oldFile;
  std::string newFile;
  std::string format = "text";
  bool isVerbose = false;
  std::uint64_t inputLimit = kLargestInput;  // in bytes
};

// The options of "hxahost fleet".
struct FleetCommandOptions {
  std::vector<std::filesystem::path> paths;  // results, bundles and folders of them
  std::optional<unsigned> staleDays;
  std::filesystem::path pages;  // the folder for the reports of the machines
  QueryOptions shown;           // layout and output
};

enum class Command {
  kShowText,
  kStatus,
  kQuery,
  kHealth,
  kHealthRules,
  kExplain,
  kDiff,
  kFleet,
  kClasses,
  kSchema,
  kBundleList,
  kBundleShow,
  kBundleMask
};

struct CommandLine {
  Command command = Command::kShowText;
  std::string text;    // to be shown: the help or the version
  QueryOptions query;  // "hxahost health" uses some of them
  DiffOptions diff = {};
  BundleOptions bundle = {};
  FleetCommandOptions fleet = {};
  std::string schemaFormat = "mof";
  std::string object = {};        // the argument of "hxahost explain"
  bool withSuperclasses = false;  // of the schema
};

// Reads the arguments that follow the program's name. Throws ProgramError for wrong ones.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace hxahost
