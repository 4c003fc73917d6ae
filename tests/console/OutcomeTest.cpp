#include <gtest/gtest.h>

#include "console/Facts.h"
#include "console/Words.h"

namespace console {
namespace {

Facts WithText() {
  Facts facts;
  facts.reading.text.text = L"text";
  return facts;
}

TEST(OutcomeTest, ATextOrARowIsRead) {
  EXPECT_EQ(OutcomeOf(WithText()), Outcome::kRead);
  Facts rows;
  rows.reading.items = ItemFacts{L"LB_GETTEXT", true, {{L""}}, {}};
  EXPECT_EQ(OutcomeOf(rows), Outcome::kRead);
  Facts inside;
  inside.descendants.emplace();
  inside.descendants->emplace_back().text.text = L"deep";
  EXPECT_EQ(OutcomeOf(inside), Outcome::kRead);
}

TEST(OutcomeTest, WithoutATextTheRightsDecide) {
  Facts facts;
  facts.reading.items.emplace();
  EXPECT_EQ(OutcomeOf(facts), Outcome::kNothingThere);
  facts.outOfReach = true;
  EXPECT_EQ(OutcomeOf(facts), Outcome::kNotAllowed);
  facts.reading.text.text = L"caption";
  EXPECT_EQ(OutcomeOf(facts), Outcome::kRead);
}

TEST(OutcomeTest, AHungOrVanishedWindowIsNotRead) {
  Facts facts = WithText();
  facts.reading.hung = true;
  EXPECT_EQ(OutcomeOf(facts), Outcome::kNoAnswer);
  facts.gone = true;
  EXPECT_EQ(OutcomeOf(facts), Outcome::kNoSuchWindow);
}

TEST(OutcomeTest, EveryFailureHasItsWords) {
  for (const Language language : {Language::kJapanese, Language::kEnglish}) {
    EXPECT_EQ(OutcomeText(Outcome::kRead, language), L"");
    for (const Outcome outcome : {Outcome::kNothingThere, Outcome::kNoSuchWindow,
                                  Outcome::kNotAllowed, Outcome::kNoAnswer}) {
      EXPECT_NE(OutcomeText(outcome, language), L"");
    }
  }
}

}  // namespace
}  // namespace console
