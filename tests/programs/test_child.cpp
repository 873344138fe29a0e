// Acts as a test requires of a child process: test_child MODE [ARGUMENT]...
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/programs/test_child_system.h"

namespace {

using Texts = std::vector<std::string>;

void Print(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void Sleep(const std::string& seconds) { std::this_thread::sleep_for(std::chrono::seconds(std::stoi(seconds))); }

// One line for each argument: its length, a colon, the argument.
void PrintArguments(const Texts& arguments) {
  for (const std::string& argument : arguments) Print(std::to_string(argument.size()) + ":" + argument + "\n");
}

void PrintBytes(std::size_t count) {
  const std::string block(std::size_t{1} << 16U, 'x');
  for (; count >= block.size(); count -= block.size()) Print(block);
  Print(block.substr(0, count));
}

void Flood() {
  for (;;) PrintBytes(std::size_t{1} << 20U);
}

void PrintOnBothOutputs(int lines) {
  for (int line = 0; line < lines; ++line) {
    std::FILE* const file = line % 2 == 0 ? stdout : stderr;
    std::fprintf(file, "%s %d\n", line % 2 == 0 ? "out" : "err", line);
    std::fflush(file);
  }
}

void PrintInput() {
  std::size_t count = 0;
  while (std::fgetc(stdin) != EOF) ++count;
  Print(std::to_string(count) + " bytes\n");
}

void PrintLocale() {
  for (const std::string& variable : Environment()) {
    if (variable.starts_with("LANG") || variable.starts_with("LC_")) Print(variable + "\n");
  }
}

void PrintVariable(const std::string& name) {
  for (const std::string& variable : Environment()) {
    if (variable.starts_with(name + "=")) Print(variable.substr(name.size() + 1) + "\n");
  }
}

void WaitForNumber(const std::string& file) {
  std::string number;
  while (!(std::ifstream(file) >> number)) std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

// Ends only when the process that it leaves behind runs.
void Leave(Ties ties, Rest rest, const std::string& file) {
  LeaveBehind(ties, rest, file);
  WaitForNumber(file);
  Print("left\n");
}

[[noreturn]] void Exit(int status) {
  Print("done\n");
  std::exit(status);
}

void SleepUnasked(const std::string& file, const std::string& seconds) {
  IgnoreTermination();
  std::ofstream(file) << OwnProcessId() << "\n";
  Sleep(seconds);
}

// A child, a grandchild in a group of its own, and one without output, group or parent. All ignore requests to end.
void SleepWithFamily(const std::string& file, const std::string& seconds) {
  Leave(Ties::kAll, Rest::kBreeds, file + "-child");
  Leave(Ties::kNothing, Rest::kSleeps, file + "-daemon");
  WaitForNumber(file + "-child-child");
  SleepUnasked(file, seconds);
}

void SleepWithoutOutput(const std::string& seconds) {
  Print("before\n");
  CloseStandardOutput();
  Sleep(seconds);
}

const std::map<std::string, std::function<void(const Texts&)>> kModes = {
    {"arguments",         PrintArguments                                                               },
    {"bytes",             [](const Texts& given) { PrintBytes(std::stoul(given.at(0))); }              },
    {"flood",             [](const Texts&) { Flood(); }                                                },
    {"both",              [](const Texts& given) { PrintOnBothOutputs(std::stoi(given.at(0))); }       },
    {"input",             [](const Texts&) { PrintInput(); }                                           },
    {"locale",            [](const Texts&) { PrintLocale(); }                                          },
    {"variable",          [](const Texts& given) { PrintVariable(given.at(0)); }                       },
    {"sleep",             [](const Texts& given) { Sleep(given.at(0)); }                               },
    {"sleep-unasked",     [](const Texts& given) { SleepUnasked(given.at(0), given.at(1)); }           },
    {"sleep-with-family", [](const Texts& given) { SleepWithFamily(given.at(0), given.at(1)); }        },
    {"sleep-silently",    [](const Texts& given) { SleepWithoutOutput(given.at(0)); }                  },
    {"exit",              [](const Texts& given) { Exit(std::stoi(given.at(0))); }                     },
    {"leave",             [](const Texts& given) { Leave(Ties::kAll, Rest::kSleeps, given.at(0)); }    },
    {"leave-flood",       [](const Texts& given) { Leave(Ties::kAll, Rest::kFloods, given.at(0)); }    },
    {"detach",            [](const Texts& given) { Leave(Ties::kOutput, Rest::kSleeps, given.at(0)); } },
    {"daemon",            [](const Texts& given) { Leave(Ties::kNothing, Rest::kSleeps, given.at(0)); }},
    {"detach-sleep",
     [](const Texts& given) {
       Leave(Ties::kOutput, Rest::kSleeps, given.at(0));
       Sleep(given.at(1));
     }                                                                                                 },
    {"daemon-sleep",
     [](const Texts& given) {
       Leave(Ties::kNothing, Rest::kSleeps, given.at(0));
       Sleep(given.at(1));
     }                                                                                                 },
 // Windows starts these where other systems fork.
    {"rest-sleeps",       [](const Texts& given) { StayBehind(Rest::kSleeps, given.at(0)); }           },
    {"rest-floods",       [](const Texts& given) { StayBehind(Rest::kFloods, given.at(0)); }           },
    {"rest-breeds",       [](const Texts& given) { StayBehind(Rest::kBreeds, given.at(0)); }           },
};

// With a utility's name: if there is a folder "family" beside it, which receives their numbers, starts a family of
// processes that ignore requests to end, and sleeps. Otherwise writes the content of a file beside it,
// "script/qcmdrun getconfig 1 al", byte for byte. If there is another file with ".crash" after that name, it then
// crashes.
int AnswerAs(const std::filesystem::path& utility, const Texts& arguments) {
  const std::filesystem::path family = utility.parent_path() / "family";
  if (std::filesystem::exists(family)) SleepWithFamily((family / "number").string(), "300");
  std::string name = utility.stem().string();
  for (const std::string& argument : arguments) name += " " + argument;
  const std::filesystem::path script = utility.parent_path() / "script" / name;
  std::ifstream file(script, std::ios::binary);
  if (!file) return 2;
  Print({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()});
  if (std::filesystem::exists(script.string() + ".crash")) Crash();
  return 0;
}

}  // namespace

void StayBehind(Rest rest, const std::string& file) {
  IgnoreTermination();
  std::ofstream(file) << OwnProcessId() << std::endl;
  if (rest == Rest::kFloods) Flood();
  if (rest == Rest::kBreeds) LeaveBehind(Ties::kOutput, Rest::kSleeps, file + "-child");
  Sleep("300");
}

int main(int argc, char** argv) {
  WriteBytesAsTheyAre();
  const std::filesystem::path self(argv[0]);
  if (self.stem() != "test_child") return AnswerAs(self, Texts(argv + 1, argv + argc));
  const bool isExact = argc > 1 && std::string_view(argv[1]) == "arguments";
  Texts arguments = isExact ? ExactArguments(argc, argv) : Texts(argv + 1, argv + argc);
  const auto mode = arguments.empty() ? kModes.end() : kModes.find(arguments.front());
  if (mode == kModes.end()) {
    std::fprintf(stderr, "test_child: no such mode\n");
    return 2;
  }
  arguments.erase(arguments.begin());
  mode->second(arguments);
  return 0;
}
