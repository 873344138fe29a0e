#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The number of events of the RAID manager's log in the tables and the report.
inline constexpr std::size_t kNewestEvents = 5000;

// Keeps the newest events of the RAID manager's log, which may have millions, and those that the rules of health read.
class KeptEvents {
 public:
  explicit KeptEvents(std::size_t newest) : newest_(newest) {}

  // Takes an event. Returns false for an instance of another class, which the query keeps.
  bool Take(const QueryHeader& header, const boost::shared_ptr<const NKVRHXA20::TPublishedInstance>& instance);

  // Inserts the events into the query, at their place in the order of publication, and begins the next query.
  void PutInto(QueryResult& result);

 private:
  std::size_t newest_;
  std::size_t before_ = 0;  // instances that were published before the first event
  std::size_t count_ = 0;
  InstanceList read_;  // by the rules, older than the others
  std::deque<boost::shared_ptr<const NKVRHXA20::TPublishedInstance>> held_;
};

// A sentence with the number of events shown and of all events, and how to get all of them; "" if all are shown.
std::string EventNote(const QueryResult& result);

}  // namespace hxahost
