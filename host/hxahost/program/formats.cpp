#include "host/hxahost/program/formats.h"

#include <algorithm>
#include <iterator>

#include "host/hxahost/fleet/fleet_rows.h"
#include "host/hxahost/schema/schema_markdown.h"
#include "host/hxahost/schema/schema_view.h"
#include "host/hxahost/views/cim/cim_xml_view.h"
#include "host/hxahost/views/cim/mof_view.h"
#include "host/hxahost/views/csv/csv_view.h"
#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/report/html_view.h"
#include "host/hxahost/views/status/status_view.h"
#include "host/hxahost/views/tables/table_view.h"

namespace hxahost {

namespace {

constexpr Format kFormats[] = {
    {"diff",   "text",       WriteDiffText                                                                          },
    {"diff",   "json",       WriteDiffJson                                                                          },
    {"fleet",  "table",      FleetWriter{nullptr, {}, WriteFleetTable}                                              },
    {"fleet",  "json",       FleetWriter{nullptr, {}, WriteFleetJson}                                               },
    {"fleet",  "jsonl",      FleetWriter{nullptr, {WriteJsonRows, WriteJsonRow}}                                    },
    {"fleet",  "csv",        FleetWriter{WriteCsvHeader, {WriteCsvRows, WriteCsvRow}}                               },
    {"fleet",  "html",       FleetWriter{nullptr, {}, WriteFleetPage}                                               },
    {"fleet",  "prometheus", FleetWriter{nullptr, {}, WriteFleetMetrics}                                            },
    {"health", "text",       WriteHealthText                                                                        },
    {"health", "nagios",     WriteHealthNagios                                                                      },
    {"health", "json",       WriteHealthJson                                                                        },
    {"health", "prometheus", WriteHealthMetrics                                                                     },
    {"query",  "table",      QueryWriter{BeginTables, WriteQueryTables, EndTables, false, true}                     },
    {"query",  "json",       QueryWriter{BeginJson, WriteQueryJson, EndJson, false, false, WriteInstanceJson}       },
    {"query",  "jsonl",
     QueryWriter{BeginJsonLines, WriteQueryJsonLines, EndJsonLines, false, false, WriteInstanceJsonLine}            },
    {"query",  "csv",        QueryWriter{BeginCsv, WriteQueryCsv, EndCsv, false, false, WriteInstanceCsv}           },
    {"query",  "html",       QueryWriter{BeginHtml, WriteQueryHtml, EndHtml, false, true}                           },
    {"query",  "cim-xml",    QueryWriter{BeginCimXml, WriteQueryCimXml, EndCimXml, true, false, WriteInstanceCimXml}},
    {"query",  "mof",        QueryWriter{BeginMof, WriteQueryMof, EndMof, true}                                     },
    {"schema", "mof",        WriteSchemaMof                                                                         },
    {"schema", "markdown",   WriteSchemaMarkdown                                                                    },
    {"status", "text",       WriteStatusText                                                                        },
    {"status", "json",       WriteHealthJson                                                                        },
};

}  // namespace

// The rows of a command are consecutive.
std::span<const Format> FormatsOf(std::string_view command) {
  const auto isOfCommand = [command](const Format& format) { return format.command == command; };
  const auto* const begin = std::ranges::find_if(kFormats, isOfCommand);
  return {begin, std::find_if_not(begin, std::end(kFormats), isOfCommand)};
}

const Format* FindFormat(std::string_view command, std::string_view name) {
  const std::span<const Format> formats = FormatsOf(command);
  const auto format = std::ranges::find(formats, name, &Format::name);
  return format == formats.end() ? nullptr : &*format;
}

}  // namespace hxahost
