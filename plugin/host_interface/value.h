#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/date_time.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

class ICIMNamespace;
class TCIMReference;
class TCIMValue;

// Properties, keys or context of a call, ordered by name.
using TPropertyMap = std::map<std::string, TCIMValue>;

// Codes of the CIM element types.
enum ECIMType : unsigned short {
  kCIMEmpty = 0,
  kCIMUInt16 = 4,
  kCIMUInt32 = 6,
  kCIMString = 13,
  kCIMDateTime = 14,
  kCIMReference = 15,
};

// One CIM property value: nothing, a string, a number, a date and time, a reference, or an array of values.
class HXACORE_API TCIMValue {
 public:
  // An element type. Built from its code.
  class TCIMType {
   public:
    TCIMType(ECIMType code) : code_(code) {}  // NOLINT(google-explicit-constructor): callers pass the bare code
    ECIMType Code() const { return code_; }

   private:
    ECIMType code_;
  };

  // The conversions are implicit: callers pass what they have where a value is wanted.
  TCIMValue();
  TCIMValue(const std::string& text);                                                           // NOLINT
  TCIMValue(const char* text);                                                                  // NOLINT
  TCIMValue(unsigned short number);                                                             // NOLINT
  TCIMValue(unsigned int number);                                                               // NOLINT
  TCIMValue(const TCIMDateTime& time);                                                          // NOLINT
  TCIMValue(const TCIMReference& reference);                                                    // NOLINT
  TCIMValue(const TCIMType& elementType, unsigned int count, std::vector<TCIMValue> elements);  // see Set
  TCIMValue(const TCIMValue& other);
  TCIMValue(TCIMValue&& other) noexcept;
  TCIMValue& operator=(const TCIMValue& other);
  TCIMValue& operator=(TCIMValue&& other) noexcept;
  ~TCIMValue();

  // Makes it an array. The elements carry the values; the count is not used.
  void Set(const TCIMType& elementType, unsigned int count, std::vector<TCIMValue> elements);

  // A string as it is, a number in decimal, a date and time or a reference in its text form; anything else is "".
  operator std::string() const;  // NOLINT(google-explicit-constructor)

  // A number that fits, or a string's leading decimal number; anything else is 0.
  operator unsigned short() const;  // NOLINT(google-explicit-constructor)

 private:
  friend class TCIMValueReader;

  struct TArray;
  using TContent = std::variant<std::monostate, std::string, std::uint16_t, std::uint32_t, TCIMDateTime,
                                std::shared_ptr<const TCIMReference>, std::shared_ptr<const TArray>>;
  TContent content_;
};

// A reference to a CIM instance: where it lives and the key properties that name it.
class HXACORE_API TCIMReference {
 public:
  TCIMReference();
  TCIMReference(const boost::shared_ptr<ICIMNamespace>& nameSpace, const TPropertyMap& keys);
  TCIMReference(const TCIMReference& other);
  TCIMReference& operator=(const TCIMReference& other);
  ~TCIMReference();

 private:
  friend class TCIMReferenceFactory;

  boost::shared_ptr<ICIMNamespace> namespace_;
  std::string className_;
  std::shared_ptr<const TPropertyMap> keys_;
};

}  // namespace NKVRHXA20
