// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Form.h"

namespace dayvane::controls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    form.Resize.Connect([this] { heard.emplace_back("resize"); });
    form.QueryUnload.Connect([this](bool& cancel, UnloadMode mode) {
      heard.push_back("asked by " + std::to_string(static_cast<int>(mode)));
      cancel = refuses;
    });
    form.Unload.Connect([this] { heard.emplace_back(form.Visible() ? "unload, shown" : "unload, hidden"); });
    form.Unloaded.Connect([this] { heard.emplace_back(form.Visible() ? "gone, shown" : "gone, hidden"); });
  }

  Form form;
  bool refuses = false;
  std::vector<std::string> heard;
};

TEST_F(FormTest, AWindowStartsHiddenAndNormal) {
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.State(), WindowState::Normal);
  EXPECT_EQ(form.Pointer(), MousePointer::Default);
  EXPECT_FALSE(form.IsUnloaded());
}

TEST_F(FormTest, MaximisingIsAResizeAndDoingItAgainIsNone) {
  form.SetState(WindowState::Maximised);
  form.SetState(WindowState::Maximised);
  EXPECT_THAT(heard, ElementsAre("resize"));
}

TEST_F(FormTest, EitherSideOfTheRoomInsideThatChangesIsAResize) {
  form.SetScale(100, 50);
  form.SetScale(100, 60);
  form.SetScale(90, 60);
  form.SetScale(90, 60);
  EXPECT_THAT(heard, ElementsAre("resize", "resize", "resize"));
  EXPECT_EQ(form.ScaleWidth(), 90);
  EXPECT_EQ(form.ScaleHeight(), 60);
}

TEST_F(FormTest, AFormThatGoesIsAskedThenToldThenHidden) {
  form.SetVisible(true);
  EXPECT_TRUE(form.RequestUnload(UnloadMode::SystemSession));
  EXPECT_THAT(heard, ElementsAre("asked by 2", "unload, shown", "gone, hidden"));
  EXPECT_TRUE(form.IsUnloaded());
}

TEST_F(FormTest, AFormThatRefusesStays) {
  form.SetVisible(true);
  refuses = true;
  EXPECT_FALSE(form.RequestUnload(UnloadMode::ControlMenu));
  EXPECT_THAT(heard, ElementsAre("asked by 0"));
  EXPECT_TRUE(form.Visible());
  EXPECT_FALSE(form.IsUnloaded());
}

TEST_F(FormTest, AFormGoesOnce) {
  form.RequestUnload(UnloadMode::Code);
  heard.clear();
  EXPECT_TRUE(form.RequestUnload(UnloadMode::SystemSession));
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(FormTest, AFormThatIsAskedToGoWhileItGoesGoesOnce) {
  form.Unload.Connect([this] { form.RequestUnload(UnloadMode::SystemSession); });
  form.RequestUnload(UnloadMode::Code);
  EXPECT_THAT(heard, ElementsAre("asked by 1", "unload, hidden", "gone, hidden"));
}

}  // namespace
}  // namespace dayvane::controls
