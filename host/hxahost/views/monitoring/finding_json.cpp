#include "host/hxahost/views/monitoring/finding_json.h"

#include "host/hxahost/text/utf8.h"

namespace hxahost {

nlohmann::ordered_json FindingJson(const Finding& finding) {
  return {
      {"severity",   SeverityWord(finding.severity)},
      {"class",      finding.className             },
      {"identifier", AsUtf8(finding.identifier)    },
      {"name",       AsUtf8(finding.name)          },
      {"property",   finding.property              },
      {"text",       AsUtf8(finding.text)          },
      {"meaning",    TextOf(finding.meaning)       },
  };
}

}  // namespace hxahost
