#include "desktop/common/waits.h"

namespace desktop::common {

void Waits::Run(Rest& rest) {
  struct Inside {
    Inside(Waits& all, Rest& rest) : waits(all), outer(all.innermost_) {
      waits.innermost_ = &rest;
      ++waits.depth_;
    }
    ~Inside() {
      waits.innermost_ = outer;
      --waits.depth_;
    }
    Inside(const Inside&) = delete;
    Inside& operator=(const Inside&) = delete;

    Waits& waits;
    Rest* const outer;
  };
  const Inside inside(*this, rest);
  rest.Run();
}

void Waits::LookUp() {
  if (innermost_) innermost_->End();
}

}  // namespace desktop::common
