#include "host/hxahost/result/property_values.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include <fmt/core.h>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

const TCIMValue* FindValue(const TPublishedInstance& instance, std::string_view property) {
  const auto& properties = instance.Properties();
  const auto found = std::ranges::find(properties, property, &PublishedProperty::name);
  return found == properties.end() ? nullptr : &found->value;
}

// Numbers in arrays are event codes, which manuals list in hexadecimal.
std::string ElementText(const TCIMValue& element) {
  if (TCIMValueReader::Kind(element) != ValueKind::kUInt32) return Printable(std::string(element));
  return fmt::format("{:#010x}", TCIMValueReader::Number(element));
}

std::string ValueText(const TCIMValue& value) {
  if (TCIMValueReader::Kind(value) == ValueKind::kDateTime) return ReadableTime(TCIMValueReader::DateTime(value));
  if (TCIMValueReader::Kind(value) != ValueKind::kArray) return Printable(std::string(value));
  std::string text;
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) {
    text += (text.empty() ? "" : ", ") + ElementText(element);
  }
  return text;
}

}  // namespace

std::string RawText(const TPublishedInstance& instance, std::string_view property) {
  const TCIMValue* const value = FindValue(instance, property);
  if (value == nullptr || TCIMValueReader::Kind(*value) != ValueKind::kString) return {};
  return std::string(Trim(TCIMValueReader::Text(*value)));
}

std::vector<std::string> RawElements(const TPublishedInstance& instance, std::string_view property) {
  std::vector<std::string> texts;
  const TCIMValue* const value = FindValue(instance, property);
  if (value == nullptr || TCIMValueReader::Kind(*value) != ValueKind::kArray) return texts;
  for (const TCIMValue& element : TCIMValueReader::Elements(*value)) texts.emplace_back(std::string(element));
  return texts;
}

std::string ShownText(const TPublishedInstance& instance, std::string_view property) {
  const TCIMValue* const value = FindValue(instance, property);
  return value == nullptr ? "" : ValueText(*value);
}

std::size_t ElementCount(const TPublishedInstance& instance, std::string_view property) {
  const TCIMValue* const value = FindValue(instance, property);
  const bool isArray = value != nullptr && TCIMValueReader::Kind(*value) == ValueKind::kArray;
  return isArray ? TCIMValueReader::Elements(*value).size() : 0;
}

std::string ReadableTime(const std::string& cimDateTime) {
  // yyyymmddhhmmss.mmmmmmsutc; numbers that are too large make it longer, and then it is shown unchanged.
  if (cimDateTime.size() != 25) return cimDateTime;
  const auto part = [&](std::size_t begin, std::size_t length) { return cimDateTime.substr(begin, length); };
  const int offset = std::atoi(part(22, 3).c_str());
  return fmt::format("{}-{}-{} {}:{}:{} {}{:02}:{:02}", part(0, 4), part(4, 2), part(6, 2), part(8, 2), part(10, 2),
                     part(12, 2), cimDateTime[21], offset / 60, offset % 60);
}

std::optional<std::int64_t> SecondsSince1970(const std::string& cimDateTime) {
  try {
    const TCIMDateTime valid(cimDateTime);
  } catch (const THXAException&) {
    return std::nullopt;
  }
  const auto number = [&](std::size_t begin, std::size_t length) {
    return std::stoi(cimDateTime.substr(begin, length));
  };
  const std::chrono::sys_days date(std::chrono::year(number(0, 4)) / number(4, 2) / number(6, 2));
  const auto local = date + std::chrono::hours(number(8, 2)) + std::chrono::minutes(number(10, 2)) +
                     std::chrono::seconds(number(12, 2));
  const auto offset = std::chrono::minutes(number(22, 3)) * (cimDateTime[21] == '-' ? -1 : 1);
  return std::chrono::duration_cast<std::chrono::seconds>((local - offset).time_since_epoch()).count();
}

}  // namespace hxahost
