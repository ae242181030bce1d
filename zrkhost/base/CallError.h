#pragma once

#include <stdexcept>
#include <string>

namespace zrkhost {

// A call that cannot be carried out as it was made: nothing has been run, and the program ends with
// exit status 2. The text, UTF-8, names the file, the place in it and what is wrong.
class CallError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

}  // namespace zrkhost
