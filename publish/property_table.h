#pragma once

#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <variant>

#include "collect/ascii_text.h"
#include "plugin/host_interface/cim.h"

// Where a property comes from: a fixed text or number, a field of one of the records, a function of all of them, or a
// function of none (the machine's name).
template <class... Records>
using PropertySource =
    std::variant<const char*, unsigned short, std::string Records::*..., NKVRHXA20::TCIMDateTime Records::*...,
                 std::string (*)(const Records&...), NKVRHXA20::TCIMValue (*)(const Records&...), std::string (*)()>;

// One row of a table that describes a published class, in the order in which properties are set. The records are what
// one instance is made of, for example a controller and one of its devices.
template <class... Records>
struct Property {
  const char* name;
  PropertySource<Records...> source;
};

template <class... Records>
using PropertyRows = std::span<const Property<Records...>>;

// How the text of a field becomes the text of a property.
using TextForm = std::string_view (*)(std::string_view);

// Gives the value of a source.
template <class... Records>
struct PropertyReader {
  TextForm form;
  std::tuple<const Records&...> records;

  NKVRHXA20::TCIMValue operator()(const char* text) const { return text; }
  NKVRHXA20::TCIMValue operator()(unsigned short number) const { return number; }
  template <class Record>
  NKVRHXA20::TCIMValue operator()(std::string Record::*field) const {
    return std::string(form(std::get<const Record&>(records).*field));
  }
  template <class Record>
  NKVRHXA20::TCIMValue operator()(NKVRHXA20::TCIMDateTime Record::*field) const {
    return std::get<const Record&>(records).*field;
  }
  NKVRHXA20::TCIMValue operator()(std::string (*make)(const Records&...)) const { return std::apply(make, records); }
  NKVRHXA20::TCIMValue operator()(NKVRHXA20::TCIMValue (*make)(const Records&...)) const {
    return std::apply(make, records);
  }
  NKVRHXA20::TCIMValue operator()(std::string (*ask)()) const { return ask(); }
};

// Makes one instance, sets its properties row by row, and hands it to the host.
template <class... Records>
void PublishInstance(NKVRHXA20::ICIMClass& publishedClass, std::type_identity_t<PropertyRows<Records...>> rows,
                     TextForm form, const Records&... records) {
  const PropertyReader<Records...> reader{form, std::tie(records...)};
  const auto instance = publishedClass.CreateInstance({});
  for (const Property<Records...>& row : rows) instance->SetProperty(row.name, std::visit(reader, row.source), {});
  instance->Commit({});
}

// For controllers, disks, drives, groups and versions: the blanks and line ends that tools put around a value are cut.
// What a function makes is published as it makes it.
template <class... Records>
void PublishTrimmed(NKVRHXA20::ICIMClass& publishedClass, std::type_identity_t<PropertyRows<Records...>> rows,
                    const Records&... records) {
  PublishInstance(publishedClass, rows, Trimmed, records...);
}

// For logs, statistics and raw data: what the tool printed, blanks and line ends included.
template <class... Records>
void PublishAsHeld(NKVRHXA20::ICIMClass& publishedClass, std::type_identity_t<PropertyRows<Records...>> rows,
                   const Records&... records) {
  PublishInstance(
      publishedClass, rows, [](std::string_view text) { return text; }, records...);
}
