#pragma once

#include <ostream>
#include <streambuf>

namespace hxahost {

// Writes JSON into a script element: "<", which occurs only within JSON's strings, becomes an escape. So no text can
// end the element or begin another one.
class ScriptData : public std::streambuf {
 public:
  explicit ScriptData(std::ostream& out) : out_(out) {}

 protected:
  int_type overflow(int_type character) override {
    if (character == '<') {
      out_ << "\\u003c";
    } else if (!traits_type::eq_int_type(character, traits_type::eof())) {
      out_.put(traits_type::to_char_type(character));
    }
    return traits_type::not_eof(character);
  }

 private:
  std::ostream& out_;
};

}  // namespace hxahost
