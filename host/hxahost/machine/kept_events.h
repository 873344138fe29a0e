#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// How many events of the RAID manager's log people are shown.
inline constexpr std::size_t kNewestEvents = 5000;

// Of the events of the RAID manager's log, of which there may be millions, a query holds the newest, and those that the
// rules of health read.
class KeptEvents {
 public:
  explicit KeptEvents(std::size_t newest) : newest_(newest) {}

  // Takes an event. False for an instance of another class: the query holds it.
  bool Take(const QueryHeader& header, const boost::shared_ptr<const NKVRHXA20::TPublishedInstance>& instance);

  // Puts the events where they were published among the instances that the query holds. The next query begins.
  void PutInto(QueryResult& result);

 private:
  std::size_t newest_;
  std::size_t before_ = 0;  // instances that were published before the first event
  std::size_t count_ = 0;
  InstanceList read_;  // by the rules, older than the others
  std::deque<boost::shared_ptr<const NKVRHXA20::TPublishedInstance>> held_;
};

// How many events are shown, of how many, and where all of them are; "" where all are shown.
std::string EventNote(const QueryResult& result);

}  // namespace hxahost
