#include "Graphics/catalogue.h"

namespace thistle {

std::vector<const desktop::Picture*> AllPictures() {
  using namespace pictures;
  std::vector<const desktop::Picture*> all{&TenPound,
                                           &FivePound,
                                           &OnePound,
                                           &Wood,
                                           &ThistleAndLantern128,
                                           &ThistleLantern32,
                                           &CupStanding,
                                           &CupCentre,
                                           &CupLeft,
                                           &CupRight,
                                           &CupThrow,
                                           &InlineMat,
                                           &InlineTen,
                                           &InlineFive,
                                           &InlineOne,
                                           &NoDrop};
  for (const auto& frame : Anidice) all.push_back(&frame);
  for (const auto& square : Mat) all.push_back(&square);
  for (const auto& face : Face) all.push_back(&face);
  return all;
}

}  // namespace thistle
