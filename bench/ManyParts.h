#pragma once

#include <map>
#include <string>

#include "support/Assembly.h"

// An assembly of many files in folders of 50, whose working copy is "car" below the test's folder: "car" is
// the root product, all others are its children.

inline std::string PartName(int part) {
  return "part" + std::to_string(part);
}

// Below the working copy.
inline std::string PartDocument(int part) {
  return "folder " + std::to_string(part / 50) + "/" + PartName(part) + ".CATPart";
}

// What each file holds, by its path below the working copy.
inline std::map<std::string, std::string> FileContents(int files) {
  std::map<std::string, std::string> contents{{"car.CATProduct", "car\n"}};
  for (int part = 1; part < files; ++part) contents[PartDocument(part)] = "part\n";
  return contents;
}

inline void AddProducts(Assembly& assembly, int files) {
  assembly.Add("car", "car/car.CATProduct");
  for (int part = 1; part < files; ++part) {
    const std::string name = PartName(part);
    assembly.Add(name, "car/" + PartDocument(part)).Place("car", name, name);
  }
}
