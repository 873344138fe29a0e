#include "host/hxahost/views/report/script_data.h"

#include <string_view>

namespace hxahost {

namespace {

struct ScriptEscape {
  std::string_view bytes;
  std::string_view escape;
};

constexpr ScriptEscape kScriptEscapes[] = {
    {"<",            "\\u003c"},
    {"\xe2\x80\xa8", "\\u2028"},
    {"\xe2\x80\xa9", "\\u2029"},
};

}  // namespace

ScriptData::~ScriptData() { out_ << held_; }

ScriptData::int_type ScriptData::overflow(int_type character) {
  if (!traits_type::eq_int_type(character, traits_type::eof())) Add(traits_type::to_char_type(character));
  return traits_type::not_eof(character);
}

std::streamsize ScriptData::xsputn(const char* text, std::streamsize length) {
  for (std::streamsize index = 0; index < length; ++index) Add(text[index]);
  return length;
}

void ScriptData::Add(char character) {
  held_ += character;
  while (!held_.empty()) {
    for (const ScriptEscape& escape : kScriptEscapes) {
      if (held_ == escape.bytes) {
        out_ << escape.escape;
        held_.clear();
        return;
      }
      if (escape.bytes.starts_with(held_)) return;
    }
    out_.put(held_.front());
    held_.erase(0, 1);
  }
}

}  // namespace hxahost
