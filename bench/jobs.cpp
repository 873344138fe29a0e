#include "bench/jobs.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <boost/make_shared.hpp>

#include "bench/idle_host.h"
#include "bench/log_jobs.h"
#include "bench/machine_text.h"
#include "bench/scripted_machine.h"
#include "bench/whole_query.h"
#include "host/hxacore/schema.h"
#include "host/hxahost/collection/plugin.h"
#include "plugin/host_interface/services.h"
#include "tools/arcconf/arcconf_data.h"
#include "tools/hrconf/hrconf_data.h"
#include "tools/qcmdrun/qcmdrun_data.h"

using namespace NKVRHXA20;

namespace {

using Texts = std::vector<std::string>;

std::size_t SizeOf(const Texts& texts) {
  std::size_t size = 0;
  for (const std::string& text : texts) size += text.size();
  return size;
}

std::size_t LinesIn(const std::string& text) {
  std::size_t lines = 0;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end; ++lines) {
    const auto* const lineFeed = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
    at = lineFeed == nullptr ? end : lineFeed + 1;
  }
  return lines;
}

// The least that can be done with the texts.
Job SplitJob(Texts texts) {
  const std::size_t bytes = SizeOf(texts);
  return {bytes, [texts = std::move(texts)] {
            std::size_t lines = 0;
            for (const std::string& text : texts) lines += LinesIn(text);
            return lines;
          }};
}

// Answers so that the pass that records finds no controller, the pass that parses finds one, and no text is copied.
struct ParsingScript {
  std::string noController;
  std::vector<std::pair<std::string, std::string>> answers;  // by the command's word
  bool isRecorded = false;

  std::string Answer(const std::vector<std::string>& arguments) {
    const bool isFirst = arguments.at(1) == "1";
    if (arguments.front() == "getconfig" && (!std::exchange(isRecorded, true) || !isFirst)) return noController;
    const auto found = std::ranges::find(answers, arguments.front() + " " + arguments.back(),
                                         &std::pair<std::string, std::string>::first);
    return found == answers.end() ? std::string() : std::move(found->second);
  }
};

template <class Adapter>
Job ParseJob(ParsingScript script) {
  std::size_t bytes = 0;
  for (const auto& [command, text] : script.answers) bytes += text.size();
  HostServices services = RealServices();
  services.spawn = [script = std::make_shared<ParsingScript>(std::move(script))](
                       const std::string&, const std::vector<std::string>& arguments, int) {
    return script->Answer(arguments);
  };
  // Rows of tables bear the time of the host's clock, which is no part of parsing.
  services.localTime = [now = TCIMDateTime(2006, 3, 14, 15, 9, 26, 0, 0)] { return now; };
  SetServices(services);
  auto adapter = std::make_shared<Adapter>(TRootObject::GetCoreLogger());
  return {bytes, [adapter] {
            adapter->Collect(0);
            return adapter->GetControllers().at(0)->PhysicalDevices.size();
          }};
}

constexpr const char* kInvalid = "Invalid controller number\r\n";

Job SplitQcmdrun(int disks) {
  return SplitJob({QcmdrunConfig(disks), QcmdrunDeviceEvents(disks), QcmdrunSubStatus(disks)});
}
Job SplitArcconf(int disks) { return SplitJob({ArcconfConfig(disks)}); }
Job SplitHrconf(int disks) { return SplitJob({HrconfConfig(disks)}); }

Job ParseQcmdrun(int disks) {
  return ParseJob<QcmdrunData>({
      "Command aborted\r\n",
      {{"getconfig al", QcmdrunConfig(disks)},
        {"getevent device", QcmdrunDeviceEvents(disks)},
        {"getsubstat device", QcmdrunSubStatus(disks)}}
  });
}
Job ParseArcconf(int disks) { return ParseJob<ArcconfData>({kInvalid, {{"getconfig al", ArcconfConfig(disks)}}}); }
Job ParseHrconf(int disks) { return ParseJob<HrconfData>({kInvalid, {{"getconfig al", HrconfConfig(disks)}}}); }

// All that the plug-in does with what the tools print: it asks, records, asks again and parses.
template <ScriptedTool kTool>
Job Collect(int disks) {
  auto text = std::make_shared<std::size_t>(0);
  SetServices(ScriptedMachine(kTool, disks, text.get()));
  auto collector = std::make_shared<ZenxCollectData>(TRootObject::GetCoreLogger());
  return {0, [collector, text] {
            collector->Collect(false);
            return *text;
          }};
}

template <ScriptedTool kTool>
Job CollectAndPublish(int disks) {
  auto text = std::make_shared<std::size_t>(0);
  SetServices(ScriptedMachine(kTool, disks, text.get()));
  auto query = std::make_shared<WholeQuery>();
  return {0, [query, text] {
            query->Run();
            return *text;
          }};
}

Job Publish(int disks) {
  SetServices(ScriptedMachine(ScriptedTool::kQcmdrun, disks));
  auto query = std::make_shared<WholeQuery>();
  query->Run();
  return {0, [query] { return query->Run(); }};
}

struct IdleQuery {
  QueryState state;
  IdleHost host;
  std::vector<boost::shared_ptr<ICIMClass>> classes;

  std::size_t Run() {
    const std::size_t before = host.Committed();
    RunQuery(state, TRootObject::GetCoreLogger(), host, classes);
    return host.Committed() - before;
  }
};

std::shared_ptr<IdleQuery> MakeIdleQuery(bool (*picks)(std::string_view name)) {
  auto query = std::make_shared<IdleQuery>();
  for (const CatalogueEntry& entry : Catalogue()) {
    if (picks(entry.name)) query->classes.push_back(query->host.GetClass(std::string(entry.name), {}));
  }
  return query;
}

Job PublishToIdleHost(int disks) {
  SetServices(ScriptedMachine(ScriptedTool::kQcmdrun, disks));
  auto query = MakeIdleQuery([](std::string_view) { return true; });
  query->Run();
  return {0, [query] { return query->Run(); }};
}

bool IsAssociation(std::string_view name) {
  const ClassDeclaration* const declaration = FindClass(name);
  return declaration != nullptr && declaration->isAssociation;
}

// Every disk has a version and statistics, and each is linked to it; it is linked to its controller too.
Job PublishAssociations(int disks) {
  SetServices(ScriptedMachine(ScriptedTool::kQcmdrun, disks));
  auto query = std::make_shared<WholeQuery>();
  query->Run();
  return {0, [query] { return query->Run(IsAssociation); }};
}

// The plug-in's library as the host has it, and the first class that answers.
Job FirstQuery(int) {
  SetServices(ScriptedMachine(ScriptedTool::kArcconf, 0));
  const auto file = std::filesystem::canonical("/proc/self/exe").parent_path() / "zenx.pi";
  const auto repository = TRepository::Make(std::nullopt);
  return {0, [file, repository] {
            const auto known = repository->GetClass("KVRSG_zxSCSIProtocolController", {});
            hxahost::Plugin(file).Query(repository, {known});
            return std::size_t{1};
          }};
}

// The same query of the plug-in that is linked into this program.
Job FirstQueryLinked(int) {
  SetServices(ScriptedMachine(ScriptedTool::kArcconf, 0));
  const auto repository = TRepository::Make(std::nullopt);
  const auto state = std::make_shared<QueryState>();
  return {0, [state, repository] {
            RunQuery(*state, TRootObject::GetCoreLogger(), *repository,
                     {repository->GetClass("KVRSG_zxSCSIProtocolController", {})});
            return std::size_t{1};
          }};
}

constexpr NamedJob kJobs[] = {
    {"split-qcmdrun",      SplitQcmdrun                             },
    {"split-arcconf",      SplitArcconf                             },
    {"split-hrconf",       SplitHrconf                              },
    {"parse-qcmdrun",      ParseQcmdrun                             },
    {"parse-arcconf",      ParseArcconf                             },
    {"parse-hrconf",       ParseHrconf                              },
    {"collect-qcmdrun",    Collect<ScriptedTool::kQcmdrun>          },
    {"collect-arcconf",    Collect<ScriptedTool::kArcconf>          },
    {"collect-hrconf",     Collect<ScriptedTool::kHrconf>           },
    {"whole-qcmdrun",      CollectAndPublish<ScriptedTool::kQcmdrun>},
    {"whole-arcconf",      CollectAndPublish<ScriptedTool::kArcconf>},
    {"whole-hrconf",       CollectAndPublish<ScriptedTool::kHrconf> },
    {"publish",            Publish                                  },
    {"publish-idle",       PublishToIdleHost                        },
    {"associations",       PublishAssociations                      },
    {"first-query",        FirstQuery                               },
    {"first-query-linked", FirstQueryLinked                         },
    {"log-lines",          SplitLog                                 },
    {"log-records",        ReadLog                                  },
    {"log-publish-idle",   PublishLogToIdleHost                     },
    {"log-publish",        PublishLog                               },
};

}  // namespace

std::span<const NamedJob> Jobs() { return kJobs; }
