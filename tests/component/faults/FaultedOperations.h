#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "component/faults/FaultStage.h"

namespace faults {

// What one failing call takes from an operation.
struct Loss {
  // The run, from 0, whose output does not reach the operation.
  std::optional<int> Run;
  // The answer to a question does not reach the client.
  bool Answer = false;
};

// An operation of the interface, with clients and a product that take it through all its runs.
struct Operation {
  std::string Name;
  FaultStage::Kind Kind;
  // How often the output of each run is read: once to its end, and once for the text if there is one.
  std::vector<int> Reads;
  // How often a client's input is written to.
  int Writes;
  void (*Prepare)(FaultStage&);
  HRESULT (*Perform)(FaultStage&);
  // Checks what came of it.
  void (*Expect)(const FaultStage&, HRESULT result, const Loss&);

  int Runs() const { return static_cast<int>(Reads.size()); }
};

const std::vector<Operation>& Operations();

}  // namespace faults
