#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace hxahost {

// JSON on its way into a script element of a page: "<" and the line ends U+2028 and U+2029 become escapes, as they only
// occur within JSON's strings. So no text can end the element or begin another one, whatever it contains.
class ScriptData : public std::streambuf {
 public:
  explicit ScriptData(std::ostream& out) : out_(out) {}
  // Writes what is still held back.
  ~ScriptData() override;
  ScriptData(const ScriptData&) = delete;
  ScriptData& operator=(const ScriptData&) = delete;

 protected:
  int_type overflow(int_type character) override;
  std::streamsize xsputn(const char* text, std::streamsize length) override;

 private:
  void Add(char character);

  std::ostream& out_;
  std::string held_;  // the beginning of what may become a line end
};

}  // namespace hxahost
