// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "controls/Signal.h"

namespace dayvane::controls {
namespace {

using ::testing::ElementsAre;

class SignalTest : public ::testing::Test {
 protected:
  auto Hears(const std::string& name) {
    return [this, name] { heard.push_back(name); };
  }

  std::vector<std::string> heard;
  Signal<> signal;
};

TEST_F(SignalTest, ListenersAreCalledInTheOrderOfConnecting) {
  signal.Connect(Hears("a"));
  const Connection connection = signal.ConnectScoped(Hears("b"));
  signal.Connect(Hears("c"));
  signal.Raise();
  EXPECT_THAT(heard, ElementsAre("a", "b", "c"));
}

TEST_F(SignalTest, AListenerHearsNothingOnceItsConnectionIsGone) {
  {
    const Connection connection = signal.ConnectScoped(Hears("a"));
    signal.Raise();
  }
  signal.Raise();
  EXPECT_THAT(heard, ElementsAre("a"));
}

TEST_F(SignalTest, AConnectionMayOutliveItsSignal) {
  Connection connection;
  {
    Signal<> shortLived;
    connection = shortLived.ConnectScoped(Hears("a"));
    shortLived.Raise();
  }
  EXPECT_THAT(heard, ElementsAre("a"));
}

TEST_F(SignalTest, AListenerThatLeavesWhileTheEventIsRaisedIsNotCalledAnyLonger) {
  std::optional<Connection> later;
  signal.Connect([&] { later.reset(); });
  later = signal.ConnectScoped(Hears("later"));
  signal.Raise();
  EXPECT_THAT(heard, ElementsAre());
}

TEST_F(SignalTest, AListenerThatComesWhileTheEventIsRaisedHearsTheNextOne) {
  bool connected = false;
  signal.Connect([&] {
    if (!connected) signal.Connect(Hears("new"));
    connected = true;
  });
  signal.Raise();
  EXPECT_THAT(heard, ElementsAre());
  signal.Raise();
  EXPECT_THAT(heard, ElementsAre("new"));
}

TEST_F(SignalTest, ListenersChangeWhatIsPassedByReference) {
  Signal<bool&> cancelable;
  cancelable.Connect([](bool& cancel) { cancel = true; });
  bool cancel = false;
  cancelable.Raise(cancel);
  EXPECT_TRUE(cancel);
}

}  // namespace
}  // namespace dayvane::controls
