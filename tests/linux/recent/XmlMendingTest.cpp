#include <gtest/gtest.h>

#include "linux/recent/XmlMending.h"

namespace dayvane::recent {
namespace {

TEST(XmlMending, SoundTextStaysAsItIs) {
  const std::string text = "<a b=\"&amp;&lt;&#233;&#x1F600;\">\t\xC3\xA9\n\xF0\x9F\x98\x80</a>";
  const MendedXml mended = MendXml(text);
  EXPECT_EQ(mended.text, text);
  EXPECT_FALSE(mended.wasBroken);
}

TEST(XmlMending, TheDeclarationAndAByteOrderMarkAreTakenOff) {
  EXPECT_EQ(MendXml("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a/>").text, "<a/>");
  EXPECT_EQ(MendXml("\n <?xml version=\"1.0\"?>\n<a/>").text, "\n<a/>");
}

TEST(XmlMending, BytesThatAreNoUtf8BecomeEscapesOfThemselves) {
  const MendedXml mended = MendXml("a\xFF\xC3\xA9\xC3z\xED\xA0\x80");
  EXPECT_EQ(mended.text, "a%FF\xC3\xA9%C3z%ED%A0%80");
  EXPECT_TRUE(mended.wasBroken);
}

TEST(XmlMending, AByteThatIsCutOffAtTheEndIsEscaped) {
  EXPECT_EQ(MendXml("a\xE2\x82").text, "a%E2%82");
}

TEST(XmlMending, ForbiddenCharactersBecomeEscapes) {
  const MendedXml mended = MendXml(std::string("a\x01\x00\xEF\xBF\xBF", 6));
  EXPECT_EQ(mended.text, "a%01%00%EF%BF%BF");
  EXPECT_TRUE(mended.wasBroken);
}

TEST(XmlMending, ControlCharactersAsGLibWritesThemAreNoBreach) {
  const MendedXml mended = MendXml("a&#x1b;&#7;b");
  EXPECT_EQ(mended.text, "a%1B%07b");
  EXPECT_FALSE(mended.wasBroken);
}

TEST(XmlMending, AnAmpersandThatStartsNoReferenceStandsForItself) {
  for (const char* odd : {"&", "& ", "&nbsp;", "&#;", "&#x;", "&#xZZ;", "&#xD800;", "&#99999999999;", "&;"}) {
    const MendedXml mended = MendXml(odd);
    EXPECT_EQ(mended.text, "&amp;" + std::string(odd).substr(1)) << odd;
    EXPECT_TRUE(mended.wasBroken) << odd;
  }
}

}  // namespace
}  // namespace dayvane::recent
