#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"
#include "tools/known_tools.h"

// The raw texts of the tools, cut where the objects in them begin.
namespace hxahost {

// The lines of one object in a text, [first, end).
struct TextBlock {
  std::size_t first = 0;
  std::size_t end = 0;
  std::optional<std::size_t> heading = {};  // the line that heads the channel of a device
  std::string key = {};  // number of a logical drive or device; of a group its letter, or its drive's number
};

// The key of a device from its number, as a tool prints it or as it is published: the first digits alone, as one tool's
// numbers are cut after them. Devices that share a key are in the order of the text.
std::string DeviceKey(std::string_view number);

// What a tool answered to one command.
struct ToolText {
  std::size_t instance = 0;         // its place among those of the query
  const KnownTool* tool = nullptr;  // none: it is the log of the RAID manager
  std::string command;
  std::string option;
  std::string controller;  // the number under which the controller that it is about is published
  std::vector<std::string> lines;
  std::vector<TextBlock> drives;
  std::vector<TextBlock> groups;
  std::vector<TextBlock> devices;
};

// In the order of publication.
std::vector<ToolText> ReadToolTexts(const InstanceList& instances);

// Whether the text answers the command.
bool Answers(const ToolText& text, const ToolCommand& command);

// The channel in "Channel #1:".
std::string ChannelIn(std::string_view heading);

}  // namespace hxahost
