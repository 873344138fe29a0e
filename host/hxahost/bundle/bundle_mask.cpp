#include "host/hxahost/bundle/bundle_mask.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

namespace hxahost {

namespace {

// Shorter texts say nothing, and stand everywhere.
constexpr std::size_t kShortestQuoted = 3;
// From this length on, a text of letters and digits is no word of any tool.
constexpr std::size_t kShortestUnmistakable = 6;

bool IsWordCharacter(char character) { return std::isalnum(static_cast<unsigned char>(character)) != 0; }

bool IsUnmistakable(std::string_view secret) {
  const auto is = [](int (*kind)(int)) {
    return [kind](char character) { return kind(static_cast<unsigned char>(character)) != 0; };
  };
  return secret.size() >= kShortestUnmistakable && std::ranges::any_of(secret, is(std::isdigit)) &&
         std::ranges::any_of(secret, is(std::isalpha));
}

bool IsInside(const Span& inner, const std::vector<Span>& outer) {
  return std::ranges::any_of(outer, [&inner](const Span& each) {
    return inner.begin >= each.begin && inner.begin + inner.length <= each.begin + each.length;
  });
}

// Whether the piece is a word, or some, of the text.
bool StandsAlone(std::string_view text, const Span& span) {
  const std::size_t end = span.begin + span.length;
  const bool goesOnBefore =
      span.begin > 0 && IsWordCharacter(text[span.begin]) && IsWordCharacter(text[span.begin - 1]);
  const bool goesOnBehind = end < text.size() && IsWordCharacter(text[end - 1]) && IsWordCharacter(text[end]);
  return !goesOnBefore && !goesOnBehind;
}

// All secrets of a bundle, and where they are quoted.
class Secrets {
 public:
  void Add(std::string_view secret) {
    if (secret.size() < kShortestQuoted) return;
    const std::string folded = FoldCase(secret);
    byStart_[folded.substr(0, kShortestQuoted)].insert(folded);
  }

  // The longest secret that is quoted at this place of the text.
  std::optional<Span> QuotedAt(std::string_view text, std::string_view folded, std::size_t place,
                               const std::vector<Span>& prose) const {
    const auto found = byStart_.find(std::string(folded.substr(place, kShortestQuoted)));
    if (found == byStart_.end()) return std::nullopt;
    std::optional<Span> longest;
    for (const std::string& secret : found->second) {
      const Span span{place, secret.size()};
      if (folded.substr(place, secret.size()) != secret || (longest && longest->length > span.length)) continue;
      if (IsUnmistakable(secret) || (IsInside(span, prose) && StandsAlone(text, span))) longest = span;
    }
    return longest;
  }

 private:
  std::map<std::string, std::set<std::string>> byStart_;  // in lower case, by their first characters
};

class Masking {
 public:
  Masking(RandomSource random, MaskScope scope) : mask_(std::move(random)), scope_(scope) {}

  void Learn(std::string_view secret) { secrets_.Add(secret); }
  void Learn(std::string_view text, const SecretPlaces& places) {
    for (const Span& span : places.secrets) secrets_.Add(text.substr(span.begin, span.length));
  }
  void LearnToolText(std::string_view text) { Learn(text, FindInToolText(text, scope_)); }

  void MaskWhole(std::string& secret) { secret = mask_.Mask(secret); }

  void MaskText(std::string& text, const SecretPlaces& places) {
    const std::string original = text;
    const std::string folded = FoldCase(text);
    auto next = places.secrets.begin();
    for (std::size_t place = 0; place < original.size();) {
      while (next != places.secrets.end() && next->begin < place) ++next;
      const bool isSecret = next != places.secrets.end() && next->begin == place;
      const auto span = isSecret ? std::optional(*next) : secrets_.QuotedAt(original, folded, place, places.prose);
      if (!span) {
        ++place;
        continue;
      }
      text.replace(span->begin, span->length, mask_.Mask(original.substr(span->begin, span->length)));
      place += span->length;
    }
  }

  void MaskToolText(std::string& text) { MaskText(text, FindInToolText(text, scope_)); }

  // A sentence of the system or the host.
  void MaskProse(std::string& text) { MaskText(text, {{}, {{0, text.size()}}}); }

 private:
  Secrets secrets_;
  TextMask mask_;
  MaskScope scope_;
};

// The folder that the path begins with is masked as it is on its own, whichever slashes separate its parts.
void MaskFolder(std::string& path, std::string_view folder, std::string_view maskedFolder) {
  for (std::size_t index = 0; index < std::min(folder.size(), path.size()); ++index) {
    if (path[index] == folder[index]) path[index] = maskedFolder[index];
  }
}

void LearnAll(const Bundle& bundle, Masking& masking) {
  masking.Learn(bundle.machine);
  masking.Learn(bundle.directory);
  for (const RecordedRun& run : bundle.runs) masking.LearnToolText(run.result.output);
  if (bundle.raidLog) masking.Learn(bundle.raidLog->bytes, FindInRaidLog(bundle.raidLog->bytes));
}

void MaskRun(RecordedRun& run, Masking& masking) {
  masking.MaskToolText(run.result.output);
  if (run.failure) masking.MaskProse(run.failure->message);
}

}  // namespace

Bundle MaskBundle(const Bundle& bundle, RandomSource random, MaskScope scope) {
  Bundle masked = bundle;
  Masking masking(std::move(random), scope);
  LearnAll(bundle, masking);
  masked.isMasked = true;
  masking.MaskWhole(masked.machine);
  masking.MaskWhole(masked.directory);
  if (masked.raidLogDir) masking.MaskWhole(*masked.raidLogDir);
  for (RecordedRun& run : masked.runs) MaskRun(run, masking);
  if (!masked.raidLog) return masked;
  RecordedLog& log = *masked.raidLog;
  masking.MaskText(log.bytes, FindInRaidLog(log.bytes));
  if (bundle.raidLogDir) MaskFolder(log.path, *bundle.raidLogDir, *masked.raidLogDir);
  if (log.failure) masking.MaskProse(log.failure->message);
  return masked;
}

}  // namespace hxahost
