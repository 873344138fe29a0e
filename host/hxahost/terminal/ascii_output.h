#pragma once

#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace hxahost {

// Converts to ASCII of the same width: "~" for an ellipsis, "?" for each column of any other character.
std::string ToAscii(std::string_view utf8);

// Passes on the text that is written to it, line by line, in ASCII.
class TAsciiBuffer final : public std::streambuf {
 public:
  explicit TAsciiBuffer(std::ostream& out) : out_(out) {}
  ~TAsciiBuffer() override { HandOn(); }
  TAsciiBuffer(const TAsciiBuffer&) = delete;
  TAsciiBuffer& operator=(const TAsciiBuffer&) = delete;

 protected:
  int_type overflow(int_type character) override;
  int sync() override;

 private:
  void HandOn();

  std::ostream& out_;
  std::string line_;
};

}  // namespace hxahost
