#include "fuzz/support/parser_trial.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "collect/ascii_text.h"
#include "fuzz/support/adapter_trial.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/record_texts.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "plugin/host_interface/services.h"
#include "tests/support/record_fields.h"
#include "tests/support/tool_text.h"

namespace {

using Controller = std::shared_ptr<ZenxController>;

// Parsers log the text that they skip; it is dropped here.
class NoLog : public NKVRHXA20::ILogger {
  void Log(int, const std::string&) override {}
};

Controller Read(const ReportParser& parser, std::string_view report) {
  static NoLog log;
  auto controller = std::make_shared<ZenxController>(&log);
  controller->ControllerNum = "1";
  parser.read(*controller, report);
  return controller;
}

template <class Record>
bool AreEqual(const Record& left, const Record& right) {
  return std::ranges::all_of(FieldsOf(left),
                             [&](const auto& field) { return left.*field.field == right.*field.field; });
}

// The last record before the cut may be incomplete.
template <class Record>
void RequireBeginning(const std::vector<std::shared_ptr<Record>>& cut,
                      const std::vector<std::shared_ptr<Record>>& whole) {
  Require(cut.size() <= whole.size(), "an incomplete report produces no more records");
  for (std::size_t index = 0; index + 1 < cut.size(); ++index) {
    Require(AreEqual(*cut[index], *whole[index]), "a record before the cut does not change");
  }
}

void TryCutOff(const ReportParser& parser, std::string_view report, const ZenxController& whole) {
  if (report.empty()) return;
  const auto place = report.size() * static_cast<unsigned char>(report.back()) / 256;
  const std::string_view beginning = report.substr(0, report.rfind('\n', place) + 1);  // only whole lines count
  if (Contains(beginning, parser.decidingHeading) != Contains(report, parser.decidingHeading)) return;
  const Controller cut = Read(parser, beginning);
  RequireBeginning(cut->LogicalDevices, whole.LogicalDevices);
  RequireBeginning(cut->PhysicalDevices, whole.PhysicalDevices);
  RequireBeginning(cut->StripeOrders, whole.StripeOrders);
}

// Every label contains a letter.
std::string WithoutLetters(std::string_view text) {
  std::string junk;
  std::ranges::copy_if(text, std::back_inserter(junk),
                       [](char character) { return std::isalpha(static_cast<unsigned char>(character)) == 0; });
  return junk;
}

std::vector<std::string> WithLineEnds(std::span<const std::string_view> sections) {
  std::vector<std::string> texts;
  std::ranges::transform(sections, std::back_inserter(texts), CrLf);
  return texts;
}

std::string Between(const std::string& junk, const std::vector<std::string>& sections) {
  std::string report = junk;
  for (const std::string& section : sections) report.append(section).append(junk);
  return report;
}

void TryJunk(const ReportParser& parser, std::string_view text) {
  static const std::vector<std::string> sections = WithLineEnds(parser.sections);
  static const std::string alone = TextOf({Read(parser, Between("", sections))}, {});
  const std::string junk = WithoutLetters(text.substr(0, 256)) + "\r\n";
  const Controller controller = Read(parser, Between(junk, sections));
  Require(TextOf({controller}, {}) == alone, "junk around sections does not change their records", junk);
}

}  // namespace

void TryParser(const ReportParser& parser, std::string_view report) {
  const Controller controller = Read(parser, report);
  RequireProvenance({controller}, std::string(report), parser.ownWords);
  const auto lines = static_cast<std::size_t>(std::ranges::count(report, '\n'));
  Require(controller->LogicalDevices.size() <= lines && controller->PhysicalDevices.size() <= lines &&
              controller->StripeOrders.size() <= lines,
          "no line gives two records of a kind");
  // Only one of the two for each input: twice as many inputs find more than both checks.
  return report.size() % 2 == 0 ? TryJunk(parser, report) : TryCutOff(parser, report, *controller);
}

std::size_t MutateAroundSections(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed,
                                 std::span<const std::string_view> sections) {
  std::minstd_rand random(seed);
  const std::string section = CrLf(sections[random() % sections.size()]);
  if (random() % 8 != 0 || size + section.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  const std::string_view text = AsText(data, size);
  const std::size_t lineEnd = text.find('\n', random() % (size + 1));
  const std::size_t place = lineEnd == text.npos ? 0 : lineEnd + 1;
  std::copy_backward(data + place, data + size, data + size + section.size());
  std::ranges::copy(section, data + place);
  return size + section.size();
}
