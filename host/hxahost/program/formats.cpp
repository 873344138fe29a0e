#include "host/hxahost/program/formats.h"

#include <algorithm>
#include <functional>

#include "host/hxahost/schema/schema_markdown.h"
#include "host/hxahost/schema/schema_view.h"
#include "host/hxahost/views/cim/cim_xml_view.h"
#include "host/hxahost/views/cim/mof_view.h"
#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/report/html_view.h"
#include "host/hxahost/views/tables/table_view.h"

namespace hxahost {

namespace {

constexpr Format kFormats[] = {
    {"diff",   "text",       WriteDiffText                                        },
    {"diff",   "json",       WriteDiffJson                                        },
    {"health", "text",       WriteHealthText                                      },
    {"health", "json",       WriteHealthJson                                      },
    {"health", "prometheus", WriteHealthMetrics                                   },
    {"query",  "table",      QueryWriter{BeginTables, WriteQueryTables, EndTables}},
    {"query",  "json",       QueryWriter{BeginJson, WriteQueryJson, EndJson}      },
    {"query",  "html",       QueryWriter{BeginHtml, WriteQueryHtml, EndHtml}      },
    {"query",  "cim-xml",    QueryWriter{BeginCimXml, WriteQueryCimXml, EndCimXml}},
    {"query",  "mof",        QueryWriter{BeginMof, WriteQueryMof, EndMof}         },
    {"schema", "mof",        WriteSchemaMof                                       },
    {"schema", "markdown",   WriteSchemaMarkdown                                  },
};
static_assert(std::ranges::is_sorted(kFormats, {}, &Format::command));

}  // namespace

std::span<const Format> FormatsOf(std::string_view command) {
  const auto formats = std::ranges::equal_range(kFormats, command, {}, &Format::command);
  return {formats.begin(), formats.end()};
}

const Format* FindFormat(std::string_view command, std::string_view name) {
  const std::span<const Format> formats = FormatsOf(command);
  const auto format = std::ranges::find(formats, name, &Format::name);
  return format == formats.end() ? nullptr : &*format;
}

}  // namespace hxahost
