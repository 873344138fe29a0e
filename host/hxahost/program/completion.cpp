#include "host/hxahost/program/completion.h"

#include <algorithm>
#include <iterator>

#include "host/hxacore/schema.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/schema/class_words.h"
#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

using Words = std::vector<std::string>;

// Null if the command has no such subcommand. "help" may precede any command.
const CLI::App* NamedCommand(const CLI::App& command, const std::string& name) {
  const auto further = command.get_subcommands({});
  const auto named = std::ranges::find(further, name, [](const CLI::App* each) { return each->get_name(); });
  return named == further.end() || name == "help" ? nullptr : *named;
}

Words ClassValues() {
  Words values = ClassWords();
  std::ranges::transform(NKVRHXA20::PublishedClasses(), std::back_inserter(values),
                         [](const NKVRHXA20::ClassDeclaration& each) { return std::string(each.name); });
  return values;
}

// The values in "auto|always|never", without the "N" of "N|none".
Words ListedValues(const std::string& typeName) {
  Words values;
  if (typeName.find('|') == typeName.npos) return values;
  for (const std::string_view value : Split(typeName, "|")) {
    if (value == Lower(value)) values.emplace_back(value);
  }
  return values;
}

Words ValuesOf(const CLI::App& command, const CLI::Option& option) {
  if (option.check_lname("class")) return ClassValues();
  if (!option.check_lname("format")) return ListedValues(option.get_type_name());
  Words values;
  for (const Format& format : FormatsOf(command.get_name())) values.emplace_back(format.name);
  return values;
}

Words CommandsAndOptions(const CLI::App& command) {
  Words words;
  for (const CLI::App* const further : command.get_subcommands({})) words.push_back(further->get_name());
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) words.push_back("--" + name);
  }
  return words;
}

}  // namespace

std::string Completions(const CLI::App& program, const std::vector<std::string>& words) {
  const CLI::App* command = &program;
  const CLI::Option* awaitsValue = nullptr;
  for (const std::string& word : words) {
    if (word == "=") continue;  // bash passes it as a word of its own
    const CLI::Option* const option = awaitsValue == nullptr ? command->get_option_no_throw(word) : nullptr;
    const CLI::App* const named = awaitsValue == nullptr ? NamedCommand(*command, word) : nullptr;
    awaitsValue = option != nullptr && word.starts_with("-") && option->get_type_size() > 0 ? option : nullptr;
    if (named != nullptr) command = named;
  }
  std::string lines;
  const Words following = awaitsValue != nullptr ? ValuesOf(*command, *awaitsValue) : CommandsAndOptions(*command);
  for (const std::string& word : following) lines += word + "\n";
  return lines;
}

}  // namespace hxahost
