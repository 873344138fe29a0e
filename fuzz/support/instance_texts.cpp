#include "fuzz/support/instance_texts.h"

#include "host/hxacore/value_reader.h"

using namespace NKVRHXA20;

std::vector<std::string> TextsWithin(const TCIMValue& value) {
  if (TCIMValueReader::Kind(value) != ValueKind::kArray) return {std::string(value)};
  std::vector<std::string> texts;
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) texts.push_back(element);
  return texts;
}

std::vector<std::string> InstanceTexts(const hxahost::InstanceList& instances) {
  std::vector<std::string> texts;
  for (const auto& instance : instances) {
    std::string& text = texts.emplace_back(instance->Class().name);
    text += ' ' + TCIMReferenceFactory::ObjectPath(instance->Reference());
    for (const auto& [name, value] : instance->Properties()) {
      text.append("\n").append(name);
      for (const std::string& part : TextsWithin(value)) {
        text.append(" ").append(std::to_string(part.size())).append(":").append(part);
      }
    }
  }
  return texts;
}
