#include "host/hxahost/views/report/html_view.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/report/report_template.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr std::string_view kHostile =
    "</script><script>alert(1)</script><!-- <img src=x onerror=alert(2)> \xe2\x80\xa8";

std::string Page(const QueryHeader& header, const std::vector<QueryResult>& results) {
  std::ostringstream out;
  BeginHtml(out, header);
  for (const QueryResult& result : results) WriteQueryHtml(out, header, result);
  EndHtml(out, header);
  return out.str();
}

// The text that a browser passes to the script: up to the first end of the element.
std::string DataOf(const std::string& page, const std::string& id) {
  const std::string begin = "<script type=\"application/json\" id=\"" + id + "\">";
  const std::size_t first = page.find(begin) + begin.size();
  return page.substr(first, page.find("</script>", first) - first);
}

std::string Json(const QueryHeader& header, const QueryResult& result) {
  std::ostringstream out;
  BeginJson(out, header);
  WriteQueryJson(out, header, result);
  EndJson(out, header);
  return out.str();
}

QueryResult HostileResult() {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", std::string(kHostile), "RawResults", Texts({std::string(kHostile)}));
  return {1, repository.Instances(), {{3, std::string(kHostile)}}};
}

TEST(HtmlView, ContainsTheJsonOfTheQuery) {
  const QueryHeader header{"MACHINE", "/tools", {}, {"KVRSG_zxRawData"}, 1};
  const QueryResult result = HostileResult();
  const std::string page = Page(header, {result});
  EXPECT_EQ(ordered_json::parse(DataOf(page, "query-data")), ordered_json::parse(Json(header, result)));
  EXPECT_THAT(page, HasSubstr("<title>RAID report: MACHINE</title>"));
  EXPECT_THAT(page, HasSubstr("<h1>RAID report: MACHINE</h1>"));
  EXPECT_THAT(page, HasSubstr(" in /tools</p>"));
}

TEST(HtmlView, MakesNoMarkupOfTextsOfToolsAndOptions) {
  const std::string hostile(kHostile);
  const std::string page = Page({hostile, hostile, {}, {hostile}, 1}, {HostileResult()});
  EXPECT_THAT(page, Not(HasSubstr("alert(1)</script>")));
  EXPECT_THAT(page, Not(HasSubstr("<img")));
  EXPECT_THAT(page, Not(HasSubstr("\xe2\x80\xa8")));
  EXPECT_THAT(page, HasSubstr("\\u003c/script>\\u003cscript>alert(1)"));
  EXPECT_EQ(ordered_json::parse(DataOf(page, "query-data"))["machine"], hostile);
}

TEST(HtmlView, ShowsTheLastOfSeveralQueriesAndTheirNumber) {
  const QueryHeader header{"MACHINE", "", {}, {}, 3};
  const auto result = [](unsigned number) { return QueryResult{number, {}, {{3, "query " + std::to_string(number)}}}; };
  EXPECT_THAT(Page(header, {result(1), result(2)}), IsEmpty());
  const std::string page = Page(header, {result(1), result(2), result(3)});
  const auto queries = ordered_json::parse(DataOf(page, "query-data"))["queries"];
  ASSERT_EQ(queries.size(), 1U);
  EXPECT_EQ(queries[0]["log"][0]["text"], "query 3");
  EXPECT_THAT(page, HasSubstr("3 queries were made"));
}

TEST(HtmlView, IsAsLongAsThePageAndItsDataTogether) {
  const std::string empty = Page({}, {QueryResult{}});
  EXPECT_LT(empty.size(), ReportTemplate().size() + 20'000);

  FilledRepository repository;
  const std::string text(1'000'000, 'x');
  repository.Publish("KVRSG_zxRawData", "Command", "c", "RawResults", Texts({text}));
  EXPECT_LT(Page(
                {
  },
                {QueryResult{1, repository.Instances(), {}}})
                .size(),
            empty.size() + text.size() + 1'000);
}

}  // namespace
