// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "linux/recent/ListedDocuments.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

RecentEntry Entry(const std::string& href, const std::vector<Moment>& openings = {}) {
  RecentEntry entry;
  entry.href = href;
  for (const Moment moment : openings) entry.openings.push_back({moment, "Editor"});
  return entry;
}

std::vector<Moment> Moments(const ListedDocument& document) {
  std::vector<Moment> moments;
  for (const Opening& opening : document.openings) moments.push_back(opening.moment);
  return moments;
}

TEST(ListedDocuments, ADocumentUnderSeveralAddressesIsOne) {
  const auto documents = DocumentsOf(
      {Entry("file:///b%5B1%5D", {1, 2}), Entry("file:///a", {9}), Entry("FILE:///b[1]/", {5})}, "/home/ana");
  ASSERT_EQ(documents.size(), 2U);
  EXPECT_EQ(documents[0].path, "/b[1]");
  EXPECT_THAT(Moments(documents[0]), ElementsAre(1, 2, 5));
  EXPECT_EQ(documents[1].path, "/a");
}

TEST(ListedDocuments, AnOpeningSaysWhichDocumentOfWhichTypeWasOpenedWhenAndByWhom) {
  RecentEntry entry = Entry("file:///home/ana/Report%201.odt", {5});
  entry.mimeType = "application/vnd.oasis.opendocument.text";
  const auto documents = DocumentsOf({entry}, "/home/ana/.local/share");
  ASSERT_EQ(documents.at(0).openings.size(), 1U);
  const Opening& opening = documents[0].openings[0];
  EXPECT_EQ(opening.path, "/home/ana/Report 1.odt");
  EXPECT_EQ(opening.moment, 5);
  EXPECT_EQ(opening.program, "Editor");
  EXPECT_EQ(opening.mimeType, "application/vnd.oasis.opendocument.text");
}

TEST(ListedDocuments, APrivateEntryIsLeftAwayEvenBesideAPublicOne) {
  RecentEntry secret = Entry("file:///a", {9});
  secret.isPrivate = true;
  EXPECT_THAT(DocumentsOf({secret}, "/home/ana"), IsEmpty());
  EXPECT_THAT(Moments(DocumentsOf({secret, Entry("file:///a", {5})}, "/home/ana").at(0)), ElementsAre(5));
}

TEST(ListedDocuments, FoldersAreNoDocuments) {
  RecentEntry folder = Entry("file:///home/ana");
  folder.mimeType = "inode/directory";
  EXPECT_THAT(DocumentsOf({folder}, "/home/ana"), IsEmpty());
}

TEST(ListedDocuments, TheTrashAndOtherMachinesAreLeftAway) {
  EXPECT_THAT(DocumentsOf({Entry("file:///data/Trash/files/a"), Entry("smb://server/a"), Entry("")}, "/data"),
              IsEmpty());
}

}  // namespace
}  // namespace dayvane::recent
