#pragma once

#include <utility>

#include <unistd.h>

namespace NKVRHXA20 {

// An open file descriptor, or none (-1).
class TDescriptor {
 public:
  explicit TDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
  TDescriptor(TDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  TDescriptor& operator=(TDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~TDescriptor() { Close(); }

  int Get() const { return descriptor_; }
  void Close() {
    if (descriptor_ >= 0) close(std::exchange(descriptor_, -1));
  }

 private:
  int descriptor_;
};

}  // namespace NKVRHXA20
