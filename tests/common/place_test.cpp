// The window's place, and the return to its one size.
#include "desktop/common/place.h"

#include <gtest/gtest.h>

#include <limits>

#include "desktop/common/snap_back.h"

namespace {

using namespace desktop::common;
using desktop::WindowState;

constexpr Size kFixed{632, 425};
constexpr Size kOther{722, 500};
constexpr Size kRoom{1280, 960};

TEST(Place, IsThePlayersOwnOnlyOfAWindowInItsNormalStateAndSize) {
  EXPECT_TRUE(IsPlayersOwn({.shown = true, .size = kFixed}, kFixed));
  EXPECT_FALSE(IsPlayersOwn({.shown = false, .size = kFixed}, kFixed));
  EXPECT_FALSE(IsPlayersOwn({.shown = true, .minimised = true, .size = kFixed}, kFixed));
  EXPECT_FALSE(IsPlayersOwn({.shown = true, .maximised = true, .size = kFixed}, kFixed));
  EXPECT_FALSE(IsPlayersOwn({.shown = true, .size = kOther}, kFixed)) << "a foreign size";
}

TEST(Place, AWindowCountsAsMaximisedWhileItIsReallyLarger) {
  EXPECT_EQ(StateOf({.shown = true, .size = kFixed}, kFixed), WindowState::Normal);
  EXPECT_EQ(StateOf({.shown = true, .size = kOther}, kFixed), WindowState::Normal);
  EXPECT_EQ(StateOf({.shown = true, .maximised = true, .size = kRoom}, kFixed), WindowState::Maximised);
  EXPECT_EQ(StateOf({.shown = true, .maximised = true, .size = kFixed}, kFixed), WindowState::Normal);
  EXPECT_EQ(StateOf({.shown = true, .minimised = true, .maximised = true, .size = kRoom}, kFixed),
            WindowState::Minimised);
}

TEST(Place, IsTurnedIntoPixelsWithinWhatAWindowSystemCanTake) {
  EXPECT_EQ(OnScreen(1500), 100);
  EXPECT_EQ(OnScreen(-22.5F), -2) << "halves away from zero";
  EXPECT_EQ(OnScreen(-1e30F), -32768);
  EXPECT_EQ(OnScreen(std::numeric_limits<float>::max()), 32767);
  for (const int pixels : {-300, -1, 0, 7, 5000}) EXPECT_EQ(OnScreen(InTwips(pixels)), pixels);
}

TEST(SnapBack, WishesForTheFixedSizeInTheNormalStateAlone) {
  for (const auto& [look, wishes, why] :
       {std::tuple{WindowLook{.shown = true, .size = kOther}, true, "a border drag"},
        {WindowLook{.shown = true, .size = {600, 400}}, true, "too small"},
        {WindowLook{.shown = true, .size = kFixed}, false, "as it should be"},
        {WindowLook{.shown = true, .maximised = true, .size = kRoom}, false, "maximised"},
        {WindowLook{.shown = true, .maximised = true, .size = kFixed}, false, "maximised in name"},
        {WindowLook{.shown = true, .minimised = true, .size = kOther}, false, "minimised"},
        {WindowLook{.shown = true, .size = {640, 955}}, false, "half-maximised, upright"},
        {WindowLook{.shown = true, .size = {1270, 480}}, false, "half-maximised, lying"}})
    EXPECT_EQ(SnapBack().Wishes(look, kFixed, kRoom), wishes) << why;
}

TEST(SnapBack, GivesInToWhoeverInsistsUntilSomethingHappensFromOutside) {
  SnapBack snap;
  const WindowLook other{.shown = true, .size = kOther};
  const auto refusals = [&] {
    snap.NoteChange(kOther, kFixed);
    int count = 0;
    for (; snap.Wishes(other, kFixed, kRoom); ++count) snap.NoteChange(kOther, kFixed);  // the answer
    return count;
  };
  const int most = refusals();
  EXPECT_GT(most, 2) << "a border may be held for a while";
  EXPECT_LT(most, 10);
  EXPECT_FALSE(snap.Wishes(other, kFixed, kRoom)) << "at rest";
  EXPECT_EQ(refusals(), most) << "somebody else's change";
}

TEST(SnapBack, WishesEverMoreRarelyUntilItIsGranted) {
  SnapBack snap;
  const auto first = snap.Wait();
  for (int wish = 1; wish <= 3; ++wish) {
    EXPECT_TRUE(snap.Wishes({.shown = true, .size = kOther}, kFixed, kRoom));
    snap.NoteChange({700, 440}, kFixed);  // a drag that goes on
    EXPECT_EQ(snap.Wait(), first * (1 << wish));
  }
  snap.NoteChange(kFixed, kFixed);
  EXPECT_EQ(snap.Wait(), first) << "another drag may follow";
  EXPECT_FALSE(snap.Wishes({.shown = true, .size = kFixed}, kFixed, kRoom));
}

}  // namespace
