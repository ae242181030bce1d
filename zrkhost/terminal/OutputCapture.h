#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zrkhost {

// Keeps what the component writes to standard output apart from what this program says, and lets both
// appear on the real standard output in order.
//
// File descriptor 1 leads into a file from construction to destruction. It is not switched from command to
// command because the component keeps the standard-output handle it once took.
class OutputCapture {
public:
  OutputCapture();
  ~OutputCapture();
  OutputCapture(const OutputCapture&) = delete;
  OutputCapture& operator=(const OutputCapture&) = delete;

  // Shows on the real standard output what the component wrote up to now.
  void Forward();
  // The same, and gives all that was written since the last call.
  std::string Take();
  // To the real standard output, behind all that the component wrote.
  void Write(std::string_view text);

  // Descriptor of the real standard output; negative when the program was started without one.
  int RealOutput() const;
  // Whether everything has reached the real standard output.
  bool Good() const { return good_; }

private:
  struct Descriptors;

  // What stands in the file and was not read yet.
  std::string ReadNew();
  void WriteReal(std::string_view text);

  std::unique_ptr<Descriptors> descriptors_;
  std::string taken_;
  bool good_ = true;
};

}  // namespace zrkhost
