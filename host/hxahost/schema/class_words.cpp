#include "host/hxahost/schema/class_words.h"

#include <algorithm>

#include "host/hxacore/schema.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/nearest_word.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

struct PlainWord {
  std::string_view word;
  std::string_view className;
};

// A word may have several rows, one for each class.
constexpr PlainWord kPlainWords[] = {
    {"controllers", kControllerClass              },
    {"drives",      kLogicalDiskClass             },
    {"groups",      kDiskGroupClass               },
    {"disks",       kDiskDriveClass               },
    {"events",      "KVRSG_LogRecord_SoftEvent"   },
    {"events",      "KVRSG_LogRecord_zxDDD"       },
    {"events",      "KVRSG_LogRecord_HardEvent"   },
    {"events",      "KVRSG_LogRecord_RAIDMgrEvent"},
    {"versions",    "KVRSG_zxFirmwareVersion"     },
    {"versions",    "KVRSG_zxBootBlockVersion"    },
    {"versions",    "KVRSG_zxDiskDriveVersion"    },
    {"versions",    "KVRSG_zxBiosVersion"         },
};

// "logrecord_ddd" of "KVRSG_LogRecord_zxDDD".
std::string ShortName(std::string_view name) {
  std::string text = Lower(name);
  for (const std::string_view part : {"kvrsg_", "zx"}) {
    const std::size_t begin = text.find(part);
    if (begin != text.npos) text.erase(begin, part.size());
  }
  return text;
}

[[noreturn]] void RejectClass(std::string_view word) {
  std::vector<std::string> known = ClassWords();
  for (const ClassDeclaration& declaration : PublishedClasses()) known.push_back(ShortName(declaration.name));
  const std::string meant = NearestWord(ShortName(word), known);
  throw ProgramError(ExitStatus::kWrongArguments, "--class " + Printable(word) + " is not known: " +
                                                      (meant.empty() ? "" : "did you mean " + meant + "? ") +
                                                      "\"hxahost classes\" lists what there is.");
}

}  // namespace

std::vector<std::string> ClassWords() {
  std::vector<std::string> words;
  for (const PlainWord& row : kPlainWords) {
    if (words.empty() || words.back() != row.word) words.emplace_back(row.word);
  }
  return words;
}

std::vector<std::string> ClassesCalled(std::string_view word) {
  if (const ClassDeclaration* const declaration = FindClass(word)) return {std::string(declaration->name)};
  const std::string sought = ShortName(word);
  std::vector<std::string> names;
  for (const PlainWord& row : kPlainWords) {
    if (row.word == sought) names.emplace_back(row.className);
  }
  if (!names.empty()) return names;
  // If two classes have the same short name, the plug-in publishes the first.
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    if (ShortName(declaration.name) == sought) return {std::string(declaration.name)};
  }
  RejectClass(word);
}

}  // namespace hxahost
