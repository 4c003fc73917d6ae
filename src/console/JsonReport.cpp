#include "console/JsonReport.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string_view>

#include "platform/HandleText.h"
#include "platform/Utf8.h"

namespace console {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;

Json Text(std::wstring_view text) { return platform::ToUtf8(text); }

template <typename Value>
Json OrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json();
}

Json Place(const RECT& place) {
  return {
      {"left", place.left}, {"top", place.top}, {"right", place.right}, {"bottom", place.bottom}};
}

Json Place(const MyAccessible::Location& place) {
  return {{"left", place.left},
          {"top", place.top},
          {"right", std::int64_t{place.left} + place.width},
          {"bottom", std::int64_t{place.top} + place.height}};
}

Json Window(const report::WindowFacts& window) {
  return {{"handle", reinterpret_cast<std::uintptr_t>(window.hwnd)},
          {"handleHex", Text(L"x" + platform::HexHandle(window.hwnd))},
          {"class", Text(window.className)},
          {"title", Text(window.title)},
          {"rectangle", Place(window.place)}};
}

Json Windows(const std::vector<report::WindowFacts>& windows) {
  Json list = Json::array();
  for (const report::WindowFacts& window : windows) list.push_back(Window(window));
  return list;
}

Json Process(const report::ProcessFacts& process) {
  Json json = {{"id", process.id}, {"file", nullptr}, {"bits", nullptr}};
  if (!process.file.empty()) json["file"] = Text(process.file);
  if (process.is64) json["bits"] = *process.is64 ? 64 : 32;
  json["elevated"] = OrNull(process.elevated);
  return json;
}

Json TargetWindow(const Facts& facts) {
  const report::WindowInformation& information = facts.reading.window;
  Json json = Window(information.window);
  json["process"] = Process(facts.process);
  json["hung"] = facts.reading.hung;
  json["owner"] = information.owner.hwnd == nullptr ? Json() : Window(information.owner);
  json["parents"] = Windows(information.ancestors);
  json["children"] = Windows(information.children);
  return json;
}

Json Texts(const extract::TextReading& reading) {
  return {{"text", Text(reading.text)}, {"method", Text(reading.method)}};
}

Json Cells(const Row& row) {
  Json cells = Json::array();
  for (const std::wstring& cell : row) cells.push_back(Text(cell));
  return cells;
}

Json Items(const std::optional<ItemFacts>& items) {
  if (!items) return {};
  Json rows = Json::array();
  std::size_t columns = items->headers.size();
  for (const Row& row : items->rows) {
    rows.push_back(Cells(row));
    columns = std::max(columns, row.size());
  }
  return {{"method", Text(items->method)},
          {"complete", items->complete},
          {"columns", columns},
          {"headers", items->headers.empty() ? Json() : Cells(items->headers)},
          {"rows", std::move(rows)}};
}

// Numbers as numbers, where a server does not give a text instead.
Json NumberOr(std::wstring_view text) {
  if (text.empty()) return {};
  const std::string utf8 = platform::ToUtf8(text);
  const Json number = Json::parse(utf8, nullptr, false);
  return number.is_number_integer() ? number : Json(utf8);
}

Json ObjectRow(const MyAccessible::RowFacts& row, bool child) {
  Json json = {{"name", Text(row.name)},
               {"role", NumberOr(row.role)},
               {"rectangle", Place(row.location)},
               {"childCount", NumberOr(row.childCount)}};
  if (child) json["value"] = Text(row.last);
  return json;
}

Json RowList(const ObjectRows& rows, bool children) {
  Json list = Json::array();
  for (const MyAccessible::RowFacts& row : rows.rows) list.push_back(ObjectRow(row, children));
  return list;
}

Json Object(const std::optional<ObjectFacts>& object) {
  if (!object) return {};
  const MyAccessible::AccessibleFacts& members = object->members;
  return {{"name", Text(members.name)},
          {"value", Text(members.value)},
          {"role", NumberOr(members.role)},
          {"state", NumberOr(members.state)},
          {"description", Text(members.description)},
          {"keyboardShortcut", Text(members.keyboardShortcut)},
          {"defaultAction", Text(members.defaultAction)},
          {"rectangle", Place(members.location)},
          {"type", Text(object->type)},
          {"childCount", NumberOr(members.childCount)},
          {"ancestors", RowList(object->ancestors, false)},
          {"children", RowList(object->children, true)},
          {"childrenComplete", object->children.complete}};
}

Json Element(const MyInternetexplore::ElementFacts& element) {
  return {{"tag", Text(element.tag)},
          {"type", Text(element.type)},
          {"idOrName", Text(element.idOrName)},
          {"value", Text(element.value)},
          {"text", Text(element.text)}};
}

Json Page(const std::optional<PageFound>& page) {
  if (!page) return {};
  Json chain = Json::array();
  for (const MyInternetexplore::ElementFacts& one : page->facts.chain)
    chain.push_back(Element(one));
  return {{"url", Text(page->facts.url)},
          {"frames", Text(page->facts.framePath)},
          {"text", Text(page->texts.displayed)},
          {"markup", Text(page->texts.markup)},
          {"chain", std::move(chain)}};
}

Json Remarks(const Facts& facts) {
  Json remarks = Json::array();
  if (facts.reading.hung) remarks.push_back("hung");
  if (!facts.reading.hung && !HoldsText(facts)) {
    remarks.push_back(facts.outOfReach ? "not-allowed" : "nothing-there");
  }
  if (facts.reading.items && !facts.reading.items->complete) remarks.push_back("items-incomplete");
  return remarks;
}

Json Descendant(const ReadingFacts& reading) {
  Json json = Window(reading.window.window);
  json["hung"] = reading.hung;
  json["text"] = Texts(reading.text);
  json["items"] = Items(reading.items);
  return json;
}

}  // namespace

std::string JsonReport(const Facts& facts) {
  Json json = {{"version", kVersion}, {"point", nullptr}};
  if (facts.point) json["point"] = {{"x", facts.point->x}, {"y", facts.point->y}};
  json["window"] = TargetWindow(facts);
  json["text"] = Texts(facts.reading.text);
  json["items"] = Items(facts.reading.items);
  json["object"] = Object(facts.object);
  json["page"] = Page(facts.page);
  json["status"] = Text(facts.status);
  json["remarks"] = Remarks(facts);
  if (facts.descendants) {
    Json list = Json::array();
    for (const ReadingFacts& reading : *facts.descendants) list.push_back(Descendant(reading));
    json["descendants"] = std::move(list);
  }
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace console
