#pragma once

#include <ostream>
#include <streambuf>

namespace hxahost {

// JSON on its way into a script element of a page: "<" becomes an escape, as it only occurs within JSON's strings. So
// no text can end the element or begin another one, whatever it contains.
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
