#include "host/hxahost/bundle/tool_words.h"

#include <algorithm>
#include <set>
#include <string>
#include <variant>

#include "host/hxahost/bundle/folded_text.h"
#include "tools/known_tools.h"

namespace hxahost {

namespace {

// Words outside the tables of labels: states, fixed lines, the elements of logs, and folders of every machine.
constexpr std::string_view kFurtherWords =
    "abnormal asleep assigned available backup bad bar battery bios blk blocked boot building busy charged charging "
    "clearing command complete completed configuration controller controllers crm crt csy data dead defunct degraded "
    "dhs dedicated description device disabled discharging disk drive drives emp empty enabled enclosure err error "
    "errors event events expanding fail failed failure fat fatal firmware flash for found foreign fre free full get "
    "global group hard hardware has hot hsp impacted inf information initializing initiated installed kvr ldm log "
    "logical low manager media migrating migration missing model name none normal not number off offline ofl oky okay "
    "on onl online operator optimal other physical present problem processor raid raidevta raw rbl rdy ready rebuild "
    "rebuilding removed replaced reset sas sata sby scsi segment server shs size smart soft spare standby started "
    "state status stopped suboptimal successfully sys system synchronizing tape target temperature time unconfigured "
    "unknown unread user verifying warning windows wrn yes zentraxis zenx zxm "
    "arcconf hrconf qcmdrun exe "
    "channelid controllerid controllerlog dead deaddrive deviceid driveerrorentry failurereason failurereasoncode "
    "hwerrors mediumerrors numparityerrors productid serialnumber smartwarning text type vendorid "
    "bin documents files home lib opt program programdata root srv tmp tools users usr var";

bool IsOfWord(char character) {
  return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
         static_cast<unsigned char>(character) >= 0x80;
}

template <class Call>
void ForEachWord(std::string_view folded, const Call& call) {
  while (true) {
    const auto begin = std::ranges::find_if(folded, IsOfWord);
    folded.remove_prefix(static_cast<std::size_t>(begin - folded.begin()));
    if (folded.empty()) return;
    const auto end = std::ranges::find_if_not(folded, IsOfWord);
    const auto length = static_cast<std::size_t>(end - folded.begin());
    call(folded.substr(0, length));
    folded.remove_prefix(length);
  }
}

std::set<std::string, std::less<>> MakeWords() {
  std::set<std::string, std::less<>> words;
  const auto add = [&words](std::string_view text) {
    const std::string folded = FoldCase(text);
    ForEachWord(folded, [&words](std::string_view word) { words.emplace(word); });
  };
  add(kFurtherWords);
  for (const KnownTool& tool : kKnownTools) {
    for (const AnswerLabels& answer : tool.labels) {
      add(answer.section.start);
      add(answer.section.end);
      std::visit(
          [&add](const auto& table) {
            for (const auto& row : table) add(row.label);
          },
          answer.labels);
    }
    for (const ModelName& model : tool.models) add(model.name);
  }
  return words;
}

const std::set<std::string, std::less<>>& Words() {
  static const auto words = MakeWords();
  return words;
}

}  // namespace

bool HasToolWordsAlone(std::string_view folded) {
  bool areAll = true;
  ForEachWord(folded, [&areAll](std::string_view word) { areAll = areAll && Words().contains(word); });
  return areAll;
}

bool IsPartOfToolWord(std::string_view folded) {
  return std::ranges::any_of(Words(), [folded](const std::string& word) { return word.find(folded) != word.npos; });
}

}  // namespace hxahost
