// The parts that the reports of many tests have in common, made of what differs.
#pragma once

#include <string>

namespace accessible {

struct ShownMembers {
  std::wstring name = {};
  std::wstring value = {};
  std::wstring role = {};       // number and word
  std::wstring state = L"x0 ";  // bits and sentences
  std::wstring shortcut = {};
  std::wstring location = {};  // "l:0,t:0,r:0,b:0"
  std::wstring childCount = {};
  std::wstring defaultAction = {};
  std::wstring description = {};
  std::wstring id = L"0";
  std::wstring type = L"Container";
};

// The lines of a report between its heading and the ancestors.
inline std::wstring MemberLines(const ShownMembers& is) {
  std::wstring text = L"Name       : " + is.name + L"\r\nValue      : " + is.value +
                      L"\r\nRole       : " + is.role + L"\r\nState      : " + is.state +
                      L"\r\nKbShortCut : " + is.shortcut + L"\r\nLocation   : (" + is.location;
  return text + L")\r\nChildCount : " + is.childCount + L"\r\nDefAction  : " + is.defaultAction +
         L"\r\nDescription: " + is.description + L"\r\n\r\nId         : " + is.id +
         L"\r\nObject Type: " + is.type + L"\r\n\r\n";
}

}  // namespace accessible
