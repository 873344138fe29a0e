#include "host/hxahost/bundle/bundle_mask.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "host/hxahost/bundle/addresses.h"
#include "host/hxahost/bundle/folded_text.h"
#include "host/hxahost/bundle/secrets.h"
#include "host/hxahost/bundle/tool_words.h"

namespace hxahost {

namespace {

bool IsLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }
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

std::size_t EndOf(const Span& span) { return span.begin + span.length; }

// The length of what remains of the span at the place.
std::size_t LengthFrom(std::size_t place, const Span& span) { return span.begin <= place ? EndOf(span) - place : 0; }

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
  void LearnRaidLog(std::string_view text) { Learn(text, FindInRaidLog(text, scope_)); }

  // The folder and its parts, except parts that consist of words of the tools, because these occur everywhere.
  void LearnFolder(std::string_view folder) {
    Learn(WithoutLastSlashes(folder));
    ForEachPart(folder, [&](const Span& part) {
      const std::string_view name = folder.substr(part.begin, part.length);
      if (!HasToolWordsAlone(FoldCase(name))) Learn(name);
    });
  }

  // A name with a domain also occurs without it, and the domain without the name. Numbers alone are an address.
  void LearnMachine(std::string_view machine) {
    Learn(machine);
    if (std::ranges::none_of(machine, IsLetter)) return;
    for (std::size_t dot = machine.find('.'); dot != machine.npos; dot = machine.find('.')) {
      Learn(machine.substr(0, dot));
      machine.remove_prefix(dot + 1);
      Learn(machine);
    }
  }

  void SortSecrets() { secrets_.Sort(); }

  // Masks each part of a path separately, so that longer paths begin with the same masked folder.
  std::string Masked(std::string_view secret) {
    std::string masked(secret);
    ForEachPart(secret, [&](const Span& part) {
      masked.replace(part.begin, part.length, mask_.Mask(secret.substr(part.begin, part.length)));
    });
    return masked;
  }

  void MaskWhole(std::string& secret) { secret = Masked(secret); }

  void MaskText(std::string& text, const SecretPlaces& places) {
    const std::vector<Span> addresses = FindAddresses(text);
    auto value = places.secrets.begin();
    auto address = addresses.begin();
    auto prose = places.prose.begin();
    std::string masked;
    while (masked.size() < text.size()) {
      const std::size_t place = masked.size();
      value = SkipBefore(value, places.secrets.end(), place);
      address = SkipBefore(address, addresses.end(), place);
      prose = SkipBefore(prose, places.prose.end(), place);
      const bool isProse = prose != places.prose.end() && prose->begin <= place;
      const Span rest = {text.size(), 0};
      const Span& next = value == places.secrets.end() ? rest : *value;
      std::size_t length = LengthFrom(place, next);
      if (length == 0) {
        length = LengthFrom(place, address == addresses.end() ? rest : *address);
        length = std::min(LengthWithNames(text, place, length, isProse), next.begin - place);
      }
      if (length == 0) {
        masked += text[place];
      } else {
        masked += Masked(std::string_view(text).substr(place, length));
      }
    }
    text = std::move(masked);
  }

  void MaskToolText(std::string& text) { MaskText(text, FindInToolText(text, scope_)); }
  void MaskRaidLog(std::string& text) { MaskText(text, FindInRaidLog(text, scope_)); }

  // A sentence of the system or the host.
  void MaskProse(std::string& text) { MaskText(text, {{}, {{0, text.size()}}}); }

  // A path that may begin with the folder, with either kind of slash between its parts.
  void MaskPath(std::string& path, std::string_view folder) {
    const std::string_view start = WithoutLastSlashes(folder);
    const bool isInFolder = FoldCase(path).starts_with(FoldCase(start));
    MaskText(path, isInFolder ? SecretPlaces{{{0, start.size()}}, {}} : SecretPlaces{});
  }

 private:
  // The length of what is masked at the place: an address of that length, and the names that begin in it.
  std::size_t LengthWithNames(std::string_view text, std::size_t place, std::size_t length, bool isProse) const {
    std::size_t end = place + secrets_.LengthAt(text, place, isProse);
    while (end < place + length) end += std::max<std::size_t>(secrets_.LengthAt(text, end, isProse), 1);
    return end - place;
  }

  Secrets secrets_;
  TextMask mask_;
  MaskScope scope_;
};

void LearnAll(const Bundle& bundle, Masking& masking) {
  masking.LearnMachine(bundle.machine);
  masking.LearnFolder(bundle.directory);
  if (bundle.raidLogDir) masking.LearnFolder(*bundle.raidLogDir);
  for (const RecordedRun& run : bundle.runs) masking.LearnToolText(run.result.output);
  if (bundle.raidLog) masking.LearnRaidLog(bundle.raidLog->bytes);
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
  masking.MaskRaidLog(log.bytes);
  masking.MaskPath(log.path, folder.value_or(""));
  if (log.failure) masking.MaskProse(log.failure->message);
  return bundle;
}

}  // namespace hxahost
