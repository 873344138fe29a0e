#include "host/hxahost/program/formats.h"

#include <gtest/gtest.h>

#include "host/hxahost/program/options.h"

namespace {

using namespace hxahost;

TEST(Formats, AreFoundByCommandAndNameTheDefaultFirst) {
  EXPECT_EQ(FormatsOf("query").front().name, QueryOptions().format);
  EXPECT_EQ(FormatsOf("health").front().name, ParseCommandLine({"health"}).query.format);
  EXPECT_EQ(FormatsOf("diff").front().name, DiffOptions().format);
  EXPECT_EQ(FormatsOf("schema").front().name, CommandLine().schemaFormat);
  for (const std::string_view command : {"diff", "health", "query", "schema"}) {
    for (const Format& format : FormatsOf(command)) EXPECT_EQ(FindFormat(command, format.name), &format);
  }
  EXPECT_EQ(FindFormat("query", "prometheus"), nullptr) << "of another command";
  EXPECT_EQ(FindFormat("query", "TABLE"), nullptr);
  EXPECT_EQ(FindFormat("query", ""), nullptr);
  EXPECT_TRUE(FormatsOf("bundle").empty());
}

}  // namespace
