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

// What "hxahost query" is asked for. Texts are UTF-8; an empty path was not given.
struct QueryOptions {
  CollectionOptions collection;
  std::vector<std::string> classes;  // in the order given; none: every class that the plug-in publishes
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
  Expectations expectations;           // its baseline is read from the next
  std::filesystem::path baseline;      // an earlier result or bundle to compare with
  std::filesystem::path saveBaseline;  // where the result goes that later ones are compared with
};

// What "hxahost bundle" is asked for.
struct BundleOptions {
  std::filesystem::path file;
  std::vector<std::size_t> items;  // to be shown, counted from 1; none: the part before them
  bool isRaw = false;
  std::filesystem::path output;  // where the items, or the masked bundle, go
  MaskScope mask = MaskScope::kNames;
  std::uint64_t inputLimit = kLargestInput;  // in bytes
};

// What "hxahost diff" is asked for: two results that were written before.
struct DiffOptions {
  std::string oldFile;
  std::string newFile;
  std::string format = "text";
  bool isVerbose = false;
  std::uint64_t inputLimit = kLargestInput;  // in bytes
};

// What "hxahost fleet" is asked for.
struct FleetCommandOptions {
  std::vector<std::filesystem::path> paths;  // results, bundles and folders of them
  std::optional<unsigned> staleDays;
  std::filesystem::path pages;  // the folder that the reports of the machines go to
  QueryOptions shown;           // how
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
  QueryOptions query;  // "hxahost health" takes those of a query that it has a use for
  DiffOptions diff = {};
  BundleOptions bundle = {};
  FleetCommandOptions fleet = {};
  std::string schemaFormat = "mof";
  std::string object = {};        // that "hxahost explain" is asked for
  bool withSuperclasses = false;  // of the schema
};

// Reads the arguments that follow the program's name. Throws ProgramError for wrong ones.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace hxahost
