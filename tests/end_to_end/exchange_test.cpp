// Outputs for CIM repositories are the same, byte for byte, on both systems. They are compared by sizes and checksums,
// as they are long. Independent readers read them natively (tests/exchange). To renew the checksums, run this test
// natively with ZENX_RENEW_GOLDEN=1 in the environment, after those readers have passed.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <boost/crc.hpp>

#include "tests/support/hxahost_run.h"
#include "tests/support/same_lines.h"

namespace {

std::string Output(const std::vector<std::string>& arguments) {
  const ProgramResult result = RunHxahost(arguments);
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  return result.out;
}

std::string QueryOutput(const std::string& format) {
  return Output({"query", "--format", format, "--replay", RecordedSampleMachine()});
}

std::string Line(const std::string& name, const std::string& text) {
  boost::crc_32_type checksum;
  checksum.process_bytes(text.data(), text.size());
  return name + ": " + std::to_string(text.size()) + " bytes, CRC " + std::to_string(checksum.checksum()) + "\n";
}

TEST(Exchange, IsTheSameOnBothSystems) {
  const std::string actual = Line("cim-xml", QueryOutput("cim-xml")) + Line("mof", QueryOutput("mof")) +
                             Line("schema mof", Output({"schema"})) +
                             Line("schema markdown", Output({"schema", "--format", "markdown"}));
  EXPECT_TRUE(IsGolden("exchange.txt", actual));
}

}  // namespace
