// SPDX-License-Identifier: MIT
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/Error.h"
#include "linux/files/SingleInstance.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane {
namespace {

using dayvane::testing::TemporaryFolder;
using dayvane::testing::UnprivilegedUser;
namespace fs = std::filesystem;

/// Another process that is the instance, from the moment the object is made until it is killed.
class OtherInstance {
 public:
  explicit OtherInstance(const std::string& folder) {
    int ready[2];
    if (pipe(ready) != 0) throw std::runtime_error("no pipe");
    m_process = fork();
    if (m_process == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      const auto instance = SingleInstance::Acquire(folder);
      [[maybe_unused]] const auto told = write(ready[1], instance ? "1" : "0", 1);
      for (;;) pause();
    }
    close(ready[1]);
    char answer = '0';
    m_isTheOne = read(ready[0], &answer, 1) == 1 && answer == '1';
    close(ready[0]);
  }
  OtherInstance(const OtherInstance&) = delete;
  OtherInstance& operator=(const OtherInstance&) = delete;
  ~OtherInstance() { Kill(); }

  bool IsTheOne() const { return m_isTheOne; }

  void Kill() {
    if (m_process <= 0) return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
    m_process = 0;
  }

 private:
  pid_t m_process = 0;
  bool m_isTheOne = false;
};

/// Processes that all try to be the instance at the same moment and live on, whatever came of it.
class Race {
 public:
  Race(const std::string& folder, int starters) {
    int go[2];
    int told[2];
    if (pipe(go) != 0 || pipe(told) != 0) throw std::runtime_error("no pipe");
    for (int i = 0; i < starters; ++i) m_processes.push_back(Starter(folder, go, told[1]));
    for (const int end : {go[0], go[1], told[1]}) close(end);  // Nobody can write there any more: that is the signal.
    char answer = '0';
    for (int i = 0; i < starters && read(told[0], &answer, 1) == 1; ++i) m_winners += answer == '1' ? 1 : 0;
    close(told[0]);
  }
  Race(const Race&) = delete;
  Race& operator=(const Race&) = delete;
  ~Race() {
    for (const pid_t process : m_processes) {
      kill(process, SIGKILL);
      waitpid(process, nullptr, 0);
    }
  }

  int Winners() const { return m_winners; }

 private:
  static pid_t Starter(const std::string& folder, const int (&go)[2], int tell) {
    const pid_t process = fork();
    if (process != 0) return process;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    close(go[1]);
    char signal = 0;
    [[maybe_unused]] const auto none = read(go[0], &signal, 1);
    const auto instance = SingleInstance::Acquire(folder);
    [[maybe_unused]] const auto told = write(tell, instance ? "1" : "0", 1);
    for (;;) pause();
  }

  std::vector<pid_t> m_processes;
  int m_winners = 0;
};

TEST(SingleInstance, OfTwoStartsAtTheSameMomentExactlyOneLives) {
  const TemporaryFolder folder;
  for (int round = 0; round < 50; ++round) {
    EXPECT_EQ(Race(folder.Native(), 2).Winners(), 1) << round;
    // Every other time there is no lock file of an earlier run.
    if (round % 2 == 0) fs::remove(folder / "dayvane.lock");
  }
}

TEST(SingleInstance, ASecondProcessIsRefused) {
  const TemporaryFolder folder;
  const auto instance = SingleInstance::Acquire(folder.Native());
  ASSERT_TRUE(instance);
  EXPECT_FALSE(OtherInstance(folder.Native()).IsTheOne());
}

TEST(SingleInstance, AKilledProcessMakesWay) {
  const TemporaryFolder folder;
  OtherInstance other(folder.Native());
  ASSERT_TRUE(other.IsTheOne());
  EXPECT_FALSE(SingleInstance::Acquire(folder.Native()));
  other.Kill();
  EXPECT_TRUE(SingleInstance::Acquire(folder.Native()));
}

TEST(SingleInstance, AnInstanceThatEndsMakesWay) {
  const TemporaryFolder folder;
  {
    const auto instance = SingleInstance::Acquire(folder.Native());
    ASSERT_FALSE(SingleInstance::Acquire(folder.Native()));
  }
  EXPECT_TRUE(SingleInstance::Acquire(folder.Native()));
}

TEST(SingleInstance, TheLockMovesWithTheObject) {
  const TemporaryFolder folder;
  auto instance = SingleInstance::Acquire(folder.Native());
  ASSERT_TRUE(instance);
  const SingleInstance moved = std::move(*instance);
  instance.reset();
  EXPECT_FALSE(SingleInstance::Acquire(folder.Native()));
}

TEST(SingleInstance, TheLockFileIsMarkedAsInUse) {
  const TemporaryFolder folder;
  const auto instance = SingleInstance::Acquire(folder.Native());
  const auto permissions = fs::status(folder / "dayvane.lock").permissions();
  EXPECT_EQ(permissions & fs::perms::sticky_bit, fs::perms::sticky_bit);
}

TEST(SingleInstance, AFolderThatCannotBeUsedIsAnErrorAndNoSecondInstance) {
  const TemporaryFolder folder;
  EXPECT_THROW(SingleInstance::Acquire(folder / "gone"), Error);
}

TEST(SingleInstance, APrivateRuntimeFolderIsTaken) {
  const TemporaryFolder folder;
  xdg::Environment environment;
  environment.runtimeFolder = folder.Native();
  EXPECT_EQ(SingleInstance::Folder(environment, "/nowhere"), folder.Native());
}

TEST(SingleInstance, AProcessThatWasNotToldOfTheRuntimeFolderUsesTheSame) {
  const TemporaryFolder folder;
  const std::string own = folder / std::to_string(geteuid());
  fs::create_directory(own);
  fs::permissions(own, fs::perms::owner_all);
  EXPECT_EQ(SingleInstance::Folder({}, folder.Native()), own);
}

TEST(SingleInstance, WithoutARuntimeFolderOneIsMadeInTheTemporaryFolder) {
  const TemporaryFolder folder;
  xdg::Environment environment;
  environment.temporary = folder.Native();
  for (const std::string& useless : {std::string(), std::string("relative"), folder / "gone", std::string("/")}) {
    environment.runtimeFolder = useless;
    const std::string own = SingleInstance::Folder(environment, "/nowhere");
    EXPECT_EQ(own, folder / ("dayvane-" + std::to_string(geteuid()))) << useless;
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
  }
}

TEST(SingleInstance, AFolderOfSomeoneElsesIsNeverTaken) {
  const TemporaryFolder folder;
  xdg::Environment environment;
  environment.temporary = folder.Native();
  const std::string own = folder / ("dayvane-" + std::to_string(geteuid()));
  fs::create_directory_symlink(folder.Native(), own);
  EXPECT_THROW(SingleInstance::Folder(environment, "/nowhere"), Error);
  fs::remove(own);
  fs::create_directory(own);
  fs::permissions(own, fs::perms(0755));
  EXPECT_THROW(SingleInstance::Folder(environment, "/nowhere"), Error);
}

TEST(SingleInstance, ARuntimeFolderOfAnotherUserIsNotTaken) {
  const TemporaryFolder folder;
  if (geteuid() != 0) GTEST_SKIP() << "only root can become another user";
  const TemporaryFolder temporary;
  fs::permissions(temporary.Native(), fs::perms(0777));
  xdg::Environment environment;
  environment.runtimeFolder = folder.Native();
  environment.temporary = temporary.Native();
  const UnprivilegedUser nobody;
  EXPECT_EQ(SingleInstance::Folder(environment, "/nowhere"), temporary / ("dayvane-" + std::to_string(geteuid())));
}

}  // namespace
}  // namespace dayvane
