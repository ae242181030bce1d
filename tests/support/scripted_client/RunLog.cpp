#include "RunLog.h"

#include <utility>

#include "Escapes.h"
#include "Platform.h"

RunLog::RunLog(std::string path, int id) : path_(std::move(path)), id_(std::to_string(id)) {}

void RunLog::Started(std::string_view program, std::string_view folder,
                     const std::vector<std::string>& arguments) {
  if (path_.empty()) return;
  std::string line = "run";
  for (const std::string_view word : {std::string_view(id_), program, folder})
    line.append(" ").append(Escape(word));
  for (const std::string& argument : arguments) line.append(" ").append(Escape(argument));
  AppendToFile(path_, line.append("\n"));
}

void RunLog::Read(std::string_view bytes) {
  if (!path_.empty()) AppendToFile(path_, "in " + id_ + " " + Escape(bytes) + "\n");
}
