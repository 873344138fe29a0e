#include "host/hxahost/program/unexpected_arguments.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/nearest_word.h"

namespace hxahost {

namespace {

const CLI::App& LastGiven(const CLI::App& program) {
  const auto given = program.get_subcommands();
  return given.empty() ? program : LastGiven(*given.front());
}

bool IsOption(const std::string& argument) { return argument.starts_with("-"); }

// The words that are valid in the place of the argument.
std::vector<std::string> Candidates(const CLI::App& command, const std::string& argument) {
  std::vector<std::string> words;
  if (IsOption(argument)) {
    for (const CLI::Option* const option : command.get_options()) {
      for (const std::string& name : option->get_lnames()) words.push_back(name);
    }
  } else {
    for (const CLI::App* const further : command.get_subcommands({})) words.push_back(further->get_name());
  }
  return words;
}

// "--fromat" of "--fromat=json".
std::string OptionName(const std::string& argument) {
  return IsOption(argument) ? argument.substr(0, argument.find('=')) : argument;
}

std::string Answer(const CLI::App& command, const std::string& commandName, const std::string& argument) {
  const std::string name = OptionName(argument);
  const std::string_view dashes = IsOption(name) ? "--" : "";
  const std::vector<std::string> candidates = Candidates(command, name);
  const std::string meant = NearestWord(name.substr(std::min(name.find_first_not_of('-'), name.size())), candidates);
  const std::string isNot = IsOption(name)       ? " is no option of " + commandName
                            : candidates.empty() ? " is not expected"
                                                 : " is no command of " + commandName;
  const std::string advice =
      meant.empty() ? ": see " + commandName + " --help." : ": did you mean " + std::string(dashes) + meant + "?";
  return (IsOption(name) ? Printable(name) : "\"" + Printable(name) + "\"") + isNot + advice;
}

bool NamesCommand(const CLI::App& program, const std::string& word) {
  const auto commands = program.get_subcommands({});
  return std::ranges::find(commands, word, [](const CLI::App* each) { return each->get_name(); }) != commands.end();
}

}  // namespace

std::string GivenCommand(const CLI::App& program) {
  const auto given = program.get_subcommands();
  return program.get_name() + (given.empty() ? "" : " " + GivenCommand(*given.front()));
}

void RejectUnexpected(const CLI::App& program, const std::vector<std::string>& arguments) {
  const std::vector<std::string> unexpected = program.remaining(true);
  const auto first = std::ranges::find_if(
      arguments, [&](const std::string& argument) { return std::ranges::count(unexpected, argument) > 0; });
  if (first == arguments.end()) return;
  if (NamesCommand(program, *first)) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       fmt::format("The command goes first: {} {} ...", program.get_name(), *first));
  }
  throw ProgramError(ExitStatus::kWrongArguments, Answer(LastGiven(program), GivenCommand(program), *first));
}

}  // namespace hxahost
