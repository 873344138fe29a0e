#pragma once

#include <cstddef>
#include <deque>
#include <future>
#include <type_traits>
#include <utility>

namespace hxahost {

// Takes items from next (which ends with an empty optional), works on at most atATime of them at once, each on a thread
// of its own, and passes the results to take in the order of the items. Holds at most atATime results. Exceptions are
// passed on.
template <class Next, class Work, class Take>
void InOrder(std::size_t atATime, Next next, Work work, Take take) {
  std::deque<std::future<std::invoke_result_t<Work, decltype(*next())>>> running;
  const auto takeFirst = [&] {
    auto first = running.front().get();
    running.pop_front();
    take(std::move(first));
  };
  while (auto item = next()) {
    if (running.size() >= atATime) takeFirst();
    running.push_back(std::async(std::launch::async, work, std::move(*item)));
  }
  while (!running.empty()) takeFirst();
}

}  // namespace hxahost
