#pragma once

#include <vector>

#include "CATDictionary.h"
#include "CATMsgCatalog.h"
#include "CATPrsWorkModeServices.h"
#include "Table.h"
#include "ZRKAttModelerServices.h"
#include "ZRKAttPackageBaseServices.h"
#include "ZRKCorServices.h"

namespace zrk::hostcheck {

// The host's functions that are called without an object. The checks call them through here, so that they can
// be seen to fail with others.
struct HostFunctions {
  decltype(&fct_RetrieveMetaObject) RetrieveMetaObject = &fct_RetrieveMetaObject;
  decltype(&CATFillDictionary) FillDictionary = &CATFillDictionary;
  decltype(&CATPrsWorkModeServices::SetWorkMode) SetWorkMode = &CATPrsWorkModeServices::SetWorkMode;
  decltype(&ZRKAttPackageBaseServices::GetDicoLookUp) GetDicoLookUp =
      &ZRKAttPackageBaseServices::GetDicoLookUp;
  decltype(&ZRKAttPackageBaseServices::GetNodeText) GetNodeText = &ZRKAttPackageBaseServices::GetNodeText;
  decltype(&ZRKAttModelerServices::CreateXMLDOMFromString) CreateXMLDOMFromString =
      &ZRKAttModelerServices::CreateXMLDOMFromString;
  decltype(&CATMsgCatalog::BuildMessage) BuildMessage = &CATMsgCatalog::BuildMessage;
  decltype(&ZRKCorEnvVarManager::GetRuntimeFilePath) GetRuntimeFilePath =
      &ZRKCorEnvVarManager::GetRuntimeFilePath;
  decltype(&ZRKCorParserServices::SplitFilePath) SplitFilePath = &ZRKCorParserServices::SplitFilePath;
};

// A product and those below it, from the top.
using Products = std::vector<CATBaseUnknown_var>;

// All checks on a product of an open assembly, by subject and in the order of the table.
void CheckAll(Table& table, CATBaseUnknown& product, const HostFunctions& host);
void CheckFramework(Table& table, const CATBaseUnknown_var& object, const HostFunctions& host);
// Gives the products looked at.
Products CheckProducts(Table& table, const CATBaseUnknown_var& product, const HostFunctions& host);
void CheckAttributes(Table& table, const Products& products, const HostFunctions& host);
void CheckDom(Table& table, const HostFunctions& host);
void CheckServices(Table& table, const HostFunctions& host);

}  // namespace zrk::hostcheck
