#include "accessibility/ChildWalk.h"

#include <algorithm>

namespace MyAccessible {
namespace {

constexpr std::int32_t kMostAtOnce = 64;

}  // namespace

ChildWalk::ChildWalk(IAccessible* object, std::int32_t wanted)
    : object_(object), children_(static_cast<std::size_t>(std::clamp(wanted, 1, kMostAtOnce))) {
  if (FAILED(object_->get_accChildCount(&count_))) count_ = 0;
}

ChildWalk::~ChildWalk() { Clear(); }

const VARIANT* ChildWalk::Next() {
  if (next_ == obtained_) Fetch();
  return next_ < obtained_ ? &children_[next_++] : nullptr;
}

void ChildWalk::Fetch() {
  Clear();
  if (fetched_ >= count_) return;
  const long asked = std::min(static_cast<long>(children_.size()), count_ - fetched_);
  long obtained = 0;
  if (FAILED(AccessibleChildren(object_, fetched_, asked, children_.data(), &obtained))) return;
  obtained_ = static_cast<std::size_t>(std::clamp(obtained, 0L, asked));
  // Fewer than requested: they were the last ones, whatever the object's count says.
  fetched_ = obtained < asked ? count_ : fetched_ + obtained;
}

void ChildWalk::Clear() noexcept {
  for (VARIANT& child : children_) VariantClear(&child);
  obtained_ = 0;
  next_ = 0;
}

}  // namespace MyAccessible
