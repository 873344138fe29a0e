#include "host/hxahost/views/report/html_view.h"

#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/report/proof_data.h"
#include "host/hxahost/views/report/report_data.h"
#include "host/hxahost/views/report/report_template.h"
#include "host/hxahost/views/report/script_data.h"
#include "host/hxahost/views/report/write_template.h"

namespace hxahost {

namespace {

// The document that "--format json" gives for a program run that made this one query.
void WriteResultJson(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  BeginJson(out, header);
  QueryResult only = result;
  only.number = 1;
  WriteQueryJson(out, header, only);
  EndJson(out, header);
}

}  // namespace

void BeginHtml(std::ostream&, const QueryHeader&) {}

void WriteQueryHtml(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  if (result.number != header.queryCount) return;
  const auto writeEscaped = [](std::ostream& page, const auto& write) {
    ScriptData buffer(page);
    std::ostream data(&buffer);
    write(data);
  };
  const TemplateSlot slots[] = {
      {"@QUERY_DATA@",
       [&](std::ostream& page) {
         writeEscaped(page, [&](std::ostream& data) { WriteResultJson(data, header, result); });
       }},
      {"@REPORT_DATA@",
       [&](std::ostream& page) {
         writeEscaped(page, [&](std::ostream& data) { WriteReportData(data, header, result); });
       }},
      {"@PROOF_DATA@",
       [&](std::ostream& page) {
         writeEscaped(page, [&](std::ostream& data) { WriteProofData(data, header, result); });
       }},
  };
  WriteTemplate(out, ReportTemplate(), slots);
}

void EndHtml(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
