#include "fuzz/support/published_input.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "collect/tool_text.h"
#include "fuzz/support/sections.h"
#include "host/hxacore/schema.h"

using namespace NKVRHXA20;

namespace {

constexpr char kFirstClass = 'A';
constexpr char kLogEntry = '@';
constexpr char kToolRun = '?';

// Returns the texts of a part, one after the other, and "" after the last.
class Texts {
 public:
  explicit Texts(std::string_view part) : texts_(Split(part, '\n')) {}

  std::string Next() { return next_ < texts_.size() ? texts_[next_++] : ""; }
  bool AreLeft() const { return next_ < texts_.size(); }

 private:
  std::vector<std::string> texts_;
  std::size_t next_ = 0;
};

TCIMValue ElementOf(ECIMType type, const std::string& text) {
  const int number = LeadingNumber(text);
  switch (type) {
    case kCIMUInt16: return static_cast<unsigned short>(number);
    case kCIMUInt32: return static_cast<unsigned>(number);
    case kCIMDateTime: {
      const auto low = static_cast<std::uint16_t>(number);
      const auto high = static_cast<std::uint32_t>(number) / 65536;
      return TCIMDateTime(low, 3, high, 12, 30, low, high, static_cast<std::int16_t>(low));
    }
    case kCIMReference: {
      const TPropertyMap keys = {
          {"DeviceID", text}
      };
      return TCIMReference(nullptr, keys);
    }
    default: return text;
  }
}

TCIMValue ValueOf(const PropertyDeclaration& property, const std::string& text) {
  if (!property.isArray) return ElementOf(property.type, text);
  std::vector<TCIMValue> elements;
  for (const std::string& element : Split(text, '\r')) elements.push_back(ElementOf(property.type, element));
  return {property.type, 0, elements};
}

// In the order of declaration; properties after the last text are not set.
void Publish(TRepository& repository, const ClassDeclaration& declaration, Texts texts) {
  const auto instance = repository.GetClass(std::string(declaration.name), {})->CreateInstance({});
  for (const PropertyDeclaration& property : declaration.properties) {
    if (!texts.AreLeft()) break;
    instance->SetProperty(std::string(property.name), ValueOf(property, texts.Next()), {});
  }
  instance->Commit({});
}

hxahost::ToolRun RunOf(Texts texts) {
  hxahost::ToolRun run;
  run.path = texts.Next();
  const std::string output = texts.Next();
  while (texts.AreLeft()) run.arguments.push_back(texts.Next());
  const hxahost::ReadAnswer answer = hxahost::ReadToolAnswer(hxahost::ToolName(run.path), run.arguments, output);
  run.bytes = output.size();
  run.outcome = answer.outcome;
  run.failure = answer.reason;
  return run;
}

}  // namespace

hxahost::QueryResult ReadPublished(const std::string& input) {
  const auto repository = TRepository::Make(std::nullopt);
  const auto classes = PublishedClasses();
  hxahost::QueryResult result;
  for (const std::string& part : Split(input, kSeparator)) {
    if (part.empty()) continue;
    const Texts texts(std::string_view(part).substr(1));
    const auto choice = static_cast<std::size_t>(static_cast<unsigned char>(part.front() - kFirstClass));
    if (part.front() == kLogEntry) {
      result.log.push_back({3, part.substr(1)});
    } else if (part.front() == kToolRun) {
      result.runs.push_back(RunOf(texts));
    } else if (choice < classes.size()) {
      Publish(*repository, classes[choice], texts);
    }
  }
  result.instances = repository->Published();
  return result;
}

hxahost::QueryHeader HeaderOf(const std::string& machine) {
  hxahost::QueryHeader header;
  header.machine = machine;
  header.directory = "/zenx";
  header.time = TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, 60);
  for (const ClassDeclaration& declaration : PublishedClasses()) header.classes.emplace_back(declaration.name);
  header.withRuns = true;
  header.withUnread = true;
  return header;
}
