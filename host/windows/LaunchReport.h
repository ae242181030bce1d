#pragma once

namespace standin {

// Tells the listener of a call of CreateProcessW; a null text counts as an empty one.
void ReportLaunch(const wchar_t* program, const wchar_t* commandLine, const wchar_t* folder,
                  bool started) noexcept;

}  // namespace standin
