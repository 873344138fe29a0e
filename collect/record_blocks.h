#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "collect/host_handle.h"

// Makes the records that one walk attaches. Memory for each by itself costs more than a line of a tool's text does:
// records stand in blocks, and each shares the ownership of its block, which is freed with the last of them. The first
// block holds one record and each further one twice as many, up to a limit, so that a machine with few devices takes no
// more memory than it needs.
template <class Record>
class RecordBlocks {
 public:
  explicit RecordBlocks(HostHandle host) : host_(host) {}

  // A new record. It may outlive this object.
  std::shared_ptr<Record> Make() {
    if (block_ == nullptr || block_->size() == block_->capacity()) BeginBlock();
    return {block_, &block_->emplace_back(host_)};
  }

 private:
  static constexpr std::size_t kLongest = 32;

  // A block never grows past what it begins with, as its records must not move.
  void BeginBlock() {
    const std::size_t length = block_ == nullptr ? 1 : std::min(2 * block_->size(), kLongest);
    block_ = std::make_shared<std::vector<Record>>();
    block_->reserve(length);
  }

  HostHandle host_;
  std::shared_ptr<std::vector<Record>> block_;
};
