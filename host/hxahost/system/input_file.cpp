#include "host/hxahost/system/input_file.h"

#include <array>
#include <iostream>

#include <fmt/core.h>

#include "host/hxacore/whole_file.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

[[noreturn]] void RejectLarge(const std::string& name, std::uint64_t largest) {
  throw ProgramError(ExitStatus::kWrongArguments,
                     fmt::format("{} is {}: allow more with --input-limit.", name, LargerThan(largest)));
}

}  // namespace

std::string ReadInputFile(const std::filesystem::path& file, std::string_view what, std::uint64_t largest) {
  const std::string name = Printable(Utf8FromPath(file));
  NKVRHXA20::WholeFile read = NKVRHXA20::ReadWholeFile(file, largest);
  if (read.isTooLarge) RejectLarge(name, largest);
  if (!read.refusal.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments, fmt::format("{} cannot be read ({}): name {} that is there.", name,
                                                                Printable(read.refusal), what));
  }
  return std::move(read.bytes);
}

std::string ReadStandardInput(std::uint64_t largest) {
  std::string text;
  std::array<char, std::size_t{64} << 10U> piece;
  while (std::cin) {
    std::cin.read(piece.data(), piece.size());
    text.append(piece.data(), static_cast<std::size_t>(std::cin.gcount()));
    if (text.size() > largest) RejectLarge("Standard input", largest);
  }
  return text;
}

}  // namespace hxahost
