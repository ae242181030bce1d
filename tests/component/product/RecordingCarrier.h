#pragma once

#include <set>
#include <string>
#include <vector>

#include "CATICkeParm.h"
#include "ZRKIAttributes.h"

// An object that carries one instance, which takes any parameter, and remembers what is done to it. It
// must outlive whatever is taken from it.
class RecordingCarrier {
public:
  CATBaseUnknown_var Object() { return CATBaseUnknown_var(&carrier_); }

  // Each value set, as "Name=value", in order.
  const std::vector<std::string>& Written() const { return written_; }
  int Additions() const { return additions_; }
  bool LastModelGiven() const { return lastModelGiven_; }

  // The instance then has under that name something that is not a parameter.
  void MakeNoParameter(const std::string& name) { noParameters_.insert(name); }

  // What a parameter gives as its text, though it has no value.
  void GiveTextWithoutValue(const std::string& text) { text_ = text; }

private:
  // Has one interface; lives in its carrier and is never freed.
  template <class Interface>
  class Facet : public Interface {
  public:
    explicit Facet(RecordingCarrier& carrier) : Self(carrier) {}
    unsigned long AddRef() override { return 1; }
    unsigned long Release() override { return 1; }
    CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
      return interfaceId == Interface::ClassId() ? this : nullptr;
    }

  protected:
    RecordingCarrier& Self;
  };

  class Parameter : public Facet<CATICkeParm> {
  public:
    using Facet::Facet;
    std::string Name;
    void Valuate(const CATUnicodeString& text) override {
      Self.written_.push_back(Name + "=" + text.ConvertToChar());
    }
    bool HasValue() override { return false; }
    CATUnicodeString AsText() override { return Self.text_.c_str(); }
  };

  class Instance : public Facet<ZRKIAttInstance> {
  public:
    using Facet::Facet;
    CATBaseUnknown_var GetParameter(const CATUnicodeString& name) override {
      if (Self.noParameters_.contains(name.ConvertToChar())) return CATBaseUnknown_var(this);
      Self.parameter_.Name = name.ConvertToChar();
      return CATBaseUnknown_var(&Self.parameter_);
    }
  };

  class Carrier : public Facet<ZRKIAttExtendable> {
  public:
    using Facet::Facet;
    CATBaseUnknown_var FindInstance(const ZRKIAttClass_var&) override {
      return Self.additions_ > 0 ? CATBaseUnknown_var(&Self.instance_) : nullptr;
    }
    HRESULT AddInstance(const ZRKIAttClass_var&, const ZRKIAttInstance_var& model) override {
      ++Self.additions_;
      Self.lastModelGiven_ = static_cast<bool>(model);
      return S_OK;
    }
    void RemoveInstance(const ZRKIAttClass_var&) override { Self.additions_ = 0; }
  };

  std::vector<std::string> written_;
  std::set<std::string> noParameters_;
  std::string text_;
  int additions_ = 0;
  bool lastModelGiven_ = true;
  Parameter parameter_{*this};
  Instance instance_{*this};
  Carrier carrier_{*this};
};
