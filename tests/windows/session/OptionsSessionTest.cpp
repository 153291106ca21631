// SPDX-License-Identifier: MIT
#include "tests/windows/session/SessionTest.h"

namespace dayvane::session {
namespace {

class OptionsSession : public SessionTest {
 protected:
  void SetUp() override {
    SessionTest::SetUp();
    StoreUsualOptions();
    Start();
    ChooseMenu("VO");
    m_dialog = Program().WaitForWindow("Dayvane Options");
  }

  HWND Field(int index) const {
    int seen = 0;
    return FindChild(m_dialog, [&](HWND child) { return ClassOf(child) == "Edit" && seen++ == index; });
  }

  void Write(int index, const std::wstring& text) {
    RECT place{};
    GetClientRect(Field(index), &place);
    Click(MiddleOf(Field(index), place));
    PressKey(VK_HOME);
    PressKey(VK_SHIFT, VK_END);
    TypeText(text);
    // The system hands on what is typed in its own time.
    ExpectSoon(std::string(text.begin(), text.end()), [&] { return TextOf(Field(index)); });
  }

  void Press(const std::string& caption) {
    const HWND button = FindChild(m_dialog, "Button", caption);
    RECT place{};
    GetClientRect(button, &place);
    Click(MiddleOf(button, place));
  }

  bool IsOpen() const { return IsWindow(m_dialog) != 0 && IsShown(m_dialog); }

 private:
  HWND m_dialog = nullptr;
};

constexpr int kThreshold = 0;
constexpr int kAge = 1;
constexpr int kInterval = 2;

TEST_F(OptionsSession, ShowWhatIsStored) {
  EXPECT_EQ(TextOf(Field(kThreshold)), "2");
  EXPECT_EQ(TextOf(Field(kAge)), "30");
  EXPECT_EQ(TextOf(Field(kInterval)), "1");
}

TEST_F(OptionsSession, RefuseEachValueOutOfItsRange) {
  const char* const refusals[] = {"The Favorites Threshhold must be 1 or more.", "The Purge age must be 1 or more.",
                                  "The Timer Interval must be between 1 and 60."};
  for (const int field : {kThreshold, kAge, kInterval}) {
    const std::string before = TextOf(Field(field));
    Write(field, L"0");
    Press("OK");
    EXPECT_EQ(AnswerBox(IDOK), refusals[field]);
    EXPECT_TRUE(IsOpen());
    Write(field, std::wstring(before.begin(), before.end()));
  }
  Write(kInterval, L"61");
  Press("OK");
  EXPECT_EQ(AnswerBox(IDOK), refusals[kInterval]);
}

TEST_F(OptionsSession, RefuseLettersAtOnce) {
  RECT place{};
  GetClientRect(Field(kAge), &place);
  Click(MiddleOf(Field(kAge), place));
  TypeText(L"x");
  EXPECT_EQ(AnswerBox(IDOK), "The Purge age must be 1 or more.");
  EXPECT_EQ(TextOf(Field(kAge)), "30");
}

TEST_F(OptionsSession, StoreNothingAfterCancel) {
  Write(kAge, L"17");
  Press("Cancel");
  ExpectSoon(false, [&] { return IsOpen(); });
  EXPECT_EQ(Setting("Options", "Purge Age"), "30");
}

TEST_F(OptionsSession, StoreEverythingAfterOk) {
  Write(kThreshold, L"5");
  Write(kAge, L"5000");
  Press("OK");
  ExpectSoon(false, [&] { return IsOpen(); });
  ExpectSoon(std::string("5"), [&] { return Setting("Options", "Favorites Threshold"); });
  ExpectSoon(std::string("5000"), [&] { return Setting("Options", "Purge Age"); });
}

TEST_F(OptionsSession, OpenTheirHelp) {
  Press("&Help");
  EXPECT_NE(Program().WaitForWindow("Options - Dayvane Help"), nullptr);
}

}  // namespace
}  // namespace dayvane::session
