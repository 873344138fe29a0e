#include "host/hxahost/terminal/progress.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

constexpr std::size_t kRoomForSeconds = 9;

}  // namespace

// A line that fills a terminal's last column may wrap.
Progress::Progress(std::ostream& terminal, std::size_t width)
    : terminal_(terminal), width_(width - 1), clock_([this] { Run(); }) {}

Progress::~Progress() {
  {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
  }
  changed_.notify_one();
  clock_.join();
  Clear();
}

void Progress::Begin(const std::string& what, std::size_t expected) {
  const std::lock_guard lock(mutex_);
  ++begun_;
  const std::string place = expected == 0 ? "" : fmt::format(" ({} of about {})", begun_, std::max(begun_, expected));
  what_ = CutToWidth(Printable(what), width_ - kRoomForSeconds - place.size()) + place;
  since_ = std::chrono::steady_clock::now();
  Draw(what_);
}

void Progress::End() {
  const std::lock_guard lock(mutex_);
  what_.clear();
}

void Progress::Clear() {
  const std::lock_guard lock(mutex_);
  what_.clear();
  if (drawnWidth_ == 0) return;
  Draw("");
  terminal_ << '\r' << std::flush;
}

void Progress::Run() {
  std::unique_lock lock(mutex_);
  while (!changed_.wait_for(lock, std::chrono::seconds(1), [this] { return isOver_; })) {
    if (what_.empty()) continue;
    const auto running = std::chrono::steady_clock::now() - since_;
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(running).count();
    if (seconds > 0) Draw(fmt::format("{} {} s", what_, seconds));
  }
}

void Progress::Draw(const std::string& line) {
  const std::size_t width = DisplayWidth(line);
  terminal_ << '\r' << line << std::string(drawnWidth_ - std::min(drawnWidth_, width), ' ') << std::flush;
  drawnWidth_ = width;
}

}  // namespace hxahost
