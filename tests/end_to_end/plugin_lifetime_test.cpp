// The plug-in's own library in this process. It keeps its data until the process ends, so all of this is one test.

#include "host/hxahost/collection/plugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <optional>
#include <thread>

#include "host/hxacore/host_services.h"
#include "host/hxacore/repository.h"
#include "host/hxacore/schema.h"
#include "host/hxahost/system/exit_status.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;
using hxahost::Plugin;
using hxahost::ProgramError;
using testing::HasSubstr;
using testing::ThrowsMessage;

// Slow tools without output.
class SlowTools {
 public:
  SlowTools() {
    HostServices services = RealServices();
    services.spawn = [this](const std::string&, const std::vector<std::string>&, int) {
      ++runs_;
      if (++running_ > 1) isCrowded_ = true;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      --running_;
      return SpawnResult("");
    };
    SetServices(services);
  }
  ~SlowTools() { SetServices(RealServices()); }
  SlowTools(const SlowTools&) = delete;
  SlowTools& operator=(const SlowTools&) = delete;

  int TakeRuns() { return runs_.exchange(0); }
  bool WereCrowded() const { return isCrowded_; }

 private:
  std::atomic<int> runs_ = 0;
  std::atomic<int> running_ = 0;
  std::atomic<bool> isCrowded_ = false;
};

// The classes of the instances that a query publishes into a repository of its own.
std::vector<std::string> Query(Plugin& plugin) {
  const auto repository = TRepository::Make(std::nullopt);
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    classes.push_back(repository->GetClass(std::string(declaration.name), {}));
  }
  repository->BeginQuery(classes);
  plugin.Query(repository, classes);
  std::vector<std::string> published;
  for (const auto& instance : repository->Published()) published.emplace_back(instance->Class().name);
  return published;
}

TEST(PluginLifetime, QueriesWaitForEachOtherAndTheLibraryWorksAgainOnlyAfterUnloading) {
  const auto file = ProgramFolder() / "zenx.pi";
  SlowTools tools;
  std::vector<std::string> published;
  int runs = 0;
  {
    Plugin plugin(file);
    auto other = std::async(std::launch::async, [&plugin] { return Query(plugin); });
    published = Query(plugin);
    EXPECT_EQ(other.get(), published);
    EXPECT_FALSE(published.empty()) << "commands without output";
    EXPECT_FALSE(tools.WereCrowded()) << "two collections at once";
    runs = tools.TakeRuns();
    EXPECT_EQ(Query(plugin), published);
    EXPECT_EQ(tools.TakeRuns(), 0) << "the collected data stays until the process ends";
  }
  const auto loadAgain = [&file] { const Plugin again(file); };
  EXPECT_THAT(loadAgain, ThrowsMessage<ProgramError>(HasSubstr("loads a plug-in once")))
      << "the library is there still";

  if (!UnloadLibrary(file)) {
    EXPECT_THAT(loadAgain, ThrowsMessage<ProgramError>(HasSubstr("loads a plug-in once")));
    return;
  }
  Plugin again(file);
  EXPECT_EQ(Query(again), published);
  EXPECT_EQ(tools.TakeRuns(), runs) << "one collection, as for two threads";
}

}  // namespace
