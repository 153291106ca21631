// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/Random.h"
#include "views/FavoritesFile.h"

namespace dayvane::favorites {
namespace {

std::vector<Value> All(std::string_view text) {
  std::vector<Value> values;
  for (ValueReader reader(text); !reader.AtEnd();) values.push_back(reader.Next());
  return values;
}

/// Any value that a table can hold: texts have no quotation mark, and a fraction is one.
Value RandomValue(dayvane::testing::Random& random) {
  const auto day = [&] { return Date::Of(100 + random.Below(9900), 1 + random.UnsignedBelow(12), 28); };
  const auto time = [&](const Date& date) {
    return Date::Of(date.Year(), date.Month(), date.Day(), random.Below(24), random.Below(60), random.Below(60));
  };
  switch (random.Below(7)) {
    case 0:
      return {};
    case 1:
      return (std::int64_t{random.Below(2000)} - 1000) * random.Below(1000000) * random.Below(1000000);
    case 2:
      return random.Below(1000000) - 500000 + 1.0 / (2 + random.Below(1000));
    case 3:
      return day();
    case 4:
      return time(Date());
    case 5:
      return time(day());
    default:
      return random.Text("aZ \\,#\r\n\t5\xC3\xA4", 12);
  }
}

TEST(FavoritesFile, ARecordIsOneLineOfEightValues) {
  const Record record{std::int64_t{3},
                      Date::Of(1998, 5, 12, 14, 3, 27),
                      std::string("Z:\\Daily\\1998\\May\\12\\a.lnk"),
                      std::string("a, b.odt"),
                      std::string("z:\\home"),
                      std::string(),
                      Value{},
                      std::int64_t{-5}};
  EXPECT_EQ(FormatRecord(record),
            "3,#1998-05-12 14:03:27#,\"Z:\\Daily\\1998\\May\\12\\a.lnk\",\"a, b.odt\",\"z:\\home\",\"\",,-5\r\n");
}

TEST(FavoritesFile, ADateWithoutATimeAndATimeWithoutADateStandAlone) {
  EXPECT_EQ(FormatValue(Date::Of(1998, 5, 12)), "#1998-05-12#");
  EXPECT_EQ(FormatValue(Date::Of(1899, 12, 30, 14, 3, 27)), "#14:03:27#");
}

TEST(FavoritesFile, WhatIsWrittenIsReadBackWithItsTypes) {
  const std::vector<Value> values{std::int64_t{3},
                                  Date::Of(1998, 5, 12, 14, 3, 27),
                                  Date::Of(1998, 5, 12),
                                  Date::Of(1899, 12, 30, 14, 3, 27),
                                  std::string("a, \r\n b"),
                                  std::string(),
                                  Value{},
                                  std::int64_t{-5},
                                  2.5};
  std::string text;
  for (const Value& value : values) text += FormatValue(value) + ",";
  EXPECT_EQ(All(text), values);
}

TEST(FavoritesFile, AnyRecordsAreReadBackAsTheyWere) {
  dayvane::testing::Random random(1998);
  std::vector<Value> written;
  std::string text;
  for (int i = 0; i < 1000; ++i) {
    Record record;
    for (Value& value : record) written.push_back(value = RandomValue(random));
    text += FormatRecord(record);
  }
  EXPECT_EQ(All(text), written);
}

TEST(FavoritesFile, AFileCutAtAnyByteIsReadToItsEndAndBeginsAsItDid) {
  const std::string whole = FormatRecord({std::int64_t{3}, Date::Of(1998, 5, 12, 14, 3, 27), std::string("Z:\\a.lnk"),
                                          std::string("a, b.odt"), std::string(), Value{}, 2.5, std::int64_t{-5}});
  const std::vector<Value> values = All(whole);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const std::vector<Value> cut = All(std::string_view(whole).substr(0, length));
    ASSERT_LE(cut.size(), values.size()) << length;
    for (std::size_t i = 0; i + 1 < cut.size(); ++i) EXPECT_EQ(cut[i], values[i]) << length;
  }
}

TEST(FavoritesFile, ALineBreakSeparatesValuesAsACommaDoes) {
  EXPECT_EQ(All("1,\"a\"\r\n2\n3"),
            (std::vector<Value>{std::int64_t{1}, std::string("a"), std::int64_t{2}, std::int64_t{3}}));
}

TEST(FavoritesFile, BlanksAroundAnUnquotedValueAreDropped) {
  EXPECT_EQ(All("  7  ,  word \r\n"), (std::vector<Value>{std::int64_t{7}, std::string("word")}));
}

TEST(FavoritesFile, AnEmptyValueStaysEmpty) {
  EXPECT_EQ(All(",5"), (std::vector<Value>{Value{}, std::int64_t{5}}));
}

TEST(FavoritesFile, ANumberSignTextThatIsNoDateStaysAText) {
  for (const char* text : {"#1998-13-01#", "#hello#", "#", "##", "#1998-05-12 14:03#"})
    EXPECT_EQ(All(text), std::vector<Value>{std::string(text)}) << text;
}

TEST(FavoritesFile, ATextWithoutItsClosingMarkEndsWithTheFile) {
  EXPECT_EQ(All("\"abc"), std::vector<Value>{std::string("abc")});
}

TEST(FavoritesFile, ReadingPastTheEndFails) {
  ValueReader reader("");
  EXPECT_THROW(reader.Next(), Error);
}

TEST(FavoritesValue, TextsThatAreNumbersCountAsNumbers) {
  EXPECT_EQ(NumberOf(std::string(" 12 ")), 12);
  EXPECT_EQ(NumberOf(Value{}), 0);
  EXPECT_THROW(NumberOf(std::string("many")), Error);
}

TEST(FavoritesValue, ADateIsLaterThanNothingAndThanAnEarlierDateButNotThanAText) {
  const Date date = Date::Of(2026, 11, 21);
  EXPECT_TRUE(IsLater(date, Value{}));
  EXPECT_TRUE(IsLater(date, Date::Of(2026, 11, 20)));
  EXPECT_FALSE(IsLater(date, date));
  EXPECT_FALSE(IsLater(date, std::string("garbage")));
}

TEST(FavoritesFile, ANegativeZeroIsWrittenAsTheZeroThatItIsReadAs) {
  EXPECT_EQ(FormatValue(ValueReader("-0e3").Next()), "0");
}

}  // namespace
}  // namespace dayvane::favorites
