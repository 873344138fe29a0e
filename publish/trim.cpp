#include "publish/trim.h"

namespace {

constexpr std::string_view kBlanksAndLineEnds = " \t\r\n";

}  // namespace

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanksAndLineEnds);
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanksAndLineEnds) + 1 - begin);
}
