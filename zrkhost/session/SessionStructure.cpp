#include "session/SessionStructure.h"

#include <algorithm>
#include <unordered_map>

#include "base/CallError.h"
#include "session/JsonFile.h"

namespace zrkhost {

namespace {

// The products as a graph, walked without recursion: how deep it goes is the file's choice.
class StructureCheck {
public:
  StructureCheck(const SessionDescription& session, const std::string& fileName)
      : session_(session), fileName_(fileName), states_(session.Products.size()) {
    for (std::size_t i = 0; i < session.Products.size(); ++i) indices_[session.Products[i].Name] = i;
  }

  void Run() {
    const auto root = indices_.find(session_.Root);
    if (root == indices_.end()) Fail("/root", "there is no product \"" + session_.Root + "\"");
    for (std::size_t i = 0; i < states_.size(); ++i) {
      if (!states_[i].Done) Walk(i);
    }
    const State& tree = states_[root->second];
    if (tree.Places > kMostPlaces) FailRoot("more than " + std::to_string(kMostPlaces) + " places");
    if (tree.Levels > kMostLevels) FailRoot("more than " + std::to_string(kMostLevels) + " levels");
  }

private:
  struct State {
    bool Open = false;
    bool Done = false;
    std::size_t NextChild = 0;
    // Places of the tree below the product, itself included; one more than allowed stands for all above.
    std::size_t Places = 1;
    std::size_t Levels = 1;
  };

  void Walk(std::size_t start) {
    std::vector<std::size_t> open{start};
    states_[start].Open = true;
    while (!open.empty()) {
      const std::size_t current = open.back();
      State& state = states_[current];
      const auto& children = session_.Products[current].Children;
      if (state.NextChild == children.size()) {
        state.Open = false;
        state.Done = true;
        open.pop_back();
        continue;
      }
      const std::size_t position = state.NextChild;
      const auto& reference = children[position].Reference;
      if (!reference) {
        ++state.NextChild;
        Add(state, 1, 1);
        continue;
      }
      const auto found = indices_.find(*reference);
      if (found == indices_.end()) {
        Fail(ReferencePointer(current, position), "there is no product \"" + *reference + "\"");
      }
      State& child = states_[found->second];
      if (child.Open) {
        Fail(ReferencePointer(current, position), "\"" + *reference + "\" would contain itself");
      }
      if (child.Done) {
        ++state.NextChild;
        Add(state, child.Places, child.Levels);
      } else {
        child.Open = true;
        open.push_back(found->second);
      }
    }
  }

  static void Add(State& state, std::size_t places, std::size_t levels) {
    state.Places = std::min(state.Places + places, kMostPlaces + 1);
    state.Levels = std::max(state.Levels, levels + 1);
  }

  [[noreturn]] void FailRoot(const std::string& size) const {
    Fail("/root", "the tree below \"" + session_.Root + "\" has " + size);
  }

  std::string ReferencePointer(std::size_t product, std::size_t child) const {
    return "/products" + PointerStep(session_.Products[product].Name) + "/children" + PointerStep(child) +
           "/reference";
  }

  [[noreturn]] void Fail(const std::string& pointer, const std::string& what) const {
    throw CallError(fileName_ + ": " + pointer + ": " + what);
  }

  const SessionDescription& session_;
  const std::string& fileName_;
  std::unordered_map<std::string, std::size_t> indices_;
  std::vector<State> states_;
};

}  // namespace

void CheckStructure(const SessionDescription& session, const std::string& fileName) {
  StructureCheck(session, fileName).Run();
}

}  // namespace zrkhost
