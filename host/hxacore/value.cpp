#include "plugin/host_interface/value.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

#include "host/hxacore/value_reader.h"

namespace NKVRHXA20 {

struct TCIMValue::TArray {
  ECIMType elementType;
  std::vector<TCIMValue> elements;
};

namespace {

const TPropertyMap& NoKeys() {
  static const TPropertyMap none;
  return none;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += character;
  }
  return quoted += '"';
}

bool IsNumber(const TCIMValue& value) {
  const ValueKind kind = TCIMValueReader::Kind(value);
  return kind == ValueKind::kUInt16 || kind == ValueKind::kUInt32;
}

}  // namespace

TCIMValue::TCIMValue() = default;
TCIMValue::TCIMValue(const std::string& text) : content_(std::string(text)) {}
TCIMValue::TCIMValue(const char* text) : content_(std::string(text)) {}
TCIMValue::TCIMValue(unsigned short number) : content_(std::uint16_t{number}) {}
TCIMValue::TCIMValue(unsigned int number) : content_(std::uint32_t{number}) {}
TCIMValue::TCIMValue(const TCIMDateTime& time) : content_(time) {}
TCIMValue::TCIMValue(const TCIMReference& reference) : content_(std::make_shared<const TCIMReference>(reference)) {}
TCIMValue::TCIMValue(const TCIMType& elementType, unsigned int count, std::vector<TCIMValue> elements) {
  Set(elementType, count, std::move(elements));
}
TCIMValue::TCIMValue(const TCIMValue& other) { *this = other; }
TCIMValue::TCIMValue(TCIMValue&& other) noexcept = default;
// GCC's standard library destroys a variant wrongly whose copy throws: a text is copied first, and then moved.
TCIMValue& TCIMValue::operator=(const TCIMValue& other) {
  if (const auto* const text = std::get_if<std::string>(&other.content_)) {
    content_ = std::string(*text);
  } else {
    content_ = other.content_;
  }
  return *this;
}
TCIMValue& TCIMValue::operator=(TCIMValue&& other) noexcept = default;
TCIMValue::~TCIMValue() = default;

void TCIMValue::Set(const TCIMType& elementType, unsigned int, std::vector<TCIMValue> elements) {
  content_ = std::make_shared<const TArray>(TArray{elementType.Code(), std::move(elements)});
}

TCIMValue::operator std::string() const {
  switch (TCIMValueReader::Kind(*this)) {
    case ValueKind::kString: return TCIMValueReader::Text(*this);
    case ValueKind::kUInt16:
    case ValueKind::kUInt32: return std::to_string(TCIMValueReader::Number(*this));
    case ValueKind::kDateTime: return TCIMValueReader::DateTime(*this);
    case ValueKind::kReference: return TCIMReferenceFactory::ObjectPath(TCIMValueReader::Reference(*this));
    case ValueKind::kNone:
    case ValueKind::kArray: return {};
  }
  return {};
}

TCIMValue::operator unsigned short() const {
  constexpr unsigned long kHighest = std::numeric_limits<unsigned short>::max();
  const std::string text = *this;
  const bool startsWithDigit = !text.empty() && text.front() >= '0' && text.front() <= '9';
  const unsigned long number = startsWithDigit ? std::strtoul(text.c_str(), nullptr, 10) : 0;
  return static_cast<unsigned short>(number > kHighest ? 0 : number);
}

ValueKind TCIMValueReader::Kind(const TCIMValue& value) { return static_cast<ValueKind>(value.content_.index()); }

const std::string& TCIMValueReader::Text(const TCIMValue& value) { return std::get<std::string>(value.content_); }

std::uint32_t TCIMValueReader::Number(const TCIMValue& value) {
  if (const auto* const narrow = std::get_if<std::uint16_t>(&value.content_)) return *narrow;
  return std::get<std::uint32_t>(value.content_);
}

std::string TCIMValueReader::DateTime(const TCIMValue& value) {
  return std::get<TCIMDateTime>(value.content_).ToString();
}

const TCIMReference& TCIMValueReader::Reference(const TCIMValue& value) {
  return *std::get<std::shared_ptr<const TCIMReference>>(value.content_);
}

ECIMType TCIMValueReader::ElementType(const TCIMValue& array) {
  return std::get<std::shared_ptr<const TCIMValue::TArray>>(array.content_)->elementType;
}

const std::vector<TCIMValue>& TCIMValueReader::Elements(const TCIMValue& array) {
  return std::get<std::shared_ptr<const TCIMValue::TArray>>(array.content_)->elements;
}

TCIMReference::TCIMReference() = default;
TCIMReference::TCIMReference(const boost::shared_ptr<ICIMNamespace>& nameSpace, const TPropertyMap& keys)
    : namespace_(nameSpace), keys_(std::make_shared<const TPropertyMap>(keys)) {}
TCIMReference::TCIMReference(const TCIMReference& other) = default;
TCIMReference& TCIMReference::operator=(const TCIMReference& other) = default;
TCIMReference::~TCIMReference() = default;

TCIMReference TCIMReferenceFactory::Make(const boost::shared_ptr<ICIMNamespace>& nameSpace,
                                         const std::string& className, const TPropertyMap& keys) {
  TCIMReference reference(nameSpace, keys);
  reference.className_ = className;
  return reference;
}

const std::string& TCIMReferenceFactory::ClassName(const TCIMReference& reference) { return reference.className_; }

const TPropertyMap& TCIMReferenceFactory::Keys(const TCIMReference& reference) {
  return reference.keys_ ? *reference.keys_ : NoKeys();
}

std::string TCIMReferenceFactory::ObjectPath(const TCIMReference& reference) {
  std::string path = reference.className_;
  char separator = '.';
  for (const auto& [name, value] : Keys(reference)) {
    path += separator + name + '=';
    path += IsNumber(value) ? std::string(value) : Quoted(value);
    separator = ',';
  }
  return path;
}

}  // namespace NKVRHXA20
