// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/Error.h"
#include "linux/recent/Sources.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// What a source says and does, as a test has it.
struct Script {
  bool hidesWhetherItIsDue = false;
  std::optional<Moment> began;
  std::string failure;
  std::vector<std::string> memories;  ///< that it was handed
};

class ScriptedSource : public Source {
 public:
  explicit ScriptedSource(Script& script) : m_script(script) {}

  const std::string& Name() const override { return m_name; }
  bool IsDue() override {
    if (m_script.hidesWhetherItIsDue) throw Error(kDeviceIoError, "no status");
    return true;
  }
  Reading Read(const std::string& memory) override {
    m_script.memories.push_back(memory);
    if (!m_script.failure.empty()) throw Error(kDeviceIoError, m_script.failure);
    return {{}, memory + "+"};
  }
  std::optional<Moment> BeganAt(const Opening& /*use*/) override {
    if (!m_script.failure.empty()) throw Error(kDeviceIoError, m_script.failure);
    return m_script.began;
  }

 private:
  Script& m_script;
  std::string m_name = "A";
};

class SourcesTest : public ::testing::Test {
 protected:
  std::vector<Sources::News> Read() {
    return m_all.Read([](const std::string&) { return "kept"; });
  }

  std::vector<std::unique_ptr<Source>> Scripted() {
    std::vector<std::unique_ptr<Source>> sources;
    for (Script* script : {&m_first, &m_second}) sources.push_back(std::make_unique<ScriptedSource>(*script));
    return sources;
  }

  Script m_first;
  Script m_second;
  std::vector<std::string> m_events;
  Sources m_all{Scripted(), [this](const std::string& event) { m_events.push_back(event); }};
};

TEST_F(SourcesTest, OneThatCannotSayWhetherItIsDueIsAskedSoThatItsFailureIsHeard) {
  m_first.hidesWhetherItIsDue = true;
  m_first.failure = "disk is gone";
  EXPECT_EQ(Read().size(), 1U);
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("there is A, A"), HasSubstr("disk is gone")));
}

TEST_F(SourcesTest, AReadingBeginsWhereTheOneBeforeEndedWhateverWasKeptOfIt) {
  Read();
  Read();
  EXPECT_THAT(m_first.memories, ElementsAre("kept", "kept+"));
}

TEST_F(SourcesTest, AUseBeganAtTheEarliestMomentThatASourceKnows) {
  m_first.began = 50;
  m_second.began = 70;
  EXPECT_EQ(m_all.BeganAt({"/a", 100, "", ""}), 50);
  m_first.began = 70;
  m_second.began = 50;
  EXPECT_EQ(m_all.BeganAt({"/a", 100, "", ""}), 50);
}

TEST_F(SourcesTest, NoUseBeganAfterItWasTold) {
  m_first.began = 100;
  m_second.began = 170;
  EXPECT_EQ(m_all.BeganAt({"/a", 100, "", ""}), std::nullopt);
}

TEST_F(SourcesTest, OneThatFailsDoesNotKeepAnotherFromKnowingWhenAUseBegan) {
  m_first.failure = "disk is gone";
  m_second.began = 50;
  EXPECT_EQ(m_all.BeganAt({"/a", 100, "", ""}), 50);
}

}  // namespace
}  // namespace dayvane::recent
