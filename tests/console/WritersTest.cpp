#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "HostileFacts.h"
#include "console/JsonReport.h"
#include "console/TextReport.h"
#include "platform/Utf8.h"

namespace console {
namespace {

Facts WithRows(std::vector<Row> rows) {
  Facts facts;
  facts.reading.text.text = L"name";
  facts.reading.items = ItemFacts{L"LVM_GETITEMW", true, std::move(rows), {}};
  return facts;
}

TEST(WritersTest, TheRowsOrElseTheText) {
  EXPECT_EQ(TextReport(WithRows({{L"a", L"b"}, {L"", L"c"}})), L"a\tb\r\n\tc\r\n");
  EXPECT_EQ(TextReport(WithRows({})), L"name\r\n");
  EXPECT_EQ(TextReport({}), L"");
  Facts lines;
  lines.reading.text.text = L"one\r\ntwo\r\n";
  EXPECT_EQ(TextReport(lines), L"one\r\ntwo\r\n");
}

TEST(WritersTest, DescendantsHaveALineAboveEach) {
  Facts facts;
  facts.reading.text.text = L"top";
  facts.descendants.emplace();
  ReadingFacts& inside = facts.descendants->emplace_back();
  inside.window.window.hwnd = reinterpret_cast<HWND>(std::uintptr_t{77});
  inside.window.window.className = L"Edit";
  inside.text.text = L"in";
  EXPECT_EQ(TextReport(facts), L"top\r\n[Edit 77]\r\nin\r\n");
}

TEST(WritersTest, CommasAndQuotesAreKeptApart) {
  EXPECT_EQ(CsvReport(WithRows({{L"a,b", L"\"q\"", L"tab\there", L"line\r\nend", L""}})),
            L"\"a,b\",\"\"\"q\"\"\",tab\there,\"line\r\nend\",\r\n");
  EXPECT_EQ(CsvReport(WithRows({})), L"name\r\n");
  EXPECT_EQ(CsvReport({}), L"");
}

TEST(WritersTest, JsonSaysWhatIsNotThere) {
  EXPECT_EQ(JsonReport({}),
            R"({"version":1,"point":null,"window":{"handle":0,"handleHex":"x0","class":"",)"
            R"("title":"","rectangle":{"left":0,"top":0,"right":0,"bottom":0},)"
            R"("process":{"id":0,"file":null,"bits":null,"elevated":null},"hung":false,)"
            R"("owner":null,"parents":[],"children":[]},"text":{"text":"","method":""},)"
            R"("items":null,"object":null,"page":null,"status":"","remarks":["nothing-there"]})");
}

TEST(WritersTest, JsonNamesTheGravestRemark) {
  Facts hung;
  hung.reading.hung = true;
  EXPECT_NE(JsonReport(hung).find(R"("remarks":["hung"])"), std::string::npos);
  Facts above;
  above.outOfReach = true;
  EXPECT_NE(JsonReport(above).find(R"("remarks":["not-allowed"])"), std::string::npos);
  Facts cut = WithRows({{L"a"}});
  cut.reading.items->complete = false;
  EXPECT_NE(JsonReport(cut).find(R"("remarks":["items-incomplete"])"), std::string::npos);
  EXPECT_NE(JsonReport(cut).find(R"("complete":false)"), std::string::npos);
}

TEST(WritersTest, ARoleMayBeAText) {
  Facts facts;
  facts.object.emplace();
  facts.object->members.role = L"33";
  EXPECT_NE(JsonReport(facts).find(R"("role":33,)"), std::string::npos);
  facts.object->members.role = L"own role";
  EXPECT_NE(JsonReport(facts).find(R"("role":"own role",)"), std::string::npos);
}

TEST(WritersTest, HalvesOfSurrogatePairsAreReplaced) {
  EXPECT_EQ(platform::ToUtf8(L"a\xD83D"
                             L"b\xDC08"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_EQ(platform::ToUtf8(L"\U0001F408"), "\xF0\x9F\x90\x88");
  EXPECT_EQ(platform::FromUtf8("\xF0\x9F\x90\x88 \xE8\xA1\xA8"), L"\U0001F408 表");
  EXPECT_EQ(platform::ToUtf8(L""), "");
}

TEST(WritersTest, NoHostileTextLeavesTheObjectsLine) {
  for (const std::wstring& text : HostileTexts()) {
    const std::string json = JsonReport(FactsWith(text));
    EXPECT_TRUE(json.starts_with("{") && json.ends_with("}"));
    EXPECT_EQ(json.find_first_of("\r\n"), std::string::npos);
    EXPECT_EQ(json.find('\0'), std::string::npos);
  }
}

}  // namespace
}  // namespace console
