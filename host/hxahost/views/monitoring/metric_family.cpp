#include "host/hxahost/views/monitoring/metric_family.h"

#include <algorithm>
#include <sstream>

#include <fmt/core.h>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// The format has three escapes. Other control characters are written as text, so that people can read the file.
std::string LabelValue(const std::string& bytes) {
  std::string value;
  std::istringstream lines(AsUtf8(bytes));
  std::string separator;
  for (std::string line; std::getline(lines, line); separator = "\\n") {
    value += separator;
    for (const char character : EscapeControls(line)) {
      if (character == '\\' || character == '"') value += '\\';
      value += character;
    }
  }
  return value;
}

std::string LabelText(const Labels& labels) {
  std::string text;
  for (const auto& [name, value] : labels) {
    if (!value.empty()) text += fmt::format("{}{}=\"{}\"", text.empty() ? "{" : ",", name, LabelValue(value));
  }
  return text.empty() ? text : text + "}";
}

}  // namespace

void MetricFamily::Add(const Labels& labels, double value) {
  const auto [place, isNew] = places_.emplace(LabelText(labels), samples_.size());
  if (isNew) {
    samples_.emplace_back(place->first, value);
  } else {
    double& known = samples_[place->second].second;
    known = std::max(known, value);
  }
}

void MetricFamily::Write(std::ostream& out) const {
  if (samples_.empty()) return;
  out << fmt::format("# HELP {} {}\n# TYPE {} {}\n", name_.name, name_.help, name_.name, name_.type);
  for (const auto& [labels, value] : samples_) out << fmt::format("{}{} {}\n", name_.name, labels, value);
}

}  // namespace hxahost
