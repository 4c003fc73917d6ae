// What some of the programs show, in the registry while this exists.
#pragma once

#include <windows.h>

#include <string>

#include "RegistryKey.h"

namespace corpus {

struct RegistryContents {
  cross::RegistryKey shown{
      HKEY_CURRENT_USER,
      L"Software\\Velmora 試験",
      {{L"名前", L"値, \"引用\""}, {L"b", L"c"}, {L"長い", std::wstring(300, L'長')}}};
  cross::RegistryKey start{HKEY_CURRENT_USER,
                           L"Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit",
                           {{L"LastKey", L"HKEY_CURRENT_USER\\Software\\Velmora 試験"}}};
  cross::RegistryKey installed{
      HKEY_LOCAL_MACHINE,
      L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Velmora 試験",
      {{L"DisplayName", L"試験用プログラム"},
       {L"Publisher", L"発行元"},
       {L"DisplayVersion", L"1.2"},
       {L"UninstallString", L"none.exe"}}};
};

}  // namespace corpus
