#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"
#include "tools/known_tools.h"

// The raw texts of the tools, divided at the beginning of each object.
namespace hxahost {

// The lines of one object in a text, [first, end).
struct TextBlock {
  std::size_t first = 0;
  std::size_t end = 0;
  std::optional<std::size_t> heading = {};  // the line that heads the channel of a device
  std::string key = {};  // number of a logical drive or device; for a group its letter, or its drive's number
};

// The key of a device from its number, as a tool prints it or as it is published: only the first digits, as the text
// after them is cut off in one tool's numbers. Devices with the same key are in the order of the text.
std::string DeviceKey(std::string_view number);

// The answer of a tool to one command.
struct ToolText {
  std::size_t instance = 0;         // its place among those of the query
  const KnownTool* tool = nullptr;  // null: the text is the log of the RAID manager
  std::string command;
  std::string option;
  std::string controller;  // the published number of the controller that it describes
  std::vector<std::string> lines;
  std::vector<TextBlock> drives;
  std::vector<TextBlock> groups;
  std::vector<TextBlock> devices;
};

// In the order of publication.
std::vector<ToolText> ReadToolTexts(const InstanceList& instances);

// The answers to getconfig alone, not divided: the logs, which may be long, are not copied.
std::vector<ToolText> ReadConfigurations(const InstanceList& instances);

// Whether the text answers the command.
bool Answers(const ToolText& text, const ToolCommand& command);

// The channel in "Channel #1:".
std::string ChannelIn(std::string_view heading);

}  // namespace hxahost
