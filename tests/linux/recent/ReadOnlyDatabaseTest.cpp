// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "linux/recent/ReadOnlyDatabase.h"
#include "tests/linux/recent/ActivityDatabase.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

class ReadOnlyDatabaseTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder m_folder;
  const std::string m_path = m_folder / "database";
  testing::ActivityDatabase m_writer{m_path};
};

TEST_F(ReadOnlyDatabaseTest, ItCannotBeChanged) {
  const ReadOnlyDatabase database(m_path);
  auto query = database.Ask("DELETE FROM SchemaInfo");
  EXPECT_THROW(query.Next(), Error);
}

TEST_F(ReadOnlyDatabaseTest, AllQueriesSeeOneState) {
  const ReadOnlyDatabase database(m_path);
  auto count = database.Ask("SELECT count(*) FROM ResourceEvent");
  count.Next();
  m_writer.Add("kate", "/a", 1);
  count.Reset();
  count.Next();
  EXPECT_EQ(count.Number(0), 0);
}

TEST_F(ReadOnlyDatabaseTest, AQueryWithoutEndIsGivenUp) {
  const ReadOnlyDatabase database(m_path);
  auto query = database.Ask("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT max(i) FROM n");
  EXPECT_THROW(query.Next(), Error);
}

TEST_F(ReadOnlyDatabaseTest, AMissingDatabaseIsNotMade) {
  EXPECT_THROW(ReadOnlyDatabase(m_folder / "none"), Error);
  EXPECT_FALSE(std::filesystem::exists(m_folder / "none"));
}

TEST_F(ReadOnlyDatabaseTest, AColumnOfAnotherTypeHoldsNothing) {
  const ReadOnlyDatabase database(m_path);
  auto query = database.Ask("SELECT 'text', 5, NULL, x'41', 1.5");
  ASSERT_TRUE(query.Next());
  EXPECT_EQ(query.Text(0), "text");
  EXPECT_EQ(query.Number(1), 5);
  for (const int column : {0, 2, 3, 4}) EXPECT_EQ(query.Number(column), std::nullopt) << column;
  for (const int column : {1, 2, 3, 4}) EXPECT_EQ(query.Text(column), "") << column;
  EXPECT_FALSE(query.Next());
}

}  // namespace
}  // namespace dayvane::recent
