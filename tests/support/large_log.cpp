#include "tests/support/large_log.h"

#include <fmt/core.h>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"

std::string LargeLog(int events) {
  std::string text;
  for (int event = 0; event < events; ++event) {
    text += fmt::format("2007/03/{} 08:{}:09 PST\tINF\tSERVER\tEvent {} of controller 3, channel 1, SCSI ID 4.\r\n",
                        10 + event % 20, 10 + event % 50, event);
  }
  return text;
}

std::string WriteLargeLogBundle(const TemporaryFolder& folder, int events) {
  hxahost::Bundle bundle = hxahost::ReadBundleFile(hxahost::PathFromUtf8(RecordedSampleMachine()));
  bundle.raidLog->bytes = LargeLog(events);
  return hxahost::Utf8FromPath(folder.Write("large.bundle", hxahost::WriteBundle(bundle)));
}
