#pragma once

// The end of the help of the program and of each command.

namespace hxahost {

inline constexpr const char* kExamples =
    "Examples:\n"
    "  hxahost                                             what is wrong and what to do, on one screen\n"
    "  hxahost query                                       everything that the tools in ./zenx say\n"
    "  hxahost query --format html --output report.html    the same for a browser and for paper\n"
    "  hxahost health                                      for monitoring, with an exit status\n"
    "  hxahost help query                                  what a command takes\n"
    "\n"
    "Exit status: 0 done, 1 the query failed, 2 wrong arguments, 3 the plug-in could not be loaded,\n"
    "4 nothing was found.";

inline constexpr const char* kQueryExamples =
    "Examples:\n"
    "  hxahost query                                       run the tools in ./zenx, show what they say\n"
    "  hxahost query --directory C:\\tools                  run the tools in C:\\tools\\zenx\n"
    "  hxahost query --class drives,disks                  the logical drives and the disks alone\n"
    "  hxahost query --format json --output machine.json   everything, for a program to read\n"
    "  hxahost query --format csv --class disks            the disks, for a spreadsheet\n"
    "  hxahost query --format html --output report.html    everything, for a browser and for paper\n"
    "  hxahost query --log log.txt                         with a log of every command that was run\n"
    "\n"
    "Exit status: 0 done, 1 the query failed, 2 wrong arguments, 3 the plug-in could not be loaded.";

inline constexpr const char* kStatusExamples =
    "Examples:\n"
    "  hxahost status                          the same as hxahost alone\n"
    "  hxahost status --directory C:\\tools     with the tools in C:\\tools\\zenx\n"
    "  hxahost status --width 80               for a mail\n"
    "  hxahost status --warn soft-errors=100   warn of more errors only\n"
    "\n"
    "Exit status: 0 shown, whatever is wrong (hxahost health tells by its exit status), 1 the collection failed,\n"
    "2 wrong arguments, 3 the plug-in could not be loaded, 4 no controller was found.";

inline constexpr const char* kHealthExamples =
    "Examples:\n"
    "  hxahost health                                                what is wrong, worst first, with what to do\n"
    "  hxahost health --directory C:\\tools                           with the tools in C:\\tools\\zenx\n"
    "  hxahost health --verbose                                      with the findings that this sums up\n"
    "  hxahost health --format nagios                                for Nagios and its relatives\n"
    "  hxahost health --format prometheus --output DIR/zenx.prom     for the node exporter's textfile collector\n"
    "  hxahost health --rules                                        which words mean what\n"
    "\n"
    "Exit status, as monitoring programs want it: 0 nothing is wrong, 1 warning, 2 critical, 3 unknown. The worst\n"
    "finding decides: critical over warning over unknown. What keeps the command from its answer is 3, too.";

inline constexpr const char* kExplainExamples =
    "Examples:\n"
    "  hxahost explain C4 slot 8          the disk in slot 8 of controller 4\n"
    "  hxahost explain Database           the logical drive of that name\n"
    "  hxahost explain NV3LE77Q2H         the disk with that serial number\n"
    "\n"
    "Exit status: 0 done, 1 the query failed, 2 wrong arguments, or not one object alone is called so, 3 the plug-in\n"
    "could not be loaded.";

inline constexpr const char* kDiffExamples =
    "Examples:\n"
    "  hxahost diff monday.json friday.json                 what is worst first\n"
    "  hxahost diff --format json monday.json friday.json   for a program to read\n"
    "\n"
    "Exit status: 0 nothing is different, 1 something is, 2 the comparison failed.";

inline constexpr const char* kFleetExamples =
    "Examples:\n"
    "  hxahost fleet results                                          machines in a folder, the worst first\n"
    "  hxahost fleet --stale 7 results                                also which have not reported for a week\n"
    "  hxahost fleet --format html -o fleet.html --pages DIR results  a page, with the report of each machine\n"
    "  hxahost fleet --format jsonl results                           objects for a database, one a line\n"
    "  hxahost fleet --format prometheus -o DIR/fleet.prom results    for the node exporter's textfile collector\n"
    "\n"
    "Exit status: 0 done, whatever is wrong with the machines or files, 1 the output could not be written, 2 wrong\n"
    "arguments, 4 no machine was found.";

inline constexpr const char* kClassesExamples =
    "Examples:\n"
    "  hxahost classes   what can be asked for with \"hxahost query --class NAME\"";

inline constexpr const char* kSchemaExamples =
    "Examples:\n"
    "  hxahost schema > classes.mof                   for a CIM server\n"
    "  hxahost schema --superclasses > classes.mof    for one that has the schema of the DMTF\n"
    "  hxahost schema --format markdown               to read";

inline constexpr const char* kHelpExamples =
    "Examples:\n"
    "  hxahost help               all commands\n"
    "  hxahost help query         the options of a command\n"
    "  hxahost help bundle show   those of a command of a command";

inline constexpr const char* kBundleExamples =
    "Examples:\n"
    "  hxahost query --record machine.bundle              collect, and keep all that was seen\n"
    "  hxahost query --replay machine.bundle              the same result again, on any machine\n"
    "  hxahost bundle list machine.bundle                 what is in it\n"
    "  hxahost bundle show machine.bundle 3               what the third command printed\n"
    "  hxahost bundle mask machine.bundle shared.bundle   without names and serial numbers";

}  // namespace hxahost
