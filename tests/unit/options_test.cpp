#include "host/hxahost/program/options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/ascii.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// The command line with its words between blanks.
CommandLine Parse(const std::string& words) {
  std::istringstream text(words);
  return ParseCommandLine({std::istream_iterator<std::string>(text), {}});
}

QueryOptions Query(const std::string& words) {
  const CommandLine commandLine = Parse("query " + words);
  EXPECT_EQ(commandLine.command, Command::kQuery);
  return commandLine.query;
}

TEST(Options, HaveDefaultsForEverything) {
  const QueryOptions options = Query("");
  EXPECT_EQ(options.collection.plugin, "");
  EXPECT_EQ(options.collection.directory, "");
  EXPECT_THAT(options.classes, IsEmpty());
  EXPECT_EQ(options.repeat, 1U);
  EXPECT_EQ(options.format, "table");
  EXPECT_EQ(options.output, "");
  EXPECT_EQ(options.collection.log, "");
  EXPECT_FALSE(options.collection.osType);
  EXPECT_FALSE(options.collection.machineName);
  EXPECT_FALSE(options.collection.localTime);
  EXPECT_TRUE(options.collection.showProgress);
}

TEST(Options, TakeTheNarrowestAndTheWidestTables) {
  EXPECT_EQ(Query("--width 40").width, 40U);
  EXPECT_EQ(Query("--width 1000").width, 1000U);
}

TEST(Options, TakeEveryOptionOfAQuery) {
  const QueryOptions options = Query(
      "--plugin p.pi --directory=dir --class B --class A --class B --repeat 3 --format json --output o.json "
      "--log l.txt --os-type 65535 --machine-name K\xc3\xa4se --local-time 20260305123015.250000+060 "
      "--no-progress");
  EXPECT_EQ(options.collection.plugin, "p.pi");
  EXPECT_EQ(options.collection.directory, "dir");
  EXPECT_EQ(ParseCommandLine({"query", "--log=a b"}).query.collection.log, "a b");
  EXPECT_THAT(options.classes, ElementsAre("B", "A", "B"));
  EXPECT_EQ(options.repeat, 3U);
  EXPECT_EQ(options.format, "json");
  EXPECT_EQ(options.output, "o.json");
  EXPECT_EQ(options.collection.log, "l.txt");
  EXPECT_EQ(options.collection.osType, 65535);
  EXPECT_EQ(options.collection.machineName, "K\xc3\xa4se");
  ASSERT_TRUE(options.collection.localTime);
  EXPECT_EQ(options.collection.localTime->ToString(), "20260305123015.250000+060");
  EXPECT_FALSE(options.collection.showProgress);
}

TEST(Options, TakeBundlesToRecordAndToReplay) {
  const QueryOptions both = Query("--record new --mask --replay old");
  EXPECT_EQ(both.collection.record, "new");
  EXPECT_EQ(both.collection.mask, MaskScope::kNames);
  EXPECT_EQ(Query("--record new --mask=all").collection.mask, MaskScope::kAll);
  EXPECT_EQ(Query("--record new").collection.mask, std::nullopt);
  EXPECT_EQ(both.collection.replay, "old");
  EXPECT_FALSE(both.collection.hasOsType);
  EXPECT_TRUE(Query("--os-type none").collection.hasOsType);
  EXPECT_EQ(Parse("health --replay old").query.collection.replay, "old");
}

TEST(Options, SelectTheOperationOnABundle) {
  const CommandLine list = Parse("bundle list f");
  EXPECT_EQ(list.command, Command::kBundleList);
  EXPECT_EQ(list.bundle.file, "f");
  const CommandLine show = Parse("bundle show f 3 1 --raw --output o");
  EXPECT_EQ(show.command, Command::kBundleShow);
  EXPECT_THAT(show.bundle.items, ElementsAre(3U, 1U));
  EXPECT_TRUE(show.bundle.isRaw);
  EXPECT_EQ(show.bundle.output, "o");
  EXPECT_THAT(Parse("bundle show f").bundle.items, IsEmpty());
  const CommandLine mask = Parse("bundle mask f g");
  EXPECT_EQ(mask.command, Command::kBundleMask);
  EXPECT_EQ(mask.bundle.file, "f");
  EXPECT_EQ(mask.bundle.output, "g");
  EXPECT_EQ(mask.bundle.mask, MaskScope::kNames);
  EXPECT_EQ(Parse("bundle mask f -").bundle.output, "") << "standard output";
  EXPECT_EQ(Parse("bundle mask f g --all").bundle.mask, MaskScope::kAll);
}

TEST(Options, TakeZeroAndNoneAsTypesOfTheOperatingSystem) {
  EXPECT_EQ(Query("--os-type 0").collection.osType, 0);
  EXPECT_EQ(Query("--os-type none").collection.osType, std::nullopt);
}

TEST(Options, TakeEveryOptionOfHealth) {
  const CommandLine line = Parse(
      "health --plugin p.pi --directory d --format prometheus --output o.prom --log l.txt --os-type 82 --machine-name "
      "M --local-time 20260305123015.250000+060 --no-progress");
  EXPECT_EQ(line.command, Command::kHealth);
  EXPECT_EQ(line.query.collection.plugin, "p.pi");
  EXPECT_EQ(line.query.collection.directory, "d");
  EXPECT_EQ(line.query.format, "prometheus");
  EXPECT_EQ(line.query.output, "o.prom");
  EXPECT_EQ(line.query.collection.log, "l.txt");
  EXPECT_EQ(line.query.collection.osType, 82);
  EXPECT_EQ(line.query.collection.machineName, "M");
  EXPECT_TRUE(line.query.collection.localTime);
  EXPECT_FALSE(line.query.collection.showProgress);
}

TEST(Options, SelectTheCommand) {
  EXPECT_EQ(Parse("health --rules").command, Command::kHealthRules);
  EXPECT_EQ(Parse("classes").command, Command::kClasses);
  EXPECT_EQ(Parse("schema").command, Command::kSchema);
}

TEST(Options, TakeTheFormatOfTheSchema) {
  EXPECT_EQ(Parse("schema --format markdown").schemaFormat, "markdown");
  EXPECT_THROW(Parse("schema --format json"), ProgramError);
  EXPECT_THROW(ParseCommandLine({"schema", "--format", ""}), ProgramError);
}

TEST(Options, TakeSuperclassesOnlyWithMof) {
  EXPECT_FALSE(Parse("schema").withSuperclasses);
  EXPECT_TRUE(Parse("schema --superclasses").withSuperclasses);
  EXPECT_TRUE(Parse("query --format mof --superclasses").query.withSuperclasses);
  EXPECT_THROW(Parse("schema --format markdown --superclasses"), ProgramError);
  EXPECT_THROW(Parse("query --format cim-xml --superclasses"), ProgramError);
}

TEST(Options, ShowHelpWithDefaultsAndExamples) {
  for (const std::vector<std::string>& arguments : {
           std::vector<std::string>{"--help" },
           { "query", "--help"}
  }) {
    const CommandLine help = ParseCommandLine(arguments);
    EXPECT_EQ(help.command, Command::kShowText);
    EXPECT_THAT(help.text, HasSubstr("Examples:"));
    EXPECT_THAT(help.text, HasSubstr("Exit status:"));
  }
  const std::string help = Parse("query --help").text;
  for (const char* const said :
       {"--repeat N", "(default: 1)", "--format FORMAT", "--os-type N|none", "--no-progress"}) {
    EXPECT_THAT(help, HasSubstr(said));
  }
}

TEST(Options, ShowExamplesOfEachCommandInItsOwnHelp) {
  for (const std::string command : {"status", "query", "health", "diff", "classes", "schema"}) {
    const std::string help = ParseCommandLine({command, "--help"}).text;
    const std::size_t examples = help.find("\nExamples:\n  hxahost " + command);
    EXPECT_NE(examples, std::string::npos) << help;
    const std::string other = command == "query" ? "  hxahost health" : "  hxahost query";
    EXPECT_EQ(help.find(other, examples), std::string::npos) << help;
  }
}

TEST(Options, ShowHelpIn80Columns) {
  const std::string commands = Parse("complete").text;
  std::vector<std::vector<std::string>> helps = {
      {"--help" },
      { "bundle", "list", "--help"},
      { "bundle", "show", "--help"}
  };
  for (const std::string_view word : Split(commands, "\n")) {
    if (!word.empty() && word.front() != '-') helps.push_back({std::string(word), "--help"});
  }
  EXPECT_EQ(helps.size(), 13U) << commands;
  for (const std::vector<std::string>& arguments : helps) {
    const std::string help = ParseCommandLine(arguments).text;
    for (const std::string_view line : Split(help, "\n")) EXPECT_LE(line.size(), 80U) << line;
  }
}

TEST(Options, DescribeEachOptionOnceInTheManualPage) {
  const std::string page = Parse("manual").text;
  for (const std::string item :
       {".Ss bundle show\n", ".It Fl -width Ar N\n", ".It Fl -output Ar FILE , Fl o\n", ".It Fl -record Ar BUNDLE\n",
        ".It Ar WHAT\n", ".It Li hxahost explain C4 slot 8\n", ".It Fl -repeat Ar N\n", ".It Fl -help , Fl h\n"}) {
    const std::size_t place = page.find(item);
    EXPECT_NE(place, page.npos) << item;
    EXPECT_EQ(page.find(item, place + 1), page.npos) << item;
  }
  EXPECT_NE(page.find(".It Li hxahost query \\-\\-directory C:\\etools\n"), page.npos);
}

TEST(Options, ShowTheVersionOfTheBuild) {
  const CommandLine version = Parse("--version");
  EXPECT_EQ(version.command, Command::kShowText);
  EXPECT_THAT(version.text, testing::StartsWith("hxahost "));
  EXPECT_EQ(version.text.find_first_not_of("0123456789.", 8), version.text.size() - 1) << version.text;
  EXPECT_EQ(std::ranges::count(version.text, '.'), 2) << version.text;
  EXPECT_TRUE(version.text.ends_with("\n"));
}

TEST(Options, TakeSeveralClassesWithCommas) {
  EXPECT_THAT(Query("--class B,A --class C").classes, ElementsAre("B", "A", "C"));
}

TEST(Options, TakeADashForStandardOutput) {
  EXPECT_EQ(Query("--output -").output, "");
  EXPECT_EQ(Query("-o -").output, "");
  EXPECT_EQ(Parse("bundle show f 1 -o -").bundle.output, "");
}

TEST(Options, TakeShortFormsOfTheCommonOnes) {
  const QueryOptions options = Query("-f json -o o.json");
  EXPECT_EQ(options.format, "json");
  EXPECT_EQ(options.output, "o.json");
  EXPECT_EQ(Parse("bundle show f 1 -o o").bundle.output, "o");
  EXPECT_EQ(Parse("-V").text, Parse("--version").text);
}

TEST(Options, ShowTheSameHelpByTheCommandForIt) {
  EXPECT_EQ(Parse("help").text, Parse("--help").text);
  EXPECT_EQ(Parse("help query").text, Parse("query --help").text);
  EXPECT_EQ(Parse("help bundle show").text, Parse("bundle show --help").text);
}

TEST(Options, AreCompletedAsTheCommandsHaveThem) {
  struct Case {
    const char* words;
    const char* lines;  // among them
  };
  const Case cases[] = {
      {"",                           "query\nhealth\n"                 },
      {"",                           "\n--version\n"                   },
      {"query",                      "\n--format\n"                    },
      {"query --output query --log", ""                                },
      {"query --output f",           "\n--color\n"                     },
      {"query --color",              "auto\nalways\nnever\n"           },
      {"health --format =",          "text\nnagios\njson\nprometheus\n"},
      {"schema -f",                  "mof\nmarkdown\n"                 },
      {"query --os-type",            "none\n"                          },
      {"query --class",              "\nversions\nKVRSG_zxManager"     },
      {"bundle",                     "list\nshow\nmask\n"              },
      {"help bundle",                "list\nshow\nmask\n"              },
      {"bundle mask in",             "--all\n"                         },
  };
  for (const Case& each : cases) {
    const std::string text = Parse("complete " + std::string(each.words)).text;
    EXPECT_THAT(text, HasSubstr(each.lines)) << each.words;
    if (*each.lines == '\0') {
      EXPECT_EQ(text, "") << each.words;
    }
  }
}

TEST(Options, RejectWrongOnesInOneLineWithAdvice) {
  struct Case {
    const char* name;
    std::vector<std::string> arguments;
    const char* says;
  };
  const Case cases[] = {
      {"unknown command",           {"collect"},                                            "see hxahost --help"      },
      {"two commands",              {"query", "classes"},                                   "classes"                 },
      {"unknown option",            {"query", "--bogus"},                                   "--bogus"                 },
      {"mistyped command",          {"qurey", "--format", "json"},                          "did you mean query?"     },
      {"mistyped inner command",    {"bundle", "shwo", "f"},                                "did you mean show?"      },
      {"mistyped option",
       {"query", "--fromat", "json"},
       "--fromat is no option of hxahost query: did you mean --format?"                                               },
      {"its value after a sign",    {"health", "--fromat=json"},                            "did you mean --format?"  },
      {"help of no command",        {"help", "qurey"},                                      "did you mean query?"     },
      {"short option",              {"query", "-x"},                                        "-x is no option"         },
      {"stray word",                {"query", "word"},                                      "word"                    },
      {"option without its value",  {"query", "--output"},                                  "--output"                },
      {"second value",              {"query", "--class", "A", "B"},                         "B"                       },
      {"option given twice",        {"query", "--repeat", "1", "--repeat", "2"},            "--repeat"                },
      {"value of a flag",           {"query", "--no-progress=maybe"},                       "--no-progress"           },
      {"option of another command", {"classes", "--repeat", "2"},                           "--repeat"                },
      {"short form",                {"query", "--rep", "2"},                                "--rep"                   },
      {"Windows form",              {"query", "/repeat", "2"},                              "/repeat"                 },
      {"input limit zero",          {"query", "--input-limit", "0"},                        "from 1 to 65536"         },
      {"input limit with a unit",   {"diff", "a", "b", "--input-limit", "5M"},              "from 1 to 65536"         },
      {"bundle in place of status", {"status", "--record", "-"},                            "give it to hxahost query"},
      {"repeat zero",               {"query", "--repeat", "0"},                             "from 1 on"               },
      {"machine's name too long",   {"query", "--machine-name", std::string(1001, 'M')},    "1001 bytes"              },
      {"repeat less",               {"query", "--repeat=-1"},                               "from 1 on"               },
      {"repeat word",               {"query", "--repeat", "twice"},                         "from 1 on"               },
      {"repeat half",               {"query", "--repeat", "1.5"},                           "from 1 on"               },
      {"repeat blank",              {"query", "--repeat", " 1"},                            "from 1 on"               },
      {"repeat too often",          {"query", "--repeat", "4294967296"},                    "from 1 on"               },
      {"format unknown",            {"query", "--format", "xml"},                           "give table, json"        },
      {"format in capitals",        {"query", "--format", "JSON"},                          "give table, json"        },
      {"OS type too high",          {"query", "--os-type", "65536"},                        "0 to 65535, or none"     },
      {"OS type less",              {"query", "--os-type=-1"},                              "0 to 65535, or none"     },
      {"OS type word",              {"query", "--os-type", "windows"},                      "0 to 65535, or none"     },
      {"time of no form",           {"query", "--local-time", "12:30"},                     "yyyymmddhhmmss"          },
      {"time of no calendar",       {"query", "--local-time", "20260230123015.250000+060"}, "yyyymmddhhmmss"          },
      {"empty plug-in",             {"query", "--plugin", ""},                              "--plugin"                },
      {"empty directory",           {"query", "--directory", ""},                           "--directory"             },
      {"empty output",              {"query", "--output", ""},                              "--output"                },
      {"empty log",                 {"query", "--log", ""},                                 "--log"                   },
      {"empty class",               {"query", "--class", ""},                               "--class"                 },
      {"empty format",              {"query", "--format", ""},                              "--format"                },
      {"empty machine name",        {"query", "--machine-name", ""},                        "--machine-name"          },
      {"empty time",                {"query", "--local-time", ""},                          "--local-time"            },
      {"mask without a bundle",     {"query", "--mask"},                                    "--record"                },
      {"log on a stream",           {"query", "--log", "-"},                                "--log"                   },
      {"baseline on a stream",      {"health", "--save-baseline", "-"},                     "--save-baseline"         },
      {"mask of some",              {"query", "--record", "f", "--mask=some"},              "--mask=all"              },
      {"replay and directory",      {"query", "--replay", "f", "--directory", "d"},         "leave one of them"       },
      {"empty bundle",              {"query", "--record", ""},                              "--record"                },
      {"bundle alone",              {"bundle"},                                             "hxahost bundle"          },
      {"bundle without a file",     {"bundle", "list"},                                     "hxahost bundle list"     },
      {"bundle with an empty name", {"bundle", "list", ""},                                 "FILE"                    },
      {"item zero",                 {"bundle", "show", "f", "0"},                           "bundle list"             },
      {"item word",                 {"bundle", "show", "f", "first"},                       "bundle list"             },
      {"raw without an item",       {"bundle", "show", "f", "--raw"},                       "needs an ITEM"           },
      {"mask without a place",      {"bundle", "mask", "f"},                                "hxahost bundle"          },
      {"terminal command",          {"query", "--\x1b[2J"},                                 "\\x1b[2J"                },
      {"two lines",                 {"query", "--format", "a\nb"},                          "a\\nb"                   },
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    try {
      ParseCommandLine(each.arguments);
      ADD_FAILURE() << "was taken";
    } catch (const ProgramError& error) {
      EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
      EXPECT_THAT(error.what(), HasSubstr(each.says));
      EXPECT_THAT(error.what(), Not(HasSubstr("\n")));
    }
  }
}

TEST(Options, AskOnceForHealthAndStatusAndAsOftenAsThePluginForTheRest) {
  const auto asksOnce = [](const std::string& arguments) { return Parse(arguments).query.collection.limits.asksOnce; };
  EXPECT_TRUE(asksOnce("status"));
  EXPECT_TRUE(asksOnce("health"));
  EXPECT_FALSE(asksOnce("query"));
  EXPECT_FALSE(asksOnce("explain C1"));
  EXPECT_FALSE(asksOnce("health --ask-again"));
  EXPECT_TRUE(asksOnce("query --ask-once"));
}

TEST(Options, LimitTheRunsOfUtilities) {
  const RunLimits plain = Parse("health").query.collection.limits;
  EXPECT_EQ(plain.runSeconds, std::nullopt);
  EXPECT_EQ(plain.collectionSeconds, std::nullopt);
  EXPECT_EQ(plain.outputBytes, 512 * kMebibyte);
  const RunLimits limits = Parse("query --limit 60 --deadline 900 --output-limit 8").query.collection.limits;
  EXPECT_EQ(limits.runSeconds, 60U);
  EXPECT_EQ(limits.collectionSeconds, 900U);
  EXPECT_EQ(limits.outputBytes, 8 * kMebibyte);
}

TEST(Options, LimitTheWaitForAnotherCollection) {
  EXPECT_EQ(Parse("query").query.collection.longestWait, std::chrono::seconds(240));
  EXPECT_EQ(Parse("health --wait 30").query.collection.longestWait, std::chrono::seconds(30));
  EXPECT_EQ(Parse("status --no-wait").query.collection.longestWait, std::chrono::seconds(0));
}

TEST(Options, SetTheExpectationsForAMachine) {
  const QueryOptions options =
      Parse(
          "health --expect arcconf,qcmdrun --expect hrconf_64 --expect-controllers 5 --expect-disks 30 "
          "--baseline old.json --save-baseline new.json")
          .query;
  EXPECT_THAT(options.expectations.tools, ElementsAre("arcconf", "qcmdrun", "hrconf_64"));
  EXPECT_EQ(options.expectations.controllers, 5U);
  EXPECT_EQ(options.expectations.disks, 30U);
  EXPECT_EQ(options.baseline, "old.json");
  EXPECT_EQ(options.saveBaseline, "new.json");
}

}  // namespace
