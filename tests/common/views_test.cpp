// One view for each form on show.
#include "desktop/common/views.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "tests/common/bench_form.h"

namespace {

using desktop::common::View;
using desktop::common::Views;

class Shown : public testing::Test {
 protected:
  class Sheet : public View {
   public:
    Sheet(Shown& all, const desktop::Form& form) : all_(all), form_(form) { all_.Note("new ", form_); }
    void Follow() override { all_.Note("follow ", form_); }
    void Draw(bool atOnce) override {
      if (atOnce) all_.Note("at once ", form_);
    }
    void Show(bool shown) override {
      if (!shown) all_.Note("covered ", form_);
    }
    void Raise() override { all_.Note("raise ", form_); }
    void TakeKeyboard() override { all_.Note("keys ", form_); }
    void Retire() override { all_.Note("retire ", form_); }

   private:
    Shown& all_;
    const desktop::Form& form_;
  };

  void Note(const char* what, const desktop::Form& form) { told_ += what + std::string(form.Name) + "; "; }
  std::string Follow() {
    told_.clear();
    views.Follow();
    return told_;
  }

  bench::Frame frame;
  bench::Form one{"1"}, two{"2"};
  void SetUp() override { two.Left = 1; }
  std::vector<std::unique_ptr<Sheet>> sheets;
  Views views{frame,
              [this](desktop::Form& form) { return sheets.emplace_back(std::make_unique<Sheet>(*this, form)).get(); }};

 private:
  std::string told_;
};

TEST_F(Shown, AreMadeRaisedAndRetiredWithTheForms) {
  EXPECT_EQ(Follow(), "");
  frame.Show(one);
  EXPECT_EQ(Follow(), "new 1; follow 1; raise 1; keys 1; ");
  EXPECT_EQ(Follow(), "follow 1; ");
  frame.Show(two);
  EXPECT_EQ(Follow(), "follow 1; new 2; follow 2; raise 1; raise 2; keys 2; ");
  frame.Show(one);
  EXPECT_EQ(Follow(), "follow 2; follow 1; raise 2; raise 1; keys 1; ");
  frame.Unload(one);
  EXPECT_EQ(Follow(), "retire 1; follow 2; raise 2; keys 2; ");
  frame.Show(one);
  EXPECT_EQ(Follow(), "follow 2; new 1; follow 1; raise 2; raise 1; keys 1; ") << "a new one";
}

TEST_F(Shown, DoNotShowWhereAnotherOneCoversThem) {
  two.Width = two.Height = 50;
  two.Left = 10;
  frame.Show(one);
  frame.Show(two);
  EXPECT_EQ(Follow().find("covered"), std::string::npos) << "a small one leaves the table in view";
  frame.Show(one);
  EXPECT_EQ(Follow(), "follow 2; covered 2; follow 1; raise 2; raise 1; keys 1; ");
  two.Left = 51;
  EXPECT_EQ(Follow(), "follow 2; follow 1; ") << "its edge peeps out";
}

TEST_F(Shown, GiveTheKeyboardToWhatTheFormInFrontNamesAndOnlyWhenThatChanges) {
  frame.Show(two);
  frame.Show(one);
  Follow();
  EXPECT_EQ(one.Focus, &one.closing) << "its default, as nothing else had it";
  EXPECT_EQ(two.Focus, nullptr) << "not in front";
  one.Focus = &one.plain;
  EXPECT_EQ(Follow(), "follow 2; follow 1; keys 1; ");
  EXPECT_EQ(Follow(), "follow 2; follow 1; ") << "an open menu keeps it";
  one.plain.Visible = false;
  EXPECT_EQ(Follow(), "follow 2; follow 1; keys 1; ");
}

}  // namespace
