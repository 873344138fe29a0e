#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

// The text of a record's field. A std::string has room for 15 characters in itself and asks for memory for more, as the
// identifiers of disks have; this takes no more room and holds 31. A line gives up to eight fields, so short texts are
// copied without a call. A field that held a longer text once keeps the memory for the next one.
class FieldText {
 public:
  FieldText() = default;

  // From whatever can be seen as characters, NULs among them.
  template <std::convertible_to<std::string_view> Text>
  FieldText(const Text& text) {
    Assign(text);
  }
  FieldText(const FieldText& other) { Assign(other); }
  FieldText(FieldText&& other) noexcept { Swap(other); }
  ~FieldText() {
    if (IsLong()) Release();
  }

  // The text that is given may be a part of the one that is held.
  FieldText& operator=(const FieldText& other) { return Assign(other); }
  FieldText& operator=(FieldText&& other) noexcept {
    Swap(other);
    return *this;
  }
  template <std::convertible_to<std::string_view> Text>
  FieldText& operator=(const Text& text) {
    return Assign(text);
  }

  // Puts a text behind this one, of which it may be a part.
  FieldText& append(std::string_view text) {
    const std::size_t size = State();
    if (IsLong() || text.size() > kShort - size) return AppendLong(text);
    CopyShort(bytes_.data() + size, text.data(), text.size());
    SetState(size + text.size());
    return *this;
  }

  // Lasts until the text changes.
  operator std::string_view() const {
    return IsLong() ? std::string_view(*Long()) : std::string_view(bytes_.data(), State());
  }

  operator std::string() const { return std::string(std::string_view(*this)); }

  bool empty() const { return std::string_view(*this).empty(); }
  std::size_t size() const { return std::string_view(*this).size(); }

  template <std::convertible_to<std::string_view> Text>
  friend bool operator==(const FieldText& one, const Text& other) {
    return std::string_view(one) == std::string_view(other);
  }
  friend std::string operator+(std::string text, const FieldText& field) {
    return std::move(text.append(std::string_view(field)));
  }
  friend std::string operator+(const FieldText& field, std::string_view text) {
    return std::string(field).append(text);
  }

 private:
  static constexpr std::size_t kShort = 31;
  static constexpr std::size_t kLong = 0xff;
  static constexpr std::size_t kPlace = sizeof(std::string*);

  // Two copies that meet or overlap, of a length that the compiler knows.
  template <std::size_t kCount>
  static void CopyEnds(char* to, const char* from, std::size_t size) {
    std::array<char, kCount> first;
    std::array<char, kCount> last;
    std::memcpy(first.data(), from, kCount);
    std::memcpy(last.data(), from + (size - kCount), kCount);
    std::memcpy(to, first.data(), kCount);
    std::memcpy(to + (size - kCount), last.data(), kCount);
  }

  static void CopyShort(char* to, const char* from, std::size_t size) {
    if (size >= 8) return size >= 16 ? CopyEnds<16>(to, from, size) : CopyEnds<8>(to, from, size);
    if (size >= 2) return size >= 4 ? CopyEnds<4>(to, from, size) : CopyEnds<2>(to, from, size);
    if (size == 1) *to = *from;
  }

  FieldText& Assign(std::string_view text) {
    if (text.size() > kShort || IsLong()) return AssignLong(text);
    CopyShort(bytes_.data(), text.data(), text.size());
    SetState(text.size());
    return *this;
  }

  std::size_t State() const { return static_cast<unsigned char>(bytes_.back()); }
  void SetState(std::size_t state) { bytes_.back() = static_cast<char>(static_cast<unsigned char>(state)); }
  bool IsLong() const { return State() == kLong; }

  // Where the text does not fit, the place of its characters holds where it is.
  std::string* Long() const {
    std::string* text = nullptr;
    std::memcpy(&text, bytes_.data(), kPlace);
    return text;
  }

  void Swap(FieldText& other) noexcept { bytes_.swap(other.bytes_); }

  FieldText& AssignLong(std::string_view text);
  FieldText& AppendLong(std::string_view text);
  void BecomeLong(std::string text);
  void Release() noexcept;

  std::array<char, kShort + 1> bytes_{};  // the last one: how many of them are the text, or that it is long
};
