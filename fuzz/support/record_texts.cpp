#include "fuzz/support/record_texts.h"

#include <initializer_list>
#include <string_view>

#include "logs/event_records.h"
#include "logs/statistics_records.h"
#include "tests/support/filled_fields.h"

namespace {

// With its length, so that different lists of values produce different texts.
void Add(std::string& text, std::string_view value) {
  text.append(std::to_string(value.size())).append(":").append(value);
}

void AddEach(std::string& text, std::initializer_list<std::string_view> values) {
  for (const std::string_view value : values) Add(text, value);
}

template <class Record>
void AddFields(std::string& text, const Record& record) {
  text += '\n';
  for (const auto& field : FieldsOf(record)) Add(text, record.*field.field);
}

template <class Record>
void AddAll(std::string& text, const std::vector<std::shared_ptr<Record>>& records) {
  for (const auto& record : records) AddFields(text, *record);
}

void AddStatistics(std::string& text, const ZenxController& controller) {
  for (const auto& r : controller.BadStripes) {
    AddEach(text, {r->ControllerNum, r->LogicalDrive, r->NumBadStripes});
  }
  for (const auto& r : controller.DeviceEvents) {
    AddEach(text, {r->ControllerNum, r->Channel, r->ScsiId, r->NumParityErrors, r->NumSoftErrors, r->NumHardErrors,
                   r->PFA, r->Misc, r->StatisticTime.ToString()});
  }
  for (const auto& r : controller.SubStats) {
    AddEach(text, {r->ControllerNum, r->Channel, r->ScsiId, r->InstanceID, r->Params, r->Req_Off, r->Max_Txer_P,
                   r->Cur_Txer_p, r->StatisticTime.ToString()});
  }
}

template <class Log>
void AddCodes(std::string& text, const std::shared_ptr<Log>& log) {
  if (!log) return;
  AddEach(text, {log->Controller, log->LogTitle, log->RecordID, log->MessageTimestamp.ToString()});
  for (const std::uint32_t code : log->Codes) Add(text, std::to_string(code));
}

void AddEvents(std::string& text, const ZenxController& controller) {
  for (const auto& r : controller.DddEvents) {
    AddEach(text, {r->Controller, r->Date, r->Time, r->Channel, r->ID, r->Reason, r->Descrip, r->RecordID,
                   r->MessageTimestamp.ToString()});
  }
  AddCodes(text, controller.SoftEvents);
  AddCodes(text, controller.HardEvents);
}

}  // namespace

std::string TextOf(const ControllerList& controllers, const RawDataList& rawData) {
  std::string text;
  for (const auto& controller : controllers) {
    AddFields(text, *controller);
    AddAll(text, controller->LogicalDevices);
    AddAll(text, controller->PhysicalDevices);
    AddAll(text, controller->StripeOrders);
    for (const auto& versions : controller->HrConfVersions) {
      AddEach(text, {versions->ControllerNum, versions->BIOS, versions->Driver});
    }
    AddStatistics(text, *controller);
    AddEvents(text, *controller);
  }
  for (const auto& record : rawData) {
    text += '\n';
    Add(text, record->Command);
    for (const std::string& line : record->RawResults) Add(text, line);
  }
  return text;
}
