#include "console/Facts.h"

#include <algorithm>

namespace console {
namespace {

bool HoldsText(const ReadingFacts& reading) {
  return !reading.text.text.empty() || (reading.items && !reading.items->rows.empty());
}

}  // namespace

bool HoldsText(const Facts& facts) {
  if (HoldsText(facts.reading)) return true;
  if (facts.page && !facts.page->texts.displayed.empty()) return true;
  return facts.descendants && std::ranges::any_of(*facts.descendants, [](const ReadingFacts& one) {
           return HoldsText(one);
         });
}

Outcome OutcomeOf(const Facts& facts) {
  if (facts.gone) return Outcome::kNoSuchWindow;
  if (facts.reading.hung) return Outcome::kNoAnswer;
  if (HoldsText(facts)) return Outcome::kRead;
  return facts.outOfReach ? Outcome::kNotAllowed : Outcome::kNothingThere;
}

}  // namespace console
