// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "windows/files/SingleInstance.h"
#include "windows/files/WideText.h"

namespace dayvane {
namespace {

/// A name for this run of the tests, beside which the program itself may run.
std::wstring NameOf(const std::string& purpose) {
  return files::ToWide("Local\\Dayvane test " + std::to_string(GetCurrentProcessId()) + purpose).value();
}

TEST(WindowsSingleInstance, TheSecondFindsTheFirst) {
  const auto first = SingleInstance::Acquire(NameOf("a").c_str());
  ASSERT_TRUE(first.has_value());
  EXPECT_FALSE(SingleInstance::Acquire(NameOf("a").c_str()).has_value());
}

TEST(WindowsSingleInstance, TheNextStartsAfterTheFirstHasEnded) {
  for (int start = 0; start < 2; ++start) EXPECT_TRUE(SingleInstance::Acquire(NameOf("b").c_str()).has_value());
}

TEST(WindowsSingleInstance, ANameThatCannotBeHadCountsAsHeld) {
  const std::wstring name = NameOf("c");
  const files::ObjectHandle event(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
  EXPECT_FALSE(SingleInstance::Acquire(name.c_str()).has_value());
}

TEST(WindowsSingleInstance, AnErrorOfSomethingElseBeforeIsNotTakenForAnotherInstance) {
  SetLastError(ERROR_ALREADY_EXISTS);
  EXPECT_TRUE(SingleInstance::Acquire(NameOf("d").c_str()).has_value());
}

}  // namespace
}  // namespace dayvane
