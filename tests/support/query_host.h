#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/hxacore/repository.h"
#include "plugin/query.h"
#include "tests/support/scripted_services.h"

// The plug-in's query in the stand-alone host's repository, as on a system of the given type.
class QueryHost {
 public:
  explicit QueryHost(std::optional<std::uint16_t> osType = std::nullopt)
      : repository(NKVRHXA20::TRepository::Make(osType, "MACHINE")) {}

  // The next query publishes these records, and no tool is run.
  void Hold(const ControllerList& controllers, const RawDataList& rawData = {});

  void Query(const std::vector<std::string>& classNames);

  // The class names of the instances that the last query published, in order.
  std::vector<std::string> PublishedClasses() const;

  // The instances of a class that the last query published, each as its properties, Name = value.
  std::vector<std::vector<std::string>> Published(const std::string& className) const;

  // One property of each of them.
  std::vector<std::string> Published(const std::string& className, const std::string& property) const;

  RecordingLog log;
  QueryState state;
  boost::shared_ptr<NKVRHXA20::TRepository> repository;
};
