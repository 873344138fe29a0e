#pragma once

#include <span>
#include <string>
#include <string_view>

// What the commands are for. Help, completion and the manual page are made of these texts.
namespace hxahost {

struct Example {
  std::string_view command;
  std::string_view purpose;
};

struct CommandText {
  std::string_view name;  // "" for the program
  std::string_view description;
  std::span<const Example> examples;
  std::string_view exitStatus;
};

// Throws std::out_of_range for a name that no command has.
const CommandText& CommandTextOf(std::string_view name);

// The end of a command's help: examples, exit status. No line is wider than 80 columns.
std::string HelpFooter(const CommandText& text);

}  // namespace hxahost
