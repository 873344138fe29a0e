#include "host/hxahost/views/views.h"

#include <algorithm>
#include <iterator>

#include "host/hxahost/views/cim/cim_xml_view.h"
#include "host/hxahost/views/report/html_view.h"
#include "host/hxahost/views/json/json_view.h"
#include "host/hxahost/views/cim/mof_view.h"
#include "host/hxahost/views/tables/table_view.h"

namespace hxahost {

namespace {

constexpr View kViews[] = {
    {"table",   BeginTables, WriteQueryTables, EndTables},
    {"json",    BeginJson,   WriteQueryJson,   EndJson  },
    {"html",    BeginHtml,   WriteQueryHtml,   EndHtml  },
    {"cim-xml", BeginCimXml, WriteQueryCimXml, EndCimXml},
    {"mof",     BeginMof,    WriteQueryMof,    EndMof   },
};

}  // namespace

std::span<const View> Views() { return kViews; }

const View* FindView(std::string_view format) {
  const auto* const view = std::ranges::find(kViews, format, &View::format);
  return view == std::end(kViews) ? nullptr : view;
}

}  // namespace hxahost
