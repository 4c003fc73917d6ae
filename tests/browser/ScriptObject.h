// What all objects of a page share: counted references, recorded calls, and members by name.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace html {

// What is recorded of a page, and what a test wants to fail.
struct Watch {
  // Every call of a member, as "OBJECT.MEMBER" and its argument: "DIV#menu.tagName",
  // "IFRAME@ad.getAttribute value", "IFRAME@ad.rectangle.left", "window left.document", "document
  // http://host/.elementFromPoint 10,20".
  std::vector<std::string> calls{};
  std::size_t callCount = 0;
  bool keepsCalls = true;

  // What calls fail with: by such a call, with or without its argument; with the object left out,
  // for all objects (".getAttribute value"); or "", for every call.
  std::map<std::string, HRESULT> failures{};
  std::function<void(const std::string& call)> onCall{};
};

// A text of a page in a label: UTF-8.
std::string Narrow(const std::wstring& text);

// References are only counted: the page owns its objects.
class Counted {
 public:
  Counted(Watch& watch, std::string label) : watch_(watch), label_(std::move(label)) {}
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  const std::string& Label() const { return label_; }
  // Those that others hold.
  LONG References() const { return references_; }

 protected:
  // Records the call; returns what the member should fail with, or S_OK.
  HRESULT Enter(const std::string& member, const std::string& detail = {});

  LONG references_ = 0;

 private:
  Watch& watch_;
  const std::string label_;
};

// An answer as a VARIANT, which then owns the text or the reference.
void Give(BSTR text, VARIANT* answer);
void Give(LONG number, VARIANT* answer);
void Give(IDispatch* object, VARIANT* answer);

// Empty texts are returned as null, as browsers do.
BSTR NewText(const std::wstring& text);

// Object offers Interfaces, the first of them as its IDispatch. It has
//   void* Offer(REFIID id)      the interface, or null
//   static std::span<const Member> Members()
//   bool Knows(const Member&)   whether it has that member at all
template <class Object, class... Interfaces>
class ScriptObject : public Counted, public Interfaces... {
 public:
  using Counted::Counted;

  // A property that can be read by name or number.
  struct Member {
    const wchar_t* name;
    std::uint32_t number;  // a DISPID, which the system's headers write without its sign
    HRESULT (*get)(Object& object, VARIANT* answer);
  };

  // The property of an interface as such a member's get.
  template <auto property>
  static HRESULT Read(Object& object, VARIANT* answer) {
    return Ask(object, property, answer);
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = Self().Offer(id);
    if (*object == nullptr) return E_NOINTERFACE;
    ++references_;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* numbers) override {
    if (count != 1) return DISP_E_UNKNOWNNAME;
    *numbers = DISPID_UNKNOWN;
    for (const Member& member : Object::Members()) {
      if (!Self().Knows(member)) continue;
      if (lstrcmpiW(*names, member.name) != 0) continue;
      *numbers = static_cast<DISPID>(member.number);
      return S_OK;
    }
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD flags, DISPPARAMS*,
                                   VARIANT* answer, EXCEPINFO*, UINT*) override {
    if ((flags & DISPATCH_PROPERTYGET) == 0 || answer == nullptr) return DISP_E_MEMBERNOTFOUND;
    VariantInit(answer);
    for (const Member& member : Object::Members()) {
      if (member.number == static_cast<std::uint32_t>(number) && Self().Knows(member))
        return member.get(Self(), answer);
    }
    return DISP_E_MEMBERNOTFOUND;
  }

 private:
  template <class Value>
  static HRESULT Ask(Object& object, HRESULT (STDMETHODCALLTYPE Object::*property)(Value*),
                     VARIANT* answer) {
    Value value = {};
    const HRESULT result = (object.*property)(&value);
    if (result == S_OK) Give(value, answer);
    return result;
  }

  Object& Self() { return static_cast<Object&>(*this); }
};

}  // namespace html
