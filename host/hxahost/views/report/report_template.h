#pragma once

#include <string_view>

namespace hxahost {

// The page of the report with its style and script in it; made from report_template.html and report/ when the program
// is built. "@QUERY_DATA@" and "@REPORT_DATA@" are where the data goes.
std::string_view ReportTemplate();

// The page of "hxahost fleet", from fleet/page/ and parts of the report.
std::string_view FleetTemplate();

}  // namespace hxahost
