// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "linux/recent/ListedDocuments.h"

namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

RecentEntry Entry(const std::string& href, std::vector<Moment> openings = {}) {
  RecentEntry entry;
  entry.href = href;
  entry.openings = std::move(openings);
  return entry;
}

TEST(ListedDocuments, ADocumentUnderSeveralAddressesIsOne) {
  const auto documents = DocumentsOf(
      {Entry("file:///b%5B1%5D", {1, 2}), Entry("file:///a", {9}), Entry("FILE:///b[1]/", {5})}, "/home/ana");
  ASSERT_EQ(documents.size(), 2U);
  EXPECT_EQ(documents[0].path, "/b[1]");
  EXPECT_THAT(documents[0].openings, ElementsAre(1, 2, 5));
  EXPECT_EQ(documents[1].path, "/a");
}

TEST(ListedDocuments, APrivateEntryIsLeftAwayEvenBesideAPublicOne) {
  RecentEntry secret = Entry("file:///a", {9});
  secret.isPrivate = true;
  EXPECT_THAT(DocumentsOf({secret}, "/home/ana"), IsEmpty());
  EXPECT_THAT(DocumentsOf({secret, Entry("file:///a", {5})}, "/home/ana").at(0).openings, ElementsAre(5));
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
