#include "host/hxahost/collection/query_log.h"

#include <gtest/gtest.h>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/file_text.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;

TEST(QueryLog, WritesEntriesAsTheyComeOneLineEach) {
  const TemporaryFolder folder;
  const auto path = folder.Path() / "log.txt";
  WriteFileText(path, "an older log that is longer than what comes now\n");
  QueryLog log(path);
  EXPECT_EQ(FileText(path), "");
  log.Add(3, " blanks stay ");
  EXPECT_EQ(FileText(path), "3\t blanks stay \n");
  log.Add(100, "two\nlines\x1b");
  log.Finish();
  EXPECT_EQ(FileText(path), "3\t blanks stay \n100\ttwo\\nlines\\x1b\n");
}

TEST(QueryLog, GivesEachQueryTheEntriesSinceTheOneBefore) {
  QueryLog log({});
  log.Add(3, "one");
  log.Add(2, "two\n");
  const auto first = log.Take();
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(first[0].level, 3);
  EXPECT_EQ(first[0].text, "one");
  EXPECT_EQ(first[1].text, "two\n") << "only the file has escapes";
  EXPECT_EQ(log.Take().size(), 0U);
  log.Add(1, "three");
  EXPECT_EQ(log.Take().size(), 1U);
  EXPECT_NO_THROW(log.Finish());
}

// A RAID manager's log of other lines leads to an entry for each.
TEST(QueryLog, KeepsAHundredEqualEntriesInARow) {
  QueryLog log({});
  for (int count = 0; count < 1000; ++count) log.Add(1, "again");
  log.Add(2, "again");
  log.Add(1, "again");
  const auto entries = log.Take();
  ASSERT_EQ(entries.size(), 102U);
  EXPECT_EQ(entries[98].count, 1U);
  EXPECT_EQ(entries[99].count, 901U);
  EXPECT_EQ(entries[100].count, 1U);
  EXPECT_EQ(entries[101].count, 1U);
}

TEST(QueryLog, RefusesAFileThatCannotBeWritten) {
  const TemporaryFolder folder;
  try {
    const QueryLog log(folder.Path() / "missing" / "log.txt");
    ADD_FAILURE() << "was taken";
  } catch (const ProgramError& error) {
    EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
  }
}

}  // namespace
