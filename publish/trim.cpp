#include "publish/trim.h"

namespace {

bool IsBlankOrLineEnd(char character) {
  return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlankOrLineEnd(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlankOrLineEnd(text.back())) text.remove_suffix(1);
  return text;
}
