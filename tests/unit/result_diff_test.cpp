#include "host/hxahost/diff/result_diff.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using namespace hxahost;
using Json = nlohmann::ordered_json;

void Append(Json&) {}

template <class... More>
void Append(Json& properties, const std::string& name, const Json& value, const More&... more) {
  properties[name] = value;
  Append(properties, more...);
}

// With its properties, as alternating names and values.
template <class... Given>
ResultInstance Instance(const std::string& className, const std::string& path, const Given&... given) {
  Json properties = Json::object();
  Append(properties, given...);
  return {className, path, std::move(properties)};
}

ResultInstance Disk(const std::string& path, const std::string& serial, const std::string& state = "Online") {
  return Instance("KVRSG_zxDiskDrive", path, "DeviceSerialNum", serial, "State", state);
}

ResultInstance Raw(const std::string& command, const Json& lines) {
  return Instance("KVRSG_zxRawData", command, "Command", command, "RawResults", lines);
}

ResultInstance Link(const std::string& from, const std::string& to) {
  return Instance("KVRSG_zxFirmwareOnDiskDrive", from + to, "Dependent", from, "Antecedent", to);
}

JsonResult Result(std::vector<ResultInstance> instances) { return {"M", std::move(instances)}; }

// "group kind path property old new" for each change.
std::vector<std::string> Changes(const JsonResult& before, const JsonResult& after) {
  std::vector<std::string> texts;
  for (const Change& change : CompareResults(before, after).changes) {
    std::string text =
        std::string(GroupWord(change.group)) + " " + std::string(KindWord(change.kind)) + " " + change.path;
    if (!change.newPath.empty()) text += "=" + change.newPath;
    if (!change.property.empty())
      text += " " + change.property + " " + change.before.dump() + " " + change.after.dump();
    texts.push_back(text);
  }
  return texts;
}

using Texts = std::vector<std::string>;

TEST(ResultDiff, FindsNothingBetweenEqualResults) {
  const JsonResult result = Result({Disk("a", "1"), Raw("c", {"x"}), Link("a", "b")});
  const ResultDiff diff = CompareResults(result, result);
  EXPECT_TRUE(diff.changes.empty());
  EXPECT_TRUE(diff.rawTexts.empty());
  EXPECT_TRUE(IsSame(diff));
}

TEST(ResultDiff, PutsTheWorstFirst) {
  const auto data = [](const char* errors, const char* time) {
    return Instance("KVRSG_zxSCSIDeviceData", "s", "NumHardErrors", errors, "StatisticTime", time);
  };
  const auto log = [](const char* path) { return Instance("KVRSG_LogRecord_zxDDD", path, "ID", "1"); };
  const auto disk = [](const char* state, const char* firmware) {
    return Instance("KVRSG_zxDiskDrive", "d", "Firmware", firmware, "State", state);
  };
  EXPECT_EQ(
      Changes(Result({data("1", "t1"), disk("Online", "1.0"), Disk("gone", "7"), Link("x", "y")}),
              Result({data("2", "t2"), disk("Defunct", "1.1"), Disk("new", "8"), log("l")})),
      (Texts{"disappeared disappeared gone", "state changed d State \"Online\" \"Defunct\"", "appeared appeared new",
             "property changed d Firmware \"1.0\" \"1.1\"", "log record appeared l", "link disappeared xy",
             "counter changed s NumHardErrors \"1\" \"2\"", "time changed s StatisticTime \"t1\" \"t2\""}));
}

TEST(ResultDiff, TakesACountThatFellForMoreThanACount) {
  const auto data = [](const char* errors) { return Instance("KVRSG_zxSCSIDeviceData", "s", "NumHardErrors", errors); };
  EXPECT_EQ(Changes(Result({data("5")}), Result({data("6")}))[0].substr(0, 7), "counter");
  EXPECT_EQ(Changes(Result({data("5")}), Result({data("0")}))[0].substr(0, 8), "property");
  EXPECT_EQ(Changes(Result({data("5")}), Result({data("")}))[0].substr(0, 8), "property");
}

TEST(ResultDiff, ComparesCountsHoweverLarge) {
  const auto data = [](const char* errors) { return Instance("KVRSG_zxSCSIDeviceData", "s", "NumHardErrors", errors); };
  EXPECT_EQ(Changes(Result({data("2147483647")}), Result({data("4294967296")}))[0].substr(0, 7), "counter");
  EXPECT_EQ(Changes(Result({data("5")}), Result({data("99999999999999999999")}))[0].substr(0, 7), "counter");
}

TEST(ResultDiff, TreatsResultsAsEqualThatDifferOnlyInTimesOfCollection) {
  const auto data = [](const char* time) { return Instance("KVRSG_zxSCSIDeviceData", "s", "StatisticTime", time); };
  const ResultDiff diff = CompareResults(Result({data("1")}), Result({data("2")}));
  EXPECT_EQ(diff.changes.size(), 1U);
  EXPECT_TRUE(IsSame(diff));
}

TEST(ResultDiff, DistinguishesAMissingPropertyFromAnEmptyOne) {
  const auto disk = [](const auto&... given) { return Instance("KVRSG_zxDiskDrive", "d", given...); };
  EXPECT_EQ(Changes(Result({disk("Size", "", "Old", "1")}), Result({disk("New", "")})),
            (Texts{"property changed d Size \"\" null", "property changed d Old \"1\" null",
                   "property changed d New null \"\""}));
}

TEST(ResultDiff, RecognisesADiskByItsSerialNumberIfItsPathChanged) {
  EXPECT_EQ(Changes(Result({Disk("C1 I00", "7")}), Result({Disk("C2 I00", "7", "Failed")})),
            Texts{"state changed C1 I00=C2 I00 State \"Online\" \"Failed\""});
}

TEST(ResultDiff, IgnoresSerialNumbersThatAreEmptyOrOccurTwice) {
  EXPECT_EQ(Changes(Result({Disk("a", "")}), Result({Disk("b", "")})),
            (Texts{"disappeared disappeared a", "appeared appeared b"}));
  EXPECT_EQ(Changes(Result({Disk("a", "7")}), Result({Disk("b", "7"), Disk("c", "7")})).size(), 3U);
}

TEST(ResultDiff, ShowsAnUpdateOfFirmwareAsAChangeAlthoughItsPathChanged) {
  const auto firmware = [](const std::string& version) {
    return Instance("KVRSG_zxFirmwareVersion", "F" + version, "Name", "Zentraxis1 Firmware", "Version", version,
                    "SoftwareElementID", "1");
  };
  EXPECT_EQ(Changes(Result({firmware("1")}), Result({firmware("2")})),
            Texts{"property changed F1=F2 Version \"1\" \"2\""});
}

TEST(ResultDiff, LetsLinksFollowTheirObjects) {
  EXPECT_TRUE(Changes(Result({Disk("a", "7"), Link("a", "x")}), Result({Disk("b", "7"), Link("b", "x")})).empty());
  EXPECT_EQ(Changes(Result({Disk("a", "7"), Link("a", "x")}), Result({Disk("b", "7"), Link("a", "x")})), Texts{});
  EXPECT_EQ(Changes(Result({Link("a", "x")}), Result({Link("b", "x")})),
            (Texts{"link disappeared ax", "link appeared bx"}));
}

TEST(ResultDiff, RecognisesObjectsByTheirKeysIfAnotherVersionMadePathsOfOthers) {
  const auto disk = [](const char* path, const char* id, const char* state) {
    return Instance("KVRSG_zxDiskDrive", path, "CreationClassname", "c", "DeviceID", id, "SystemName", "M", "State",
                    state);
  };
  EXPECT_EQ(Changes(Result({disk("old 1", "1", "Online"), disk("old 2", "2", "Online"), Link("x", "old 1")}),
                    Result({disk("new 2", "2", "Failed"), disk("new 1", "1", "Online"), Link("x", "new 1")})),
            Texts{"state changed old 2=new 2 State \"Online\" \"Failed\""});
}

TEST(ResultDiff, SeesALinkThatIsNoneBothWays) {
  const ResultInstance link = Link("a", "b");
  const ResultInstance none = Instance(link.className, link.path, "Dependent", "a", "Strange", "b");
  EXPECT_EQ(Changes(Result({link}), Result({none})).size(), 2U);
  EXPECT_EQ(Changes(Result({none}), Result({link})).size(), 2U);
}

TEST(ResultDiff, PairsTheSeveralOfOnePathInTheirOrder) {
  EXPECT_EQ(Changes(Result({Disk("a", "1"), Disk("a", "2")}),
                    Result({Disk("a", "1"), Disk("a", "2", "Failed"), Disk("a", "3")})),
            (Texts{"state changed a State \"Online\" \"Failed\"", "appeared appeared a"}));
}

TEST(ResultDiff, SumsUpRawTextsByCommand) {
  const ResultDiff diff = CompareResults(Result({Raw("a", {"1", "2", "2"}), Raw("b", {"x"}), Raw("same", {"y"})}),
                                         Result({Raw("a", {"2", "3", "4"}), Raw("c", {"x"}), Raw("same", {"y"})}));
  ASSERT_EQ(diff.rawTexts.size(), 3U);
  EXPECT_EQ(diff.rawTexts[0].command, "a");
  EXPECT_EQ(diff.rawTexts[0].linesGone, 2U);
  EXPECT_EQ(diff.rawTexts[0].linesNew, 2U);
  EXPECT_EQ(KindWord(diff.rawTexts[1].kind), "disappeared");
  EXPECT_EQ(KindWord(diff.rawTexts[2].kind), "appeared");
  EXPECT_FALSE(IsSame(diff));
}

}  // namespace
