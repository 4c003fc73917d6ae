// The items of a control as the text of a pane.
#pragma once

#include <string>

#include "accessibility/AccessibleListing.h"
#include "extract/ControlAccess.h"
#include "extract/ItemReading.h"
#include "platform/TextSink.h"

// A reader of items.
using ItemReader = extract::Method (*)(HWND hwnd, const platform::ReadSession& session,
                                       platform::ItemSink& sink,
                                       const extract::ControlAccess& access);

// What read(sink) puts into the sink. method receives the method, and stays unchanged when nothing
// was read.
template <typename Read>
std::wstring TextOf(Read&& read, std::wstring& method) {
  platform::TextSink sink;
  if (const extract::Method got = read(sink); !got.empty()) method = got;
  return sink.Take();
}

inline std::wstring ReadText(ItemReader read, HWND hwnd, const platform::ReadSession& session,
                             std::wstring& method, const extract::ControlAccess& access) {
  return TextOf([&](platform::ItemSink& sink) { return read(hwnd, session, sink, access); },
                method);
}

// The text of a listing of accessible objects.
inline std::wstring ChildrenOf(IAccessible* object, const settings::Settings& settings,
                               const platform::ReadSession& session) {
  platform::TextSink sink;
  MyAccessible::ListChildrenOf(object, settings, session, sink);
  return sink.Take();
}

inline std::wstring ChildrenOf(HWND hwnd, const settings::Settings& settings,
                               const platform::ReadSession& session) {
  platform::TextSink sink;
  MyAccessible::ListChildren(hwnd, settings, session, sink);
  return sink.Take();
}

inline std::wstring TreeAt(HWND hwnd, POINT point, const settings::Settings& settings,
                           const platform::ReadSession& session) {
  platform::TextSink sink;
  MyAccessible::ListTree(hwnd, {point}, settings, session, sink);
  return sink.Take();
}

inline std::wstring TreeAround(const MyAccessible::ObjectAndChild& item,
                               const settings::Settings& settings,
                               const platform::ReadSession& session) {
  platform::TextSink sink;
  MyAccessible::ListTreeAround(item, settings, session, sink);
  return sink.Take();
}
