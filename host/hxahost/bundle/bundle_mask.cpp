#include "host/hxahost/bundle/bundle_mask.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "host/hxahost/bundle/addresses.h"
#include "host/hxahost/bundle/secrets.h"
#include "host/hxahost/bundle/tool_words.h"

namespace hxahost {

namespace {

bool IsSlash(char character) { return character == '/' || character == '\\'; }

std::string_view WithoutLastSlashes(std::string_view folder) {
  while (!folder.empty() && IsSlash(folder.back())) folder.remove_suffix(1);
  return folder;
}

// Calls back with each part of a path; a text without slashes is one part.
template <class Call>
void ForEachPart(std::string_view path, const Call& call) {
  for (std::size_t begin = 0; begin < path.size();) {
    const auto* const slash = std::find_if(path.begin() + begin, path.end(), IsSlash);
    const auto end = static_cast<std::size_t>(slash - path.begin());
    call(Span{begin, end - begin});
    begin = end + 1;
  }
}

// Secrets at their places and addresses by their form, in the order of the text. They may overlap.
std::vector<Span> SecretSpans(std::string_view text, const SecretPlaces& places) {
  std::vector<Span> spans = FindAddresses(text);
  spans.insert(spans.end(), places.secrets.begin(), places.secrets.end());
  std::ranges::sort(spans, {}, &Span::begin);
  return spans;
}

std::size_t EndOf(const Span& span) { return span.begin + span.length; }

// The first of the remaining spans that ends after the place.
template <class Iterator>
Iterator SkipBefore(Iterator span, Iterator end, std::size_t place) {
  return std::find_if(span, end, [place](const Span& each) { return EndOf(each) > place; });
}

class Masking {
 public:
  Masking(RandomSource random, MaskScope scope) : mask_(std::move(random)), scope_(scope) {}

  void Learn(std::string_view secret) { secrets_.Add(secret); }
  void Learn(std::string_view text, const SecretPlaces& places) {
    for (const Span& span : places.secrets) secrets_.Add(text.substr(span.begin, span.length));
  }
  void LearnToolText(std::string_view text) { Learn(text, FindInToolText(text, scope_)); }

  // The folder and its parts, except parts that consist of words of the tools, because these occur everywhere.
  void LearnFolder(std::string_view folder) {
    Learn(WithoutLastSlashes(folder));
    ForEachPart(folder, [&](const Span& part) {
      const std::string_view name = folder.substr(part.begin, part.length);
      if (!HasToolWordsAlone(FoldCase(name))) Learn(name);
    });
  }

  // A name with a domain also occurs without it.
  void LearnMachine(std::string_view machine) {
    Learn(machine);
    Learn(machine.substr(0, machine.find('.')));
  }

  void SortSecrets() { secrets_.Sort(); }

  // Masks each part of a path separately, so that longer paths begin with the same masked folder.
  void MaskWhole(std::string& secret) {
    const std::string original = secret;
    ForEachPart(original, [&](const Span& part) {
      secret.replace(part.begin, part.length, mask_.Mask(original.substr(part.begin, part.length)));
    });
  }

  void MaskText(std::string& text, const SecretPlaces& places) {
    const std::string original = text;
    const std::string folded = FoldCase(text);
    const std::vector<Span> spans = SecretSpans(original, places);
    auto next = spans.begin();
    auto prose = places.prose.begin();
    for (std::size_t place = 0; place < original.size();) {
      next = SkipBefore(next, spans.end(), place);
      prose = SkipBefore(prose, places.prose.end(), place);
      const std::size_t nextBegin = next == spans.end() ? original.size() : next->begin;
      const bool isProse = prose != places.prose.end() && prose->begin <= place;
      const std::size_t length = nextBegin <= place
                                     ? EndOf(*next) - place
                                     : std::min(secrets_.LengthAt(original, folded, place, isProse), nextBegin - place);
      if (length > 0) {
        std::string secret = original.substr(place, length);
        MaskWhole(secret);
        text.replace(place, length, secret);
      }
      place += std::max<std::size_t>(length, 1);
    }
  }

  void MaskToolText(std::string& text) { MaskText(text, FindInToolText(text, scope_)); }

  // A sentence of the system or the host.
  void MaskProse(std::string& text) { MaskText(text, {{}, {{0, text.size()}}}); }

  // A path that may begin with the folder, with either kind of slash between its parts.
  void MaskPath(std::string& path, std::string_view folder) {
    const std::string_view start = WithoutLastSlashes(folder);
    const bool isInFolder = FoldCase(path).starts_with(FoldCase(start));
    MaskText(path, isInFolder ? SecretPlaces{{{0, start.size()}}, {}} : SecretPlaces{});
  }

 private:
  Secrets secrets_;
  TextMask mask_;
  MaskScope scope_;
};

void LearnAll(const Bundle& bundle, Masking& masking) {
  masking.LearnMachine(bundle.machine);
  masking.LearnFolder(bundle.directory);
  if (bundle.raidLogDir) masking.LearnFolder(*bundle.raidLogDir);
  for (const RecordedRun& run : bundle.runs) masking.LearnToolText(run.result.output);
  if (bundle.raidLog) masking.Learn(bundle.raidLog->bytes, FindInRaidLog(bundle.raidLog->bytes));
  masking.SortSecrets();
}

void MaskRun(RecordedRun& run, Masking& masking) {
  masking.MaskToolText(run.result.output);
  if (run.failure) masking.MaskProse(run.failure->message);
}

}  // namespace

Bundle MaskBundle(Bundle bundle, RandomSource random, MaskScope scope) {
  Masking masking(std::move(random), scope);
  LearnAll(bundle, masking);
  const std::optional<std::string> folder = bundle.raidLogDir;
  bundle.isMasked = true;
  masking.MaskWhole(bundle.machine);
  masking.MaskWhole(bundle.directory);
  if (bundle.raidLogDir) masking.MaskWhole(*bundle.raidLogDir);
  for (RecordedRun& run : bundle.runs) MaskRun(run, masking);
  if (!bundle.raidLog) return bundle;
  RecordedLog& log = *bundle.raidLog;
  masking.MaskText(log.bytes, FindInRaidLog(log.bytes));
  masking.MaskPath(log.path, folder.value_or(""));
  if (log.failure) masking.MaskProse(log.failure->message);
  return bundle;
}

}  // namespace hxahost
