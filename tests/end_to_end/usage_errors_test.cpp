// Wrong arguments, and files that cannot be read or written: for every option of every command one line with advice, an
// exit status that scripts can distinguish, and unchanged files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::HasSubstr;
using testing::StartsWith;
using Texts = std::vector<std::string>;

// Placeholders in the arguments of a case: files and folders that exist or do not.
constexpr const char* kFile = "<file>";             // contains "good"
constexpr const char* kFolder = "<folder>";         // empty
constexpr const char* kMissing = "<missing>";       // in an existing folder
constexpr const char* kNowhere = "<nowhere>";       // in a missing folder
constexpr const char* kUnderFile = "<under file>";  // in a file, as if it were a folder

constexpr const char* kBundle = "<bundle>";  // of the sample machine

struct Case {
  const char* option;  // tested by the case; "" for operands and others
  Texts arguments;
  int exitStatus;
  const char* says;
};

// Too long for the tables.
const Texts kBaselineInOutput = {"health", "--save-baseline", kFile, "--output", kFile};
const Texts kReplayInFolder = {"query", "--replay", kBundle, "--directory", kFolder};
const Texts kUnreadOfOneClass = {"query", "--unread", "--class", "KVRSG_zxDiskDrive"};
const Texts kPagesInOutput = {"fleet", "-f", "html", kFolder, "-o", kFile, "--pages", kFile};

const std::vector<Case> kQueryCases = {
    {"--plugin",             {"query", "--plugin", kMissing},                 3, "--plugin"                        },
    {"--plugin",             {"query", "--plugin", kFolder},                  3, "--plugin"                        },
    {"--plugin",             {"query", "--plugin", kFile},                    3, "--plugin"                        },
    {"--directory",          {"query", "--directory", kMissing},              2, "name the folder"                 },
    {"--directory",          {"query", "--directory", kFile},                 2, "name the folder"                 },
    {"--class",              {"query", "--class", "KVRSG_Nothing"},           2, "\"hxahost classes\" lists"       },
    {"--class",              {"query", "--class", ""},                        2, "give a value"                    },
    {"--warn",               {"query", "--warn", "heat=1"},                   2, "NAME is one of"                  },
    {"--repeat",             {"query", "--repeat", "0"},                      2, "a whole number from 1 on"        },
    {"--format",             {"query", "--format", "yaml"},                   2, "give table, json, jsonl, csv, "  },
    {"--output",             {"query", "--output", kNowhere},                 2, "name a file in a folder"         },
    {"--output",             {"query", "--output", kFolder},                  2, "name a file in a folder"         },
    {"--output",             {"query", "--output", kUnderFile},               2, "name a file in a folder"         },
    {"--log",                {"query", "--log", kFile, "--output", kFile},    2, "are one file"                    },
    {"--log",                {"query", "--log", kNowhere},                    2, "--log"                           },
    {"--log",                {"query", "--log", kFolder},                     2, "--log"                           },
    {"--os-type",            {"query", "--os-type", "65536"},                 2, "a number from 0 to 65535"        },
    {"--machine-name",       {"query", "--machine-name", ""},                 2, "give a value"                    },
    {"--local-time",         {"query", "--local-time", "noon"},               2, "yyyymmddhhmmss.mmmmmmsutc"       },
    {"--width",              {"query", "--width", "39"},                      2, "from 40 to 1000"                 },
    {"--color",              {"query", "--color", "red"},                     2, "auto, always or never"           },
    {"--unread",             kUnreadOfOneClass,                               2, "leave --class out"               },
    {"--superclasses",       {"query", "--superclasses"},                     2, "give --format mof"               },
    {"--runs",               {"query", "--runs=some"},                        2, "hxahost query --help"            },
    {"--ascii",              {"query", "--ascii=some"},                       2, "hxahost query --help"            },
    {"--all",                {"query", "--all=some"},                         2, "hxahost query --help"            },
    {"--verbose",            {"query", "--verbose=some"},                     2, "hxahost query --help"            },
    {"--record",             {"query", "--record", kNowhere},                 2, "--record "                       },
    {"--record",             {"query", "--record", kFolder},                  2, "--record "                       },
    {"--record",             {"query", "--record", kFile, "--output", kFile}, 2, "are one file"                    },
    {"--record",             {"query", "--record", kFile, "--replay", kFile}, 2, "are one file"                    },
    {"--log",                {"query", "--log", kFile, "--replay", kFile},    2, "are one file"                    },
    {"--output",             {"query", "--output", kFile, "--replay", kFile}, 2, "are one file"                    },
    {"--output",             {"query", "--output", kFile, "--plugin", kFile}, 2, "are one file"                    },
    {"--mask",               {"query", "--mask"},                             2, "name one with --record"          },
    {"--replay",             {"query", "--replay", kMissing},                 2, "name a bundle that is there"     },
    {"--replay",             {"query", "--replay", kFolder},                  2, "name a bundle that is there"     },
    {"--replay",             {"query", "--replay", kFile},                    2, "is no bundle of"                 },
    {"--replay",             kReplayInFolder,                                 2, "leave one of them out"           },
    {"--no-progress",        {"query", "--no-progress=some"},                 2, "hxahost query --help"            },
    {"--input-limit",        {"query", "--input-limit", "0"},                 2, "from 1 to 65536"                 },
    {"--record",             {"status", "--record", "-"},                     2, "give it to hxahost query"        },
    {"--limit",              {"query", "--limit", "0"},                       2, "from 1 to 86400"                 },
    {"--deadline",           {"query", "--deadline", "soon"},                 2, "from 1 to 86400"                 },
    {"--output-limit",       {"query", "--output-limit", "9999999"},          2, "from 1 to 1048576"               },
    {"--ask-once",           {"query", "--ask-once", "--ask-again"},          2, "leave one of them out"           },
    {"--wait",               {"query", "--wait", "0"},                        2, "from 1 to 86400"                 },
    {"--no-wait",            {"query", "--no-wait", "--wait", "5"},           2, "leave one of them out"           },
    {"--ask-again",          {"query", "--ask-again=some"},                   2, "hxahost query --help"            },
    {"--expect",             {"query", "--expect", "arconf"},                 2, "give qcmdrun, hrconf_64, arcconf"},
    {"--expect-controllers", {"query", "--expect-controllers", "-1"},         2, "a whole number from 1 on"        },
    {"--expect-disks",       {"query", "--expect-disks", "0"},                2, "a whole number from 1 on"        },
    {"--baseline",           {"query", "--baseline", kMissing},               2, "name a result or a bundle"       },
    {"--baseline",           {"query", "--baseline", kFile},                  2, "is no result of"                 },
};

const std::vector<Case> kHealthCases = {
    {"--plugin",             {"health", "--plugin", kMissing},                   3, "--plugin"                        },
    {"--plugin",             {"health", "--plugin", kFolder},                    3, "--plugin"                        },
    {"--directory",          {"health", "--directory", kMissing},                3, "name the folder"                 },
    {"--directory",          {"health", "--directory", kFile},                   3, "name the folder"                 },
    {"--format",             {"health", "--format", "html"},                     3, "give text, nagios, json or prom" },
    {"--output",             {"health", "--output", kNowhere},                   3, "name a file in a folder"         },
    {"--output",             {"health", "--output", kFolder},                    3, "name a file in a folder"         },
    {"--log",                {"health", "--log", kFolder},                       3, "--log"                           },
    {"--os-type",            {"health", "--os-type", "-1"},                      3, "a number from 0 to 65535"        },
    {"--machine-name",       {"health", "--machine-name", ""},                   3, "give a value"                    },
    {"--local-time",         {"health", "--local-time", "noon"},                 3, "yyyymmddhhmmss.mmmmmmsutc"       },
    {"--warn",               {"health", "--warn", "soft-errors"},                3, "NAME is one of"                  },
    {"--rules",              {"health", "--rules=some"},                         3, "hxahost health --help"           },
    {"--verbose",            {"health", "--verbose=some"},                       3, "hxahost health --help"           },
    {"--width",              {"health", "--width", "39"},                        3, "from 40 to 1000"                 },
    {"--ascii",              {"health", "--ascii=some"},                         3, "hxahost health --help"           },
    {"--color",              {"health", "--color", "red"},                       3, "give auto, always or never"      },
    {"--record",             {"health", "--record", kFolder},                    3, "--record "                       },
    {"--mask",               {"health", "--mask"},                               3, "name one with --record"          },
    {"--replay",             {"health", "--replay", kMissing},                   3, "name a bundle that is there"     },
    {"--replay",             {"health", "--replay", kFile},                      3, "is no bundle of"                 },
    {"--no-progress",        {"health", "--no-progress=some"},                   3, "hxahost health --help"           },
    {"--input-limit",        {"health", "--input-limit", "all"},                 3, "from 1 to 65536"                 },
    {"",                     {"health", "--class", "KVRSG_zxDiskDrive"},         3, "hxahost health --help"           },
    {"--limit",              {"health", "--limit", "0"},                         3, "from 1 to 86400"                 },
    {"--deadline",           {"health", "--deadline", "soon"},                   3, "from 1 to 86400"                 },
    {"--output-limit",       {"health", "--output-limit", "9999999"},            3, "from 1 to 1048576"               },
    {"--ask-once",           {"health", "--ask-once", "--ask-again"},            3, "leave one of them out"           },
    {"--wait",               {"health", "--wait", "long"},                       3, "from 1 to 86400"                 },
    {"--no-wait",            {"health", "--no-wait", "--wait", "5"},             3, "leave one of them out"           },
    {"--ask-again",          {"health", "--ask-again=some"},                     3, "hxahost health --help"           },
    {"--expect",             {"health", "--expect", "arconf"},                   3, "give qcmdrun, hrconf_64, arcconf"},
    {"--expect-controllers", {"health", "--expect-controllers", "-1"},           3, "a whole number from 1 on"        },
    {"--expect-disks",       {"health", "--expect-disks", "0"},                  3, "a whole number from 1 on"        },
    {"--baseline",           {"health", "--baseline", kMissing},                 3, "name a result or a bundle"       },
    {"--baseline",           {"health", "--baseline", kFile},                    3, "is no result of"                 },
    {"--baseline",           {"health", "--baseline", kFile, "--output", kFile}, 3, "are one file"                    },
    {"--save-baseline",      {"health", "--save-baseline", kNowhere},            3, "name a file in a folder"         },
    {"--save-baseline",      kBaselineInOutput,                                  3, "are one file"                    },
};

const std::vector<Case> kOtherCases = {
    {"",              {"status", "--format", "table"},                2, "give text or json"                         },
    {"",              {"collect"},                                    2, "hxahost --help"                            },
    {"",              {"qurey"},                                      2, "did you mean query?"                       },
    {"",              {"classes", "schema"},                          2, "hxahost schema ..."                        },
    {"",              {"--directory", kFolder, "health"},             2, "The command goes first: hxahost health ..."},
    {"",              {"classes", "--format", "json"},                2, "--help"                                    },
    {"",              {"schema", "KVRSG_zxDiskDrive"},                2, "--help"                                    },
    {"",              {"explain", "C1", "-o", kFile, "--log", kFile}, 2, "are one file"                              },
    {"",              {"fleet", kFolder, kFile, "-o", kFile},         2, "are one file"                              },
    {"",              kPagesInOutput,                                 2, "are one file"                              },
    {"",              {"diff", kFile},                                2, "hxahost diff --help"                       },
    {"",              {"diff", kMissing, kFile},                      2, "name a result or a bundle"                 },
    {"",              {"diff", kFile, kMissing},                      2, "is no result of"                           },
    {"",              {"diff", kFolder, kFile},                       2, "name a result or a bundle"                 },
    {"",              {"diff", kFile, kFile},                         2, "is no result of"                           },
    {"--format",      {"diff", "--format", "html", kFile, kFile},     2, "give text or json"                         },
    {"--verbose",     {"diff", "--verbose=some", kFile, kFile},       2, "hxahost diff --help"                       },
    {"--input-limit", {"diff", "--input-limit", "-1", kFile, kFile},  2, "from 1 to 65536"                           },
};

const std::vector<Case> kSchemaCases = {
    {"--format",       {"schema", "--format", "yaml"},                       2, "give mof or "     },
    {"--superclasses", {"schema", "--format", "markdown", "--superclasses"}, 2, "give --format mof"},
};

const std::vector<Case> kBundleCases = {
    {"--input-limit", {"bundle", "show", "--input-limit", "0", kBundle},      2, "from 1 to 65536"            },
    {"--input-limit", {"bundle", "list", "--input-limit", "0", kBundle},      2, "from 1 to 65536"            },
    {"",              {"bundle"},                                             2, "hxahost bundle --help"      },
    {"",              {"bundle", "open", kBundle},                            2, "hxahost bundle --help"      },
    {"",              {"bundle", "list"},                                     2, "hxahost bundle list --help" },
    {"",              {"bundle", "list", kMissing},                           2, "name a bundle that is there"},
    {"",              {"bundle", "list", kFolder},                            2, "name a bundle that is there"},
    {"",              {"bundle", "list", kFile},                              2, "is no bundle of"            },
    {"",              {"bundle", "show", kBundle, "999"},                     2, "999"                        },
    {"",              {"bundle", "show", kBundle, "all"},                     2, "all"                        },
    {"--raw",         {"bundle", "show", kBundle, "1", "--raw=some"},         2, "hxahost bundle show --help" },
    {"--output",      {"bundle", "show", kBundle, "1", "--output", kNowhere}, 2, "name a file in a folder"    },
    {"--output",      {"bundle", "show", kFile, "1", "--output", kFile},      2, "are one file"               },
    {"--output",      {"bundle", "show", kBundle, "1", "--output", kFolder},  2, "name a file in a folder"    },
};

const std::vector<Case> kMaskCases = {
    {"--input-limit", {"bundle", "mask", "--input-limit", "0", kBundle, kFile}, 2, "from 1 to 65536"           },
    {"",              {"bundle", "mask", kBundle},                              2, "hxahost bundle mask --help"},
    {"--all",         {"bundle", "mask", kBundle, kMissing, "--all=serials"},   2, "hxahost bundle mask --help"},
    {"",              {"bundle", "mask", kBundle, kFolder},                     2, "name a file in a folder"   },
    {"",              {"bundle", "mask", kFile, kFile},                         2, "are one file"              },
    {"",              {"bundle", "mask", kFile, kMissing},                      2, "is no bundle of"           },
};

// One file with good contents and one empty folder.
class UsageErrors : public testing::Test {
 protected:
  UsageErrors() {
    folder_.Write("file", "good");
    fs::create_directory(folder_.Path() / "folder");
  }

  Texts Filled(Texts arguments) const {
    const std::pair<const char*, const char*> marks[] = {
        {kFile,      "file"       },
        {kFolder,    "folder"     },
        {kMissing,   "missing"    },
        {kNowhere,   "nowhere/out"},
        {kUnderFile, "file/out"   },
    };
    for (std::string& argument : arguments) {
      if (argument == kBundle) argument = Utf8FromPath(SourceFile("tests/golden/one-controller.bundle"));
      for (const auto& [mark, path] : marks) {
        if (argument == mark) argument = Utf8FromPath(folder_.Path() / path);
      }
    }
    return arguments;
  }

  void ExpectNothingTouched() const {
    EXPECT_EQ(FileText(folder_.Path() / "file"), "good");
    EXPECT_TRUE(fs::is_empty(folder_.Path() / "folder"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 2);
  }

  void Check(const std::vector<Case>& cases) const {
    for (const Case& each : cases) {
      SCOPED_TRACE(testing::PrintToString(each.arguments));
      const ProgramResult result = RunHxahost(Filled(each.arguments));
      EXPECT_EQ(result.exitStatus, each.exitStatus);
      EXPECT_EQ(result.out, "");
      EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
      EXPECT_THAT(result.err, StartsWith("hxahost: "));
      EXPECT_THAT(result.err, HasSubstr(each.says));
      ExpectNothingTouched();
    }
  }

  TemporaryFolder folder_;
};

// "  -o,--output FILE   Where ..."; --help itself takes no value.
std::set<std::string> OptionsOf(Texts command) {
  command.emplace_back("--help");
  std::istringstream help(RunHxahost(command).out);
  std::set<std::string> options;
  for (std::string line; std::getline(help, line);) {
    if (!line.starts_with("  -")) continue;
    const std::size_t begin = line.find("--");
    options.insert(line.substr(begin, line.find_first_of(" =,\r", begin) - begin));
  }
  options.erase("--help");
  return options;
}

TEST_F(UsageErrors, OfAQueryAreOneLineEachAndTouchNoFile) { Check(kQueryCases); }
TEST_F(UsageErrors, OfHealthAreOneLineEachWithTheStatusForUnknown) { Check(kHealthCases); }
TEST_F(UsageErrors, OfTheSchemaAreOneLineEach) { Check(kSchemaCases); }
TEST_F(UsageErrors, OfBundlesAreOneLineEach) {
  Check(kBundleCases);
  Check(kMaskCases);
}
TEST_F(UsageErrors, OfTheOtherCommandsAreOneLineEach) { Check(kOtherCases); }

TEST_F(UsageErrors, AreTestedForEveryOptionThatTheHelpNames) {
  const std::pair<Texts, const std::vector<Case>&> commands[] = {
      {{"query"},          kQueryCases },
      {{"health"},         kHealthCases},
      {{"schema"},         kSchemaCases},
      {{"bundle", "show"}, kBundleCases},
      {{"bundle", "mask"}, kMaskCases  },
      {{"diff"},           kOtherCases },
  };
  for (const auto& [command, cases] : commands) {
    std::set<std::string> tested;
    for (const Case& each : cases) {
      if (*each.option != '\0') tested.insert(each.option);
    }
    EXPECT_EQ(OptionsOf(command), tested) << command.back();
  }
  const std::set<std::string> ofQuery = OptionsOf({"query"});
  EXPECT_TRUE(std::ranges::includes(ofQuery, OptionsOf({"status"}))) << "tested with the query";
  EXPECT_EQ(OptionsOf({"classes"}), std::set<std::string>());
  EXPECT_EQ(OptionsOf({"bundle", "list"}), std::set<std::string>{"--input-limit"}) << "tested with show";
}

TEST_F(UsageErrors, LeaveAGoodResultUnchanged) {
  for (const Texts& arguments : {
           Texts{"query",  "--output", kFile, "--plugin",    kMissing       },
           Texts{"query",  "--output", kFile, "--directory", kMissing       },
           Texts{"query",  "--output", kFile, "--class",     "KVRSG_Nothing"},
           Texts{"query",  "--output", kFile, "--log",       kNowhere       },
           Texts{"health", "--output", kFile, "--plugin",    kMissing       },
           Texts{"health", "--output", kFile, "--format",    "html"         },
  }) {
    EXPECT_NE(RunHxahost(Filled(arguments)).exitStatus, 0);
    ExpectNothingTouched();
  }
}

}  // namespace
