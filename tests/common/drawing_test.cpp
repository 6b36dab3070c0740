// What must be drawn again, and what a rectangle meets.
#include "desktop/common/drawing.h"

#include <gtest/gtest.h>

#include "tests/common/bench_form.h"

namespace {

using desktop::common::Drawing;
using desktop::common::Rect;
using Rects = std::vector<Rect>;

class Drawn : public testing::Test {
 protected:
  bench::Type type;
  bench::Form form{"form"};
  Drawing drawing{form, type};
};

TEST_F(Drawn, WhatHasChangedIsDrawnAgainAtItsOldAndItsNewPlace) {
  EXPECT_EQ(drawing.Follow(), Rects{});
  form.boxes[2].MoveTo(70, 50);
  EXPECT_EQ(drawing.Follow(), (Rects{{50, 50, 10, 10}, {70, 50, 10, 10}}));
  EXPECT_EQ(drawing.Follow(), Rects{}) << "once";
  form.boxes[2].Visible = false;
  EXPECT_EQ(drawing.Follow(), (Rects{{70, 50, 10, 10}}));
  form.boxes[2].MoveTo(0, 50);
  EXPECT_EQ(drawing.Follow(), Rects{}) << "nothing of it shows";
  form.boxes[2].Visible = true;
  EXPECT_EQ(drawing.Follow(), (Rects{{0, 50, 10, 10}}));
  form.boxes[1].Stretch = true;
  EXPECT_EQ(drawing.Follow(), (Rects{{5, 0, 10, 10}, {5, 0, 10, 10}})) << "any change of a record counts";
}

TEST_F(Drawn, OfTwoThatHaveChangedPlacesWhatTheyShareIsDrawnAgain) {
  form.ToFront(form.boxes[2]);
  EXPECT_EQ(drawing.Follow(), Rects{}) << "it overlaps nothing";
  form.ToFront(form.boxes[0]);
  EXPECT_EQ(drawing.Follow(), (Rects{{5, 0, 5, 10}}));
  form.ToFront(form.boxes[1]);
  form.ToFront(form.boxes[0]);
  EXPECT_EQ(drawing.Follow(), Rects{}) << "raised both, they lie as they lay";
  form.boxes[1].Visible = false;
  form.ToFront(form.boxes[1]);
  EXPECT_EQ(drawing.Follow(), (Rects{{5, 0, 10, 10}})) << "hidden, it shares nothing";
}

TEST_F(Drawn, ARectangleMeetsWhatItTouchesBackToFront) {
  const auto names = [&](const Rects& areas) {
    std::string met;
    for (const auto* element : drawing.Meeting(areas)) met += element->Caption.substr(0, 1);
    return met;
  };
  EXPECT_EQ(names({{0, 0, 5, 1}}), "a");
  EXPECT_EQ(names({{0, 0, 6, 1}}), "ab");
  EXPECT_EQ(names({{15, 0, 9, 50}}), "");
  EXPECT_EQ(names({{55, 55, 1, 1}, {9, 9, 1, 1}}), "abc");
  // The text takes two lines and its letters lean out of the box.
  EXPECT_EQ(names({{16, 100, 1, 1}}), "o");
  form.ToFront(form.boxes[0]);
  form.boxes[2].Visible = false;
  EXPECT_EQ(names({{0, 0, 100, 100}}), "boa");
}

TEST_F(Drawn, TheRingIsDrawnWhereItStandsAndTakenAwayWhereItStood) {
  form.stops.resize(2);
  form.stops[0].Left = form.stops[0].Top = form.stops[1].Left = 30;
  form.AtStop = 0;
  EXPECT_EQ(drawing.Follow(), Rects{}) << "no key has been used";
  form.ShowsStop = true;
  EXPECT_EQ(drawing.Follow(), (Rects{{26, 26, 8, 8}}));
  form.AtStop = 1;
  EXPECT_EQ(drawing.Follow(), (Rects{{26, 26, 8, 8}, {26, 0, 8, 4}}));
  EXPECT_EQ(drawing.Ring(), (Rect{26, 0, 8, 4}));
  form.stops[1].Visible = false;
  EXPECT_EQ(drawing.Follow(), (Rects{{26, 0, 8, 4}}));
}

}  // namespace
