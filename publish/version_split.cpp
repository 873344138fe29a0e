#include "publish/version_split.h"

VersionAndBuild SplitVersion(std::string_view text) {
  const std::size_t open = text.find('(');
  if (open == text.npos) return {text, {}};
  const std::size_t close = text.find(')', open);
  if (close == text.npos) return {text, text};
  return {text.substr(0, open), text.substr(open + 1, close - open - 1)};
}
