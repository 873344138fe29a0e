#include "host/hxahost/views/tables/raw_text_summary.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/terminal/table.h"
#include "host/hxahost/views/tables/instance_table.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

struct Source {
  std::string name;
  std::size_t commands = 0;
  std::size_t answers = 0;
  std::size_t lines = 0;
};

// The tool of "zenx//arcconf.exe getconfig 1 al"; for the RAID manager's log the whole path, which may contain blanks.
std::string SourceName(const TPublishedInstance& instance) {
  const std::string command = ShownText(instance, "Command");
  return instance.Class().name == kRawDataClass ? command.substr(0, command.find(' ')) : command;
}

std::vector<Source> Sources(const InstanceList& instances) {
  std::vector<Source> sources;
  for (const auto& instance : instances) {
    const std::string_view name = instance->Class().name;
    if (name != kRawDataClass && name != kManagerRawDataClass) continue;
    const std::string sourceName = SourceName(*instance);
    auto source = std::ranges::find(sources, sourceName, &Source::name);
    if (source == sources.end()) source = sources.insert(source, Source{sourceName});
    const std::size_t lines = ElementCount(*instance, "RawResults");
    source->commands += 1;
    source->answers += lines > 0 ? 1 : 0;
    source->lines += lines;
  }
  return sources;
}

}  // namespace

void WriteRawTextSummary(std::ostream& out, const Layout& layout, const InstanceList& instances) {
  Table table;
  table.columns = {
      {"Raw texts of", 60},
      {"Commands"             },
      {"Answered"},
      {"Lines"             }
  };
  for (const Source& source : Sources(instances)) {
    table.rows.push_back(
        {source.name, std::to_string(source.commands), std::to_string(source.answers), std::to_string(source.lines)});
  }
  if (table.rows.empty()) return;
  out << '\n';
  WriteTable(out, layout, table);
}

}  // namespace hxahost
