#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/services.h"
#include "tests/support/filled_fields.h"
#include "tests/support/sample_text.h"
#include "tools/arcconf/arcconf_adapter.h"
#include "tools/hrconf/hrconf_adapter.h"

// Reports of the sample machine, cut off anywhere: the records contain everything before the cut, and nothing else.
namespace {

using NKVRHXA20::HostServices;
using NKVRHXA20::RealServices;
using NKVRHXA20::SetServices;
using NKVRHXA20::TRootObject;

// The records that an adapter makes of one report. The recording pass receives the answer that there is no such
// controller, so that reports can be tried by the thousand.
template <class Adapter>
ControllerList Collect(const std::string& report) {
  int asked = 0;
  HostServices services = RealServices();
  services.spawn = [&](const std::string&, const std::vector<std::string>& arguments, int) -> std::string {
    if (arguments[0] != "getconfig") return "";
    if (arguments[1] != "1") return "Controllers found: 0\r\n";
    return ++asked == 1 ? "Invalid controller number\r\n" : report;
  };
  SetServices(services);
  Adapter adapter(TRootObject::GetCoreLogger());
  adapter.Collect(0);
  SetServices(RealServices());
  return adapter.GetControllers();
}

struct Report {
  const char* name;
  ControllerList (*collect)(const std::string& report);
};

std::ostream& operator<<(std::ostream& out, const Report& report) { return out << report.name; }

class CutOffReport : public testing::TestWithParam<Report> {
 protected:
  const std::string text_ = SampleAnswer(GetParam().name);
  const ControllerList full_ = Collect(text_);

  static ControllerList Collect(std::string_view text) { return GetParam().collect(std::string(text)); }
};

// The lines of the text that contain the label.
std::size_t Count(std::string_view text, std::string_view label) {
  std::size_t count = 0;
  for (std::size_t at = text.find(label); at != text.npos; at = text.find(label, at + 1)) ++count;
  return count;
}

// A value of several lines is there up to the cut.
bool BeginsWith(const std::string& full, const std::string& part) {
  const std::size_t last = part.find_last_not_of("\r\n");
  return full.starts_with(part.substr(0, last == part.npos ? 0 : last + 1));
}

template <class Record>
void ExpectPieceOf(const Record& full, const Record& part, std::string_view cut) {
  for (const auto& [name, field] : FieldsOf(full)) {
    EXPECT_TRUE(BeginsWith(full.*field, part.*field)) << name << " after " << cut.substr(cut.size() - 60);
  }
}

// The records of a part of the report are the first of the full report's, and of them only the last may be incomplete.
template <class Record>
void ExpectFirstOf(const std::vector<std::shared_ptr<Record>>& full, const std::vector<std::shared_ptr<Record>>& part,
                   bool isComplete, std::string_view cut) {
  ASSERT_LE(part.size(), full.size());
  for (std::size_t index = 0; index < part.size(); ++index) {
    if (isComplete || index + 1 < part.size()) {
      EXPECT_EQ(FilledFields(*part[index]), FilledFields(*full[index])) << "after " << cut.substr(cut.size() - 60);
    } else {
      ExpectPieceOf(*full[index], *part[index], cut);
    }
  }
}

// Whether a line begins or ends an object, so that everything before it is complete.
bool IsBoundary(std::string_view rest) {
  const std::string_view line = rest.substr(0, rest.find('\n') + 1);
  return line.starts_with("\r\n") || line.starts_with("Logical drive number") || line.find("Device #") != line.npos;
}

TEST_P(CutOffReport, ContainsEverythingBeforeACutAfterEachLine) {
  ASSERT_EQ(full_.size(), 1u);
  const ZenxController& whole = *full_[0];
  ASSERT_EQ(whole.LogicalDevices.size(), Count(text_, "Logical drive number"));
  ASSERT_EQ(whole.PhysicalDevices.size(), Count(text_, "Device #"));
  for (std::size_t end = text_.find('\n'); end != text_.npos; end = text_.find('\n', end + 1)) {
    const std::string_view cut(text_.data(), end + 1);
    const ControllerList found = Collect(cut);
    ASSERT_EQ(found.size(), Count(cut, "Controller information")) << cut;
    if (found.empty()) continue;
    const ZenxController& part = *found[0];
    EXPECT_EQ(part.LogicalDevices.size(), Count(cut, "Logical drive number"));
    EXPECT_EQ(part.PhysicalDevices.size(), Count(cut, "Device #"));
    EXPECT_EQ(part.StripeOrders.size(), whole.StripeOrders.empty() ? 0 : Count(cut, "Stripe order"));
    const bool isComplete = IsBoundary(std::string_view(text_).substr(end + 1));
    ExpectFirstOf(whole.LogicalDevices, part.LogicalDevices, isComplete, cut);
    ExpectFirstOf(whole.StripeOrders, part.StripeOrders, isComplete, cut);
    ExpectFirstOf(whole.PhysicalDevices, part.PhysicalDevices, isComplete, cut);
  }
}

INSTANTIATE_TEST_SUITE_P(SampleMachine, CutOffReport,
                         testing::Values(Report{"arcconf/1/getconfig-al", Collect<ArcconfData>},
                                         Report{"arcconf/2/getconfig-al", Collect<ArcconfData>},
                                         Report{"hrconf_64/1/getconfig-al", Collect<HrconfData>}));

TEST(CutOffVersions, ContainEverythingBeforeTheCut) {
  const std::string config = SampleAnswer("hrconf_64/1/getconfig-al");
  const std::string answer = SampleAnswer("hrconf_64/1/getversion");
  const std::size_t bios = answer.find('\n', answer.find("BIOS"));
  const std::size_t driver = answer.find('\n', answer.find("Driver"));
  for (std::size_t end = 0; end <= answer.size(); ++end) {
    HostServices services = RealServices();
    services.spawn = [&](const std::string&, const std::vector<std::string>& arguments, int) -> std::string {
      if (arguments[1] != "1") return "Controllers found: 0\r\n";
      return arguments[0] == "getconfig" ? config : answer.substr(0, end);
    };
    SetServices(services);
    HrconfData hrconf(TRootObject::GetCoreLogger(), [] { return OsVersion{true, 5, 2}; });
    hrconf.Collect(0);
    SetServices(RealServices());
    ASSERT_EQ(hrconf.GetControllers().size(), 1u);
    EXPECT_EQ(hrconf.GetControllers()[0]->BiosVersion, end > bios ? " 4.2-1 (8710)\r\n" : "") << end;
    EXPECT_EQ(hrconf.GetControllers()[0]->DeviceDriverVersion, end > driver ? " 4.2-1 (8722)\r\n" : "") << end;
  }
}

}  // namespace
