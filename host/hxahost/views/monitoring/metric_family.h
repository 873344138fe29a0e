#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace hxahost {

// Names and values, bytes as the tools printed them.
using Labels = std::vector<std::pair<std::string_view, std::string>>;

// A metric, as "# HELP" and "# TYPE" describe it.
struct MetricName {
  std::string_view name;
  std::string_view help;
  std::string_view type = "gauge";
};

// The samples of one metric, written in the text format of Prometheus. A reader refuses the whole file if a sample
// occurs twice: of samples with the same labels only the largest is written.
class MetricFamily {
 public:
  explicit MetricFamily(const MetricName& name) : name_(name) {}

  // A label without a value is left out: the reader treats it the same.
  void Add(const Labels& labels, double value);

  void Write(std::ostream& out) const;

 private:
  MetricName name_;
  std::vector<std::pair<std::string, double>> samples_;  // labels and value, as added
  std::unordered_map<std::string, std::size_t> places_;  // of samples, by labels
};

}  // namespace hxahost
