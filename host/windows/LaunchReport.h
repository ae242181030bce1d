#pragma once

#include <cstdint>

namespace standin {

// Reports a call of CreateProcessW; a null text counts as an empty one.
void ReportLaunch(const wchar_t* program, const wchar_t* commandLine, const wchar_t* folder,
                  std::uint32_t creationFlags, bool started) noexcept;

}  // namespace standin
