#include "host/hxahost/views/cim/cim_xml_view.h"

#include <sstream>
#include <string>
#include <string_view>

#include <fmt/core.h>
#include <boost/property_tree/ptree.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include "host/hxacore/value_reader.h"
#include "host/hxacore/value_type.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/text/xml_text.h"
#include "host/hxahost/views/cim/exported_values.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// Boost's property tree writes the markup: it has only headers, works with every compiler of the program, and is
// maintained with the rest of Boost. A tree of the whole document would take many times the memory of the data, so it
// contains one instance at a time; the text around the instances is fixed.
using Tree = boost::property_tree::ptree;

constexpr std::string_view kBeginQuery = "<DECLGROUP.WITHPATH>\n";

// A placeholder for the elements of an array.
constexpr const char* kElements = "ELEMENTS";
constexpr std::size_t kElementIndent = 4;

// Names of elements contain dots, which must not be read as paths.
Tree& Append(Tree& parent, const char* element) { return parent.push_back({element, Tree()})->second; }

void SetAttribute(Tree& element, const char* name, std::string_view value) {
  element.put(std::string("<xmlattr>.") + name, std::string(value));
}

// Parsers convert a carriage return to a line feed. It and characters that are unsafe on a terminal are written by
// their number, which the library does not do.
std::string WithUnsafeByNumber(std::string_view xml) {
  std::string text;
  UnsafeCharacters unsafe;
  ForEachCharacter(xml, [&](char32_t code, std::string_view character) {
    if (unsafe.Has(code) && code != '\n' && code != '\t') {
      text += fmt::format("&#{};", static_cast<unsigned>(code));
    } else {
      text += character;
    }
  });
  return text;
}

ECIMType TypeOf(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kUInt16: return kCIMUInt16;
    case ValueKind::kUInt32: return kCIMUInt32;
    case ValueKind::kDateTime: return kCIMDateTime;
    case ValueKind::kReference: return kCIMReference;
    case ValueKind::kArray: return TCIMValueReader::ElementType(value);
    case ValueKind::kString:
    case ValueKind::kNone: break;
  }
  return kCIMString;
}

bool IsNumberType(ECIMType type) { return type == kCIMUInt16 || type == kCIMUInt32; }

void AppendPath(Tree& parent, const TCIMReference& reference, std::string_view declaredClass);

void AppendReference(Tree& parent, const TCIMValue& value, std::string_view declaredClass) {
  AppendPath(Append(parent, "VALUE.REFERENCE"), TCIMValueReader::Reference(value), declaredClass);
}

// A comment must not contain two hyphens in a row: a blank separates them.
void AppendComment(Tree& parent, std::string_view text) {
  std::string comment = " ";
  for (const char character : text) {
    if (character == '-' && comment.back() == '-') comment += ' ';
    comment += character;
  }
  Append(parent, "<xmlcomment>").data() = comment + ' ';
}

std::string_view DeclaredClassOf(const ClassDeclaration* declaration, const std::string& property) {
  const PropertyDeclaration* const declared = declaration == nullptr ? nullptr : FindProperty(*declaration, property);
  return declared == nullptr ? std::string_view() : declared->referencedClass;
}

void AppendKey(Tree& parent, const TCIMValue& value, std::string_view declaredClass) {
  if (TCIMValueReader::Kind(value) == ValueKind::kReference) return AppendReference(parent, value, declaredClass);
  const ECIMType type = TypeOf(value);
  Tree& key = Append(parent, "KEYVALUE");
  SetAttribute(key, "VALUETYPE", IsNumberType(type) ? "numeric" : "string");
  SetAttribute(key, "TYPE", TypeName(type));
  key.data() = LegalXmlText(std::string(value));
}

// A reference without a class name refers to the declared class.
void AppendName(Tree& parent, const TCIMReference& reference, std::string_view declaredClass) {
  const std::string& own = TCIMReferenceFactory::ClassName(reference);
  const std::string_view className = own.empty() ? declaredClass : own;
  const ClassDeclaration* const declaration = FindClass(className);
  Tree& name = Append(parent, "INSTANCENAME");
  SetAttribute(name, "CLASSNAME", className);
  for (const auto& [key, value] : TCIMReferenceFactory::Keys(reference)) {
    Tree& binding = Append(name, "KEYBINDING");
    SetAttribute(binding, "NAME", key);
    AppendKey(binding, value, DeclaredClassOf(declaration, key));
  }
}

void AppendPath(Tree& parent, const TCIMReference& reference, std::string_view declaredClass) {
  Tree& path = Append(parent, "LOCALINSTANCEPATH");
  Tree& nameSpace = Append(path, "LOCALNAMESPACEPATH");
  for (const std::string_view part : kNamespaceParts) SetAttribute(Append(nameSpace, "NAMESPACE"), "NAME", part);
  AppendName(path, reference, declaredClass);
}

// An empty value is an element without a value in it.
void AppendValue(Tree& parent, const TCIMValue& value, const char* empty) {
  if (TCIMValueReader::Kind(value) != ValueKind::kNone) {
    Append(parent, "VALUE").data() = LegalXmlText(std::string(value));
  } else if (empty != nullptr) {
    Append(parent, empty);
  }
}

bool HasElements(const TCIMValue& value) {
  return TCIMValueReader::Kind(value) == ValueKind::kArray && !TCIMValueReader::Elements(value).empty();
}

void AppendArray(Tree& parent, const TCIMValue& value) {
  if (TCIMValueReader::Kind(value) == ValueKind::kNone) return;
  Tree& array = Append(parent, "VALUE.ARRAY");
  if (HasElements(value)) Append(array, kElements);
}

void AppendProperty(Tree& instance, const PublishedProperty& property, const PropertyDeclaration& declared) {
  const bool isReference = declared.type == kCIMReference;
  const char* const plain = declared.isArray ? "PROPERTY.ARRAY" : "PROPERTY";
  Tree& element = Append(instance, isReference ? "PROPERTY.REFERENCE" : plain);
  SetAttribute(element, "NAME", property.name);
  if (isReference) {
    SetAttribute(element, "REFERENCECLASS", declared.referencedClass);
    const bool isEmpty = TCIMValueReader::Kind(property.value) == ValueKind::kNone;
    if (!isEmpty) AppendReference(element, property.value, declared.referencedClass);
    return;
  }
  SetAttribute(element, "TYPE", TypeName(declared.type));
  if (const std::string time = ImpossibleTime(property.value); !time.empty()) {
    return AppendComment(element, "published: " + time);
  }
  declared.isArray ? AppendArray(element, property.value) : AppendValue(element, property.value, nullptr);
}

Tree ObjectWithPath(const TPublishedInstance& instance) {
  Tree document;
  Tree& object = Append(document, "VALUE.OBJECTWITHLOCALPATH");
  AppendPath(object, instance.Reference(), instance.Class().name);
  Tree& element = Append(object, "INSTANCE");
  SetAttribute(element, "CLASSNAME", instance.Class().name);
  ForEachExported(instance, [&element](const PublishedProperty& property, const PropertyDeclaration& declared) {
    AppendProperty(element, property, declared);
  });
  return document;
}

// Leaves out the XML declaration, which the library writes before each tree.
std::string TreeText(const Tree& tree) {
  std::ostringstream document;
  boost::property_tree::write_xml(document, tree, boost::property_tree::xml_writer_make_settings<std::string>(' ', 1));
  return WithUnsafeByNumber(document.str().substr(document.str().find('\n') + 1));
}

// One element at a time: a log of a million lines is one array.
void WriteElements(std::ostream& out, const TCIMValue& array) {
  for (const TCIMValue& element : TCIMValueReader::Elements(array)) {
    Tree tree;
    AppendValue(tree, element, "VALUE.NULL");
    out << std::string(kElementIndent, ' ') << TreeText(tree);
  }
}

void WriteObject(std::ostream& out, const TPublishedInstance& instance) {
  const std::string text = TreeText(ObjectWithPath(instance));
  const std::string mark = std::string(kElementIndent, ' ') + '<' + kElements + "/>\n";
  std::string_view rest = text;
  ForEachExported(instance, [&](const PublishedProperty& property, const PropertyDeclaration&) {
    const std::size_t place = rest.find(mark);
    if (place == rest.npos || !HasElements(property.value)) return;
    out << rest.substr(0, place);
    WriteElements(out, property.value);
    rest.remove_prefix(place + mark.size());
  });
  out << rest;
}

}  // namespace

void BeginCimXml(std::ostream& out, const QueryHeader& header) {
  out << "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
  if (header.isReplayed) out << "<!-- " << SourceNote(header) << " -->\n";
  out << "<CIM CIMVERSION=\"2.8\" DTDVERSION=\"2.4\">\n<DECLARATION>\n";
}

void WriteInstanceCimXml(std::ostream& out, const QueryHeader&, const TPublishedInstance& instance,
                         const InstancePlace& place) {
  if (place.instance == 0) out << kBeginQuery;
  WriteObject(out, instance);
}

void WriteQueryCimXml(std::ostream& out, const QueryHeader&, const QueryResult& result) {
  if (result.written == 0) out << kBeginQuery;
  for (const auto& instance : result.instances) WriteObject(out, *instance);
  for (const std::string& leftOut : result.leftOut) {
    Tree document;
    AppendComment(document, leftOut);
    out << TreeText(document);
  }
  out << "</DECLGROUP.WITHPATH>\n";
}

void EndCimXml(std::ostream& out, const QueryHeader&) { out << "</DECLARATION>\n</CIM>\n"; }

}  // namespace hxahost
