#include "support/Session.h"

#include <ostream>
#include <stdexcept>

#include "CATICkeParm.h"
#include "ZRKAttPackageBaseServices.h"
#include "attributes/AttributeDictionary.h"
#include "dialogs/MessageCatalogs.h"
#include "dialogs/UserInterface.h"

namespace {

CATICkeParm_var Parameter(const ZRKIAttInstance_var& instance, const char* name) {
  return instance->GetParameter(name);
}

std::string Value(const ZRKIAttInstance_var& instance, const char* name) {
  const CATICkeParm_var parameter = Parameter(instance, name);
  return parameter ? parameter->AsText().ConvertToChar() : "";
}

}  // namespace

ZRKIAttClass_var StatusClass() {
  const ZRKIAttDictionary_var dictionary = ZRKAttPackageBaseServices::GetDicoLookUp();
  return dictionary ? dictionary->LookUpClass("ZRKCVS") : nullptr;
}

Session::Session() {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Revision", "Status", "Release", "Comment"}}});
  standin::RefuseNewInstances(false);
  standin::SetApplicationFrame(true, true);
  standin::ClearCatalogs();
}

Session::~Session() {
  standin::RemoveAttributeDictionary();
  standin::RefuseNewInstances(false);
  standin::SetApplicationFrame(false, false);
  standin::ClearCatalogs();
}

std::ostream& operator<<(std::ostream& stream, const StatusAttributes& attributes) {
  return stream << "Revision \"" << attributes.Revision << "\", Status \"" << attributes.Status
                << "\", Release \"" << attributes.Release << "\", Comment \"" << attributes.Comment << "\"";
}

std::optional<StatusAttributes> ReadStatusAttributes(const CATBaseUnknown_var& product) {
  const ZRKIAttExtendable_var carrier = product;
  const ZRKIAttClass_var statusClass = StatusClass();
  if (!carrier || !statusClass) return std::nullopt;
  const ZRKIAttInstance_var instance = carrier->FindInstance(statusClass);
  if (!instance) return std::nullopt;
  return StatusAttributes{Value(instance, "Revision"), Value(instance, "Status"), Value(instance, "Release"),
                          Value(instance, "Comment")};
}

void WriteStatusAttributes(const CATBaseUnknown_var& product, const StatusAttributes& attributes) {
  const ZRKIAttExtendable_var carrier = product;
  const ZRKIAttClass_var statusClass = StatusClass();
  if (!carrier || !statusClass) throw std::runtime_error("The product can carry no attributes.");
  if (!carrier->FindInstance(statusClass)) carrier->AddInstance(statusClass, nullptr);
  const ZRKIAttInstance_var instance = carrier->FindInstance(statusClass);
  if (!instance) throw std::runtime_error("The product took no attributes.");
  Parameter(instance, "Revision")->Valuate(attributes.Revision.c_str());
  Parameter(instance, "Status")->Valuate(attributes.Status.c_str());
  Parameter(instance, "Release")->Valuate(attributes.Release.c_str());
  Parameter(instance, "Comment")->Valuate(attributes.Comment.c_str());
}
