#include "Graphics/catalogue.h"

namespace thistle {

std::vector<const desktop::Picture*> AllPictures() {
  using namespace pictures;
  std::vector<const desktop::Picture*> all{&TenPound,         &FivePound,   &OnePound,  &Wood,    &ThistleAndLantern128,
                                           &ThistleLantern32, &CupStanding, &CupCentre, &CupLeft, &CupRight,
                                           &CupThrow};
  for (const auto& frame : Anidice) all.push_back(&frame);
  for (const auto& square : Mat) all.push_back(&square);
  return all;
}

}  // namespace thistle
