#include "host/hxacore/windows/command_line.h"

#include "host/hxacore/windows/wide_text.h"

namespace NKVRHXA20 {

// Backslashes are literal, except before a quote: there, and so also before the closing quote, each is written twice,
// and a quote that belongs to the argument has one more before it.
std::wstring QuotedArgument(const std::wstring& argument) {
  if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == std::wstring::npos) return argument;
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t character : argument) {
    if (character == L'"') quoted.append(backslashes + 1, L'\\');
    quoted += character;
    backslashes = character == L'\\' ? backslashes + 1 : 0;
  }
  return quoted.append(backslashes, L'\\') += L'"';
}

// The first word is parsed by a simpler rule, without escapes; a file name contains no quotes.
std::wstring CommandLine(const std::string& path, const std::vector<std::string>& arguments) {
  std::wstring line = L"\"" + ToWide(path) + L"\"";
  for (const std::string& argument : arguments) line += L" " + QuotedArgument(ToWide(argument));
  return line;
}

}  // namespace NKVRHXA20
