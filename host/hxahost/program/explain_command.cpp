#include "host/hxahost/program/explain_command.h"

#include <algorithm>

#include "host/hxahost/machine/object_search.h"
#include "host/hxahost/program/query_command.h"
#include "host/hxahost/proof/proof.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/tables/explain_view.h"

namespace hxahost {

namespace {

// The objects by their handles; objects that share a handle, by unique names.
std::string ListOf(const std::vector<NamedObject>& objects) {
  constexpr std::size_t kMost = 5;
  std::string list;
  for (std::size_t index = 0; index < std::min(objects.size(), kMost); ++index) {
    const NamedObject& each = objects[index];
    const bool isShared = std::ranges::count(objects, each.handle, &NamedObject::handle) > 1;
    const std::string& name = isShared && !each.object->identifier.empty() ? each.object->identifier : each.handle;
    list += (index == 0 ? "\"" : ", \"") + Printable(name) + "\"";
  }
  if (objects.size() > kMost) list += " and " + std::to_string(objects.size() - kMost) + " more";
  return list;
}

const NamedObject& OnlyOne(const ObjectSearch& search, const std::string& what) {
  const std::string typed = Printable("\"" + what + "\"");
  if (search.found.size() == 1) return search.found.front();
  if (!search.found.empty()) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       typed + " is not one object alone: name one of " + ListOf(search.found) + ".");
  }
  throw ProgramError(ExitStatus::kWrongArguments,
                     "Nothing is called " + typed +
                         (search.near.empty() ? ": \"hxahost query\" lists controllers, drives and disks."
                                              : ": did you mean " + ListOf(search.near) + "?"));
}

}  // namespace

void RunExplainCommand(const QueryOptions& options, const std::string& object, std::ostream& out, std::ostream& err) {
  QueryOptions query = options;
  for (const std::string_view each :
       {kControllerClass, kLogicalDiskClass, kDiskGroupClass, kDiskDriveClass, kRawDataClass}) {
    query.classes.emplace_back(each);
  }
  QueryDisplay display;
  display.begin = [](std::ostream&, const QueryHeader&) {};
  display.query = [&](std::ostream& shown, const QueryHeader& header, const QueryResult& result) {
    const Machine machine = BuildMachine(header, result);
    const ObjectSearch search = FindObjects(machine, result.instances, object);
    const NamedObject& named = OnlyOne(search, object);
    WriteExplanation(shown, header.layout, result.instances, named,
                     Proofs(machine, result.instances).Of(named.object->instance));
    if (header.isReplayed) shown << '\n' << SourceNote(header) << '\n';
  };
  display.end = [](std::ostream&, const QueryHeader&) {};
  RunQueries(query, display, out, err);
}

}  // namespace hxahost
