// An accessible object for tests: it answers what a test sets, and records the calls. Its children
// are objects and simple elements, numbered together from 1.
#pragma once

#include <windows.h>

#include <oleacc.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace accessible {

// The members of an object or of a simple element.
struct Members {
  std::wstring name{};
  std::wstring value{};
  LONG role = 0;
  std::wstring roleText{};  // given instead of the number when not empty
  LONG state = 0;
  RECT place{};  // left, top, width, height
  std::wstring description{};
  std::wstring defaultAction{};
  std::wstring keyboardShortcut{};
};

class Node : public IAccessible, private IEnumVARIANT {
 public:
  explicit Node(Members own) : own_(std::move(own)) {}

  // Children are not owned; they must exist as long as this.
  void AddElement(Members element) { children_.push_back({std::move(element), nullptr}); }
  void AddObject(Node& child) {
    children_.push_back({{}, &child});
    child.parent = this;
  }

  ULONG References() const { return references_; }
  Members& Own() { return own_; }

  Node* parent = nullptr;

  // In addition to the members, what a test wants to fail or to differ.
  std::map<std::string, HRESULT> failures;  // by the member's name; "" stands for every member
  long claimedChildren = -1;                // what accChildCount says instead of the truth
  bool answersEveryChild = false;           // any child number has the object's own members
  bool enumerates = false;                  // offers IEnumVARIANT
  bool hasFocus = false;
  std::function<void(const std::string& member)> onCall;
  std::function<void(const std::string& action)> onAction;

  // Every call of a member: its name, and its child ("-" when the child is left out).
  std::vector<std::string> calls;
  // The actions performed, with their child.
  std::vector<std::string> actions;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  // Tests own their nodes; the count is only watched.
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parentObject) override;
  HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override;
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR*, VARIANT, long*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* text) override;
  HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                        VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override;
  HRESULT STDMETHODCALLTYPE accHitTest(long left, long top, VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

 private:
  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* children, ULONG* fetched) override;
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
  HRESULT STDMETHODCALLTYPE Reset() override;
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

  struct Child {
    Members element;
    Node* object;  // null: a simple element
  };

  void Perform(const std::string& action);
  // Records the call; returns what the member should fail with, or S_OK.
  HRESULT Enter(const char* member, const std::string& detail);
  HRESULT Enter(const char* member, const VARIANT& child);
  // The members of the child; null when there is no such child.
  const Members* Of(const VARIANT& child) const;
  HRESULT Text(const char* member, const VARIANT& child, std::wstring Members::*text, BSTR* answer);
  HRESULT GiveChild(long number, VARIANT* child);
  long NumberOf(const Node& child) const;

  Members own_;
  std::vector<Child> children_;
  std::size_t next_ = 0;  // of the enumeration
  ULONG references_ = 1;
};

}  // namespace accessible
