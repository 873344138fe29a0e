#include "host/hxahost/program/command_texts.h"

#include <algorithm>
#include <stdexcept>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/program/help_layout.h"
#include "host/hxahost/terminal/wrap.h"

namespace hxahost {

namespace {

constexpr Example kProgram[] = {
    {"hxahost",                                          "what is wrong and what to do, on one screen"},
    {"hxahost query",                                    "all instances of the machine"               },
    {"hxahost query --format html --output report.html", "the same as an HTML report"                 },
    {"hxahost health",                                   "for monitoring, with an exit status"        },
    {"hxahost help query",                               "the options of a command"                   },
};

constexpr Example kStatus[] = {
    {"hxahost status",                        "the same as hxahost without a command"},
    {"hxahost status --directory C:\\tools",  "with the tools in C:\\tools\\zenx"    },
    {"hxahost status --width 80",             "for a mail"                           },
    {"hxahost status --warn soft-errors=100", "warn only from 100 soft errors on"    },
};

constexpr Example kQuery[] = {
    {"hxahost query",                                     "run the tools in ./zenx"                },
    {"hxahost query --directory C:\\tools",               "run the tools in C:\\tools\\zenx"       },
    {"hxahost query --class drives,disks",                "only the logical drives and the disks"  },
    {"hxahost query --format json --output machine.json", "everything, for a program"              },
    {"hxahost query --format csv --class disks",          "the disks, for a spreadsheet"           },
    {"hxahost query --format html --output report.html",  "everything, for a browser and for paper"},
    {"hxahost query --log log.txt",                       "with a log of every command"            },
    {"hxahost query --record machine.bundle --mask",      "everything without names, for support"  },
    {"hxahost query --replay machine.bundle",             "the same result on any machine"         },
};

constexpr Example kHealth[] = {
    {"hxahost health",                                            "what is wrong and what to do"         },
    {"hxahost health --directory C:\\tools",                      "with the tools in C:\\tools\\zenx"    },
    {"hxahost health --verbose",                                  "with the findings of each incident"   },
    {"hxahost health --format nagios",                            "for Nagios and compatible programs"   },
    {"hxahost health --format prometheus --output DIR/zenx.prom", "for the node exporter's text files"   },
    {"hxahost health --rules",                                    "what each word of the utilities means"},
};

constexpr Example kExplain[] = {
    {"hxahost explain C4 slot 8",  "the disk in slot 8 of controller 4"},
    {"hxahost explain Database",   "the logical drive with this name"  },
    {"hxahost explain NV3LE77Q2H", "the disk with this serial number"  },
};

constexpr Example kDiff[] = {
    {"hxahost diff monday.json friday.json",               "the differences, worst first"},
    {"hxahost diff --format json monday.json friday.json", "for a program"               },
};

constexpr Example kFleet[] = {
    {"hxahost fleet results",                                         "the machines of a folder, worst first"  },
    {"hxahost fleet --stale 7 results",                               "also machines silent for a week"        },
    {"hxahost fleet --format html -o fleet.html --pages DIR results", "an HTML page, and each machine's report"},
    {"hxahost fleet --format jsonl results",                          "objects for a database, one per line"   },
    {"hxahost fleet --format prometheus -o DIR/fleet.prom results",   "for the node exporter's text files"     },
};

constexpr Example kBundle[] = {
    {"hxahost query --record machine.bundle",            "collect, and keep all answers"          },
    {"hxahost query --replay machine.bundle",            "the same result on any machine"         },
    {"hxahost bundle list machine.bundle",               "the commands in it"                     },
    {"hxahost bundle show machine.bundle 3",             "the output of the third command"        },
    {"hxahost bundle mask machine.bundle shared.bundle", "a copy without names and serial numbers"},
};

constexpr Example kClasses[] = {
    {"hxahost classes", "the names for hxahost query --class NAME"},
};

constexpr Example kSchema[] = {
    {"hxahost schema > classes.mof",                "for a CIM server"                            },
    {"hxahost schema --superclasses > classes.mof", "for one that contains the schema of the DMTF"},
    {"hxahost schema --format markdown",            "for people"                                  },
};

constexpr Example kHelp[] = {
    {"hxahost help",             "all commands"               },
    {"hxahost help query",       "the options of a command"   },
    {"hxahost help bundle show", "the options of a subcommand"},
};

constexpr CommandText kTexts[] = {
    {"",        "Tells which RAID disk to replace, and shows the tool output that proves it", kProgram,
     "0 done, 1 the query failed, 2 wrong arguments, 3 the plug-in could not be loaded, 4 nothing was found, "
     "5 another program collects."                                                                        },
    {"status",  "Show on one screen what is wrong and what to do",                            kStatus,
     "0 shown, whatever is wrong (for an exit status use hxahost health), 1 the collection failed, 2 wrong arguments, "
     "3 the plug-in could not be loaded, 4 no controller was found, 5 another program collects."          },
    {"query",   "Run the controller utilities and show all instances",                        kQuery,
     "0 done, 1 the query failed, 2 wrong arguments, 3 the plug-in could not be loaded, 4 no controller was found, "
     "5 another program collects."                                                                        },
    {"health",  "Show what is wrong, worst first, and what to do",                            kHealth,
     "0 nothing is wrong, 1 warning, 2 critical, 3 unknown. The worst finding decides: critical over warning over "
     "unknown. Every failure of the command itself is 3, too."                                            },
    {"explain", "Show the tool output that each value comes from",                            kExplain,
     "0 done, 1 the query failed, 2 wrong arguments, or no object or several objects match, 3 the plug-in could not be "
     "loaded, 5 another program collects."                                                                },
    {"diff",    "Show the differences between two results",                                   kDiff,
     "0 nothing differs except times of collection, 1 something differs, 2 the comparison failed."        },
    {"fleet",   "Show the results of many machines together",                                 kFleet,
     "0 done, whatever is wrong with machines or files, 1 the output could not be written, 2 wrong arguments, 4 no "
     "machine was found."                                                                                 },
    {"bundle",  "List, show and mask bundles of query --record",                              kBundle,  ""},
    {"classes", "List the classes that the plug-in publishes",                                kClasses, ""},
    {"schema",  "Show these classes with their properties",                                   kSchema,  ""},
    {"help",    "Show the help of the program or of a command",                               kHelp,    ""},
};

}  // namespace

const CommandText& CommandTextOf(std::string_view name) {
  const auto* const text = std::ranges::find(kTexts, name, &CommandText::name);
  if (text == std::end(kTexts)) throw std::out_of_range("no command has this name");
  return *text;
}

std::string HelpFooter(const CommandText& text) {
  constexpr std::size_t kWidestColumn = 38;
  std::size_t column = 0;
  for (const Example& example : text.examples) {
    if (example.command.size() <= kWidestColumn) column = std::max(column, example.command.size());
  }
  std::string footer = "Examples:";
  for (const Example& example : text.examples) {
    const bool isWide = example.command.size() > kWidestColumn;
    footer += isWide ? fmt::format("\n  {}\n  {:{}}  {}", example.command, "", column, example.purpose)
                     : fmt::format("\n  {:{}}  {}", example.command, column, example.purpose);
  }
  if (text.exitStatus.empty()) return footer;
  const auto lines = WrapWords(fmt::format("Exit status: {}", text.exitStatus), kHelpWidth);
  return fmt::format("{}\n\n{}", footer, fmt::join(lines, "\n"));
}

}  // namespace hxahost
