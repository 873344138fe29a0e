// The program on a terminal, which a pseudo terminal stands in for.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

using Variables = std::vector<std::string>;  // NAME=value

// Runs in the child: it must not return.
[[noreturn]] void RunProgram(const std::vector<std::string>& arguments, const Variables& variables) {
  for (const char* const name : {"COLUMNS", "NO_COLOR", "LC_ALL", "LC_CTYPE"}) unsetenv(name);
  for (const std::string& variable : variables) {
    const std::size_t equals = variable.find('=');
    setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
  }
  const std::string program = HxahostPath().string();
  std::vector<std::string> texts = arguments;
  texts.insert(texts.begin(), program);
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  execv(program.c_str(), pointers.data());
  _exit(127);
}

// The output of the program on a terminal of this width.
std::string ShownOnTerminal(unsigned short width, const std::vector<std::string>& arguments, Variables variables) {
  variables.insert(variables.begin(), {"TERM=xterm", "LANG=en_US.UTF-8"});
  winsize size{};
  size.ws_col = width;
  size.ws_row = 24;
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
  if (child < 0) throw std::runtime_error("no pseudo terminal");
  if (child == 0) RunProgram(arguments, variables);
  std::string shown;
  std::array<char, 4096> buffer{};
  for (ssize_t count = 0; (count = read(terminal, buffer.data(), buffer.size())) > 0;) {
    shown.append(buffer.data(), static_cast<std::size_t>(count));
  }
  close(terminal);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0) << shown;
  return shown;
}

std::string Tables(unsigned short width, const Variables& variables = {}, std::vector<std::string> further = {}) {
  std::vector<std::string> arguments = {"query",   "--no-progress",    "--replay", RecordedSampleMachine(),
                                        "--class", "KVRSG_zxDiskDrive"};
  arguments.insert(arguments.end(), further.begin(), further.end());
  return ShownOnTerminal(width, arguments, variables);
}

std::string WithoutColours(std::string text) {
  for (std::size_t begin = 0; (begin = text.find("\x1b[", begin)) != text.npos;) {
    text.erase(begin, text.find('m', begin) + 1 - begin);
  }
  return text;
}

std::size_t WidestLine(const std::string& text) {
  std::istringstream lines(WithoutColours(text));
  std::size_t widest = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    widest = std::max(widest, hxahost::DisplayWidth(line));
  }
  return widest;
}

TEST(Terminal, IsFilledByTheTablesAndNeverLeft) {
  struct Case {
    unsigned short width;
    std::size_t atLeast;  // 200 columns have room for the widest line
  };
  for (const Case& each : {
           Case{80,  70 },
           Case{100, 90 },
           Case{200, 130}
  }) {
    const std::string shown = Tables(each.width);
    EXPECT_LE(WidestLine(shown), each.width);
    EXPECT_GE(WidestLine(shown), each.atLeast);
    EXPECT_THAT(shown, HasSubstr("\x1b[31mFailed\x1b[0m")) << each.width;
  }
}

TEST(Terminal, YieldsToTheVariableColumnsAndToTheOption) {
  EXPECT_LE(WidestLine(Tables(200, {"COLUMNS=80"})), 80U);
  EXPECT_LE(WidestLine(Tables(200, {"COLUMNS=90"}, {"--width", "70"})), 70U);
  EXPECT_GT(WidestLine(Tables(80, {"COLUMNS=none"})), 60U);
}

TEST(Terminal, HasNoColourOnRequest) {
  EXPECT_THAT(Tables(100, {"NO_COLOR=1"}), Not(HasSubstr("\x1b")));
  EXPECT_THAT(Tables(100, {"TERM=dumb"}), Not(HasSubstr("\x1b")));
  EXPECT_THAT(Tables(100, {}, {"--color", "never"}), Not(HasSubstr("\x1b")));
  EXPECT_THAT(Tables(100, {"NO_COLOR=1"}, {"--color", "always"}), HasSubstr("\x1b"));
}

TEST(Terminal, ShowsAsciiInALocaleWithoutUtf8) {
  const std::string shown = Tables(80, {"LC_ALL=C"});
  EXPECT_THAT(shown, HasSubstr("~"));
  for (const char character : shown) ASSERT_LT(static_cast<unsigned char>(character), 0x80U) << shown;
  EXPECT_THAT(Tables(80), HasSubstr("\u2026"));
}

TEST(Terminal, ShowsWhichOfHowManyCommandsRuns) {
  const std::string shown = ShownOnTerminal(
      100, {"query", "--directory", hxahost::Utf8FromPath(SampleMachine()), "--class", "KVRSG_zxDiskDrive"}, {});
  EXPECT_THAT(shown, HasSubstr("\rzenx//qcmdrun.exe getconfig 1 al (1 of about 48)"));
  EXPECT_THAT(shown, HasSubstr("\rzenx//qcmdrun.exe getconfig 1 al (2 of about 63)"));
  EXPECT_THAT(shown, HasSubstr("\rzenx//arcconf.exe getconfig 8 al (80 of about 80)"));
}

// The screen after all output: each carriage return goes back to the beginning of the line.
std::vector<std::string> Screen(const std::string& shown) {
  std::vector<std::string> lines(1);
  std::size_t column = 0;
  for (const char character : shown) {
    if (character == '\n') {
      lines.emplace_back();
      column = 0;
    } else if (character == '\r') {
      column = 0;
    } else {
      std::string& line = lines.back();
      if (column < line.size()) {
        line[column] = character;
      } else {
        line += character;
      }
      ++column;
    }
  }
  for (std::string& line : lines) line.erase(line.find_last_not_of(' ') + 1);
  return lines;
}

TEST(Terminal, ShowsNoRestOfTheProgressBesideTheTables) {
  const std::string machine = hxahost::Utf8FromPath(SampleMachine());
  const std::vector<std::string> fixed = {"query",   "--directory",       machine,
                                          "--class", "KVRSG_zxDiskGroup", "--machine-name",
                                          "M",       "--local-time",      "20260305123015.250000+060",
                                          "--ascii"};
  const Variables noColour = {"NO_COLOR=1"};
  const std::string with = ShownOnTerminal(100, fixed, noColour);
  std::vector<std::string> quiet = fixed;
  quiet.emplace_back("--no-progress");
  const std::string without = ShownOnTerminal(100, quiet, noColour);
  EXPECT_THAT(with, HasSubstr("(1 of about 48)"));
  EXPECT_THAT(with, Not(HasSubstr("\x1b")));
  EXPECT_THAT(without, Not(HasSubstr("of about")));
  // The last lines show how many seconds the tools took.
  const auto tables = [](const std::string& shown) {
    std::vector<std::string> lines = Screen(shown);
    lines.erase(std::ranges::find(lines, "Runs of the tools"), lines.end());
    return lines;
  };
  EXPECT_EQ(tables(with), tables(without));
  EXPECT_THAT(with.substr(with.find("Runs of the tools")), Not(HasSubstr("at most")));
}

}  // namespace
