#pragma once

#include <string_view>

namespace hxahost {

// The HTML of the report with its style and script, made from report_template.html and report/ by the build. The data
// replaces "@QUERY_DATA@" and "@REPORT_DATA@".
std::string_view ReportTemplate();

// The page of "hxahost fleet", from fleet/page/ and parts of the report.
std::string_view FleetTemplate();

}  // namespace hxahost
