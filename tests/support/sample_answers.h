#pragma once

#include "tests/support/scripted_services.h"

// While it lives the tools answer with the texts of the sample machine, numbers that have no controller included.
// To be made after the services that it replaces the spawning of, whose runs it goes on to count.
class SampleAnswers {
 public:
  explicit SampleAnswers(ScriptedServices& services);
};
