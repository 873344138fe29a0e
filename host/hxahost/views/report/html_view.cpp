#include "host/hxahost/views/report/html_view.h"

#include <functional>

#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/report/proof_data.h"
#include "host/hxahost/views/report/report_data.h"
#include "host/hxahost/views/report/report_template.h"
#include "host/hxahost/views/report/script_data.h"
#include "host/hxahost/views/report/summary.h"
#include "host/hxahost/views/report/write_template.h"

namespace hxahost {

namespace {

// The document that "--format json" writes for a program run with only this query.
void WriteResultJson(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  BeginJson(out, header);
  QueryResult only = result;
  only.number = 1;
  WriteQueryJson(out, header, only);
  EndJson(out, header);
}

// If not all events are shown, the text of their log is too large for a browser, too.
QueryResult WithoutLongLog(const QueryResult& result) {
  QueryResult shown = result;
  if (result.events > 0) {
    std::erase_if(shown.instances, [](const auto& instance) { return instance->Class().name == kManagerRawDataClass; });
  }
  return shown;
}

using Write = std::function<void(std::ostream& out)>;

Write AsScriptData(const Write& write) {
  return [write](std::ostream& page) {
    ScriptData buffer(page);
    std::ostream data(&buffer);
    write(data);
  };
}

}  // namespace

void BeginHtml(std::ostream&, const QueryHeader&) {}

void WriteQueryHtml(std::ostream& out, const QueryHeader& header, const QueryResult& all) {
  if (all.number != header.queryCount) return;
  const QueryResult result = WithoutLongLog(all);
  const Machine machine = BuildMachine(header, result);
  const auto writeTitle = [&](std::ostream& page) { WriteTitleHtml(page, header); };
  const TemplateSlot slots[] = {
      {"@TITLE@",       writeTitle                                                                               },
      {"@TITLE@",       writeTitle                                                                               },
      {"@ORIGIN@",      [&](std::ostream& page) { WriteOriginHtml(page, header); }                               },
      {"@SUMMARY@",     [&](std::ostream& page) { WriteSummaryHtml(page, header, machine); }                     },
      {"@QUERY_DATA@",  AsScriptData([&](std::ostream& data) { WriteResultJson(data, header, result); })         },
      {"@REPORT_DATA@", AsScriptData([&](std::ostream& data) { WriteReportData(data, header, result, machine); })},
      {"@PROOF_DATA@",  AsScriptData([&](std::ostream& data) { WriteProofData(data, header, result, machine); }) },
  };
  WriteTemplate(out, ReportTemplate(), slots);
}

void EndHtml(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
