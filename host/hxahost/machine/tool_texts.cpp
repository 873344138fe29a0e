#include "host/hxahost/machine/tool_texts.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kChannelHead = "Channel #";

// Whether the line contains the part. A tool that never prints the part has "" for it.
bool Contains(std::string_view line, std::string_view part) { return !part.empty() && line.find(part) != line.npos; }

// The label of a stripe order.
std::string_view OrderLabel(const KnownTool& tool) {
  const std::vector<LabelSource> sources = LabelsOf(tool, kDiskGroupClass, "StripeOrder");
  return sources.empty() ? std::string_view() : sources.front().label;
}

// Whether the line ends the lines of an object, apart from the heading of the next one.
bool EndsObject(std::string_view line) {
  return Trim(line).empty() || line.find_first_not_of("- \t") == line.npos || Contains(line, kChannelHead) ||
         Contains(line, kCommandCompleted);
}

std::string WordsAfter(std::string_view line, std::string_view label) {
  return WithSingleBlanks(line.substr(line.find(label) + label.size()));
}

// "Target on SCSI ID 0", "Device #0".
std::string NumberOfDevice(std::string_view line, std::string_view head) {
  const std::string words = WordsAfter(line, head);
  return words.substr(words.rfind(' ') + 1);
}

// Walks through the lines of a report once.
class BlockFinder {
 public:
  explicit BlockFinder(ToolText& text) : text_(text), orderLabel_(OrderLabel(*text.tool)) {}

  void Find() {
    for (std::size_t index = 0; index < text_.lines.size(); ++index) Take(index, text_.lines[index]);
    Close(text_.lines.size());
  }

 private:
  void Take(std::size_t index, std::string_view line) {
    if (Contains(line, kLogicalDriveHead)) {
      Open(text_.drives, {index, index, {}, WordsAfter(line, kLogicalDriveHead)});
    } else if (Contains(line, text_.tool->deviceHead)) {
      Open(text_.devices, {index, index, heading_, DeviceKey(NumberOfDevice(line, text_.tool->deviceHead))});
    } else if (EndsObject(line)) {
      Close(index);
      if (Contains(line, kChannelHead)) heading_ = index;
    } else if (Contains(line, orderLabel_)) {
      AddGroup(index, line);
    }
  }

  // A long list continues on the next lines; they are no part of another group.
  void AddGroup(std::size_t index, std::string_view line) {
    const bool isOfDrive = open_ == &text_.drives;
    const std::size_t label = line.find(orderLabel_);
    std::size_t end = index + 1;
    const auto continues = [this](std::string_view below) {
      return !EndsObject(below) && !Contains(below, ":") && !Contains(below, orderLabel_);
    };
    while (end < text_.lines.size() && continues(text_.lines[end])) ++end;
    text_.groups.push_back(
        {index,
         end,
         {},
         isOfDrive ? open_->back().key : std::string(line.substr(label - std::min<std::size_t>(label, 1), 1))});
  }

  void Open(std::vector<TextBlock>& blocks, TextBlock block) {
    Close(block.first);
    blocks.push_back(std::move(block));
    open_ = &blocks;
  }

  void Close(std::size_t end) {
    if (open_ != nullptr) open_->back().end = end;
    open_ = nullptr;
  }

  ToolText& text_;
  const std::string_view orderLabel_;
  std::vector<TextBlock>* open_ = nullptr;
  std::optional<std::size_t> heading_;
};

// "zenx//arcconf.exe getconfig 1 al", without the lines; empty if another program ran.
std::optional<ToolText> ReadText(std::size_t place, const TPublishedInstance& instance) {
  const std::string command = RawText(instance, "Command");
  const std::vector<std::string_view> words = Split(command, " ");
  const auto* const known =
      std::ranges::find(kKnownTools, words.front(), [](const auto& each) { return each.tool.path; });
  if (known == std::end(kKnownTools) || words.size() != 4) return std::nullopt;
  ToolText text;
  text.instance = place;
  text.tool = known;
  text.command = words[1];
  text.controller = words[2];
  text.option = words[3];
  return text;
}

void ReadLines(ToolText& text, const InstanceList& instances) {
  text.lines = RawElements(*instances[text.instance], "RawResults");
}

bool DescribesController(const ToolText& text) {
  return Answers(text, kGetConfig) &&
         std::ranges::any_of(text.lines, [](const std::string& line) { return Contains(line, kControllerHeading); });
}

// The plug-in numbers controllers consecutively over all tools.
void NumberOn(std::vector<ToolText>& texts) {
  int before = 0;
  for (const KnownTool& known : kKnownTools) {
    int found = 0;
    for (ToolText& text : texts) {
      if (text.tool != &known) continue;
      if (DescribesController(text)) ++found;
      text.controller = std::to_string(before + std::atoi(text.controller.c_str()));
    }
    before += found;
  }
}

}  // namespace

std::vector<ToolText> ReadToolTexts(const InstanceList& instances) {
  std::vector<ToolText> texts;
  for (std::size_t place = 0; place < instances.size(); ++place) {
    if (instances[place]->Class().name == kManagerRawDataClass) texts.emplace_back().instance = place;
    if (instances[place]->Class().name != kRawDataClass) continue;
    if (auto text = ReadText(place, *instances[place])) texts.push_back(*std::move(text));
  }
  for (ToolText& text : texts) ReadLines(text, instances);
  NumberOn(texts);
  for (ToolText& text : texts) {
    if (Answers(text, kGetConfig)) BlockFinder(text).Find();
  }
  return texts;
}

std::vector<ToolText> ReadConfigurations(const InstanceList& instances) {
  std::vector<ToolText> texts;
  for (std::size_t place = 0; place < instances.size(); ++place) {
    if (instances[place]->Class().name != kRawDataClass) continue;
    auto text = ReadText(place, *instances[place]);
    if (text && Answers(*text, kGetConfig)) texts.push_back(*std::move(text));
  }
  for (ToolText& text : texts) ReadLines(text, instances);
  NumberOn(texts);
  return texts;
}

bool Answers(const ToolText& text, const ToolCommand& command) {
  return text.command == command.command && text.option == command.option;
}

std::string DeviceKey(std::string_view number) {
  constexpr std::size_t kDigits = 4;
  return std::string(number.substr(0, kDigits));
}

std::string ChannelIn(std::string_view heading) {
  const std::size_t begin = heading.find('#') + 1;
  return std::string(Trim(heading.substr(begin, heading.find(':', begin) - begin)));
}

}  // namespace hxahost
