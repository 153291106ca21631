// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "linux/recent/ForeignShortcuts.h"
#include "linux/recent/ListedDocuments.h"
#include "linux/recent/RecentDisk.h"
#include "linux/recent/RecentState.h"
#include "linux/recent/Sources.h"
#include "platform/Shell.h"

namespace dayvane::recent {

/// The bytes of a shell link.
using LinkWriter = std::function<std::string(const platform::ShellLink&)>;

/// Tells when a use of a document began that reached up to a moment; nothing when nobody knows.
using BeganAt = std::function<std::optional<Moment>(const Opening& use)>;

/// What the desktop's list and the further sources tell anew.
struct Tidings {
  std::optional<Listing> list;
  std::vector<ListedDocument> arrived;  ///< of earlier listings, whose documents have come to be only now
  std::vector<Sources::News> sources;
  Moment now = 0;

  bool IsEmpty() const { return !list && arrived.empty() && sources.empty(); }
};

/// The first thing that went wrong with the disk during one call.
using Failure = std::optional<std::string>;

/// The shortcuts of the Recent folder, one for each document that was ever listed, and what is remembered of them.
///
/// A change goes to the disk in three steps: the state with the new openings as pending, the shortcuts, the state
/// without them. After a kill between any two of them the next session does what is left and nothing twice, because
/// the folder shows which shortcuts have their time already. A step that fails is tried again by the next call.
class RecentShortcuts {
 public:
  struct Limits {
    std::size_t shortcuts = 1000;  ///< the folder keeps this many of the newest

    /// Documents that are remembered; more only where the list or the folder itself holds more. Those opened longest
    /// ago are forgotten first (see Forgotten), and only when neither the list nor the folder has them.
    std::size_t documents = 10'000;
  };

  RecentShortcuts(RecentDisk& disk, LinkWriter writeLink, BeganAt beganAt, Limits limits)
      : m_disk(disk),
        m_writeLink(std::move(writeLink)),
        m_beganAt(std::move(beganAt)),
        m_limits(limits),
        m_foreign(disk) {}

  /// The state that the last session left.
  enum class Memory { Sound, Missing, Damaged };

  /// Reads that state. Fails with an Error when it cannot be read.
  Memory Load();

  /// Whether the document is remembered, whatever became of its shortcut.
  bool Knows(const std::string& path) const { return m_state.documents.contains(path); }

  /// The program that last opened a document of the type, as its source named it; nothing when nobody knows.
  std::optional<std::string> LastProgramFor(const std::string& type) const { return m_state.programs.Find(type); }

  /// What the state keeps of a further source; empty when nothing.
  std::string MemoryOf(const std::string& source) const;

  /// What the tidings brought.
  struct News {
    std::size_t added = 0;   ///< documents that were not remembered before
    bool isEmptied = false;  ///< the user has just emptied the list
  };

  struct Outcome {
    News news;
    bool isForeignFound = false;  ///< the folder holds what no remembered document owns
    std::vector<std::string>
        unlinkable;  ///< native paths of documents that no shortcut can lead to, each reported once
    Failure failure;
  };

  /// Takes in the tidings, if there are any, and brings the folder up to date as far as no opening would be lost that
  /// is not captured yet. Every step is tried even if another one fails.
  Outcome Refresh(const std::optional<Tidings>& tidings);

  /// Whether a Refresh has something to do although there are no tidings.
  bool IsWorkDue() const { return m_delivery == Delivery::Due || m_isChanged; }

  /// Takes in tidings without changing the folder. Where the state cannot be written, the next Refresh writes it.
  News Remember(const Tidings& tidings);

  /// Everything that the last Refresh left in the folder has been filed.
  Failure Captured();

 private:
  using Document = std::pair<const std::string, RecentDocument>;

  /// What is known of the folder's contents.
  enum class FolderView { Never, Outdated, Current };

  /// Openings that the shortcuts do not show yet.
  enum class Delivery { Done, WaitsForCapture, Due };

  void Save();
  void LookAtFolder();
  void LookAtShortcut(RecentDocument& document, const FolderItem& item);
  News TakeIn(const Tidings& tidings);
  void TakeInListing(const Listing& listing);
  std::size_t TakeInDocuments(const std::vector<ListedDocument>& documents);
  std::size_t TakeInOpenings(const Tidings& tidings);
  bool NoteEmptied();
  bool Note(const std::string& path, Moment opening);
  void TakeInListed(const ListedDocument& listed, Moment now);
  void TakeInTold(const std::string& source, const Opening& opening, Moment now);
  void Count(RecentDocument& document, Moment opening);
  void CountLate(RecentDocument& document, Moment opening);
  RecentDocument* Find(const std::string& path);
  void MarkUnlinkable(Document& document);
  std::optional<std::string> LinkBytes(Document& document);
  void GiveName(Document& document);
  bool Adopt(Document& document);
  void Forget();
  void Deliver(Failure& failure);
  void DeliverTo(Document& document);
  bool Write(Document& document, Moment opening);
  void MarkCaptured();
  void RemoveCleared();
  void Prune();
  void RemoveUnchanged(RecentDocument& document);

  RecentDisk& m_disk;
  LinkWriter m_writeLink;
  BeganAt m_beganAt;
  Limits m_limits;
  RecentState m_state;
  ShortcutNames m_names{m_state.forgotten};
  ForeignShortcuts m_foreign;
  std::vector<std::string> m_unlinkable;  ///< not reported yet
  std::uint64_t m_readings = 0;           ///< of the list
  FolderView m_folder = FolderView::Never;
  Delivery m_delivery = Delivery::Due;
  bool m_isChanged = false;     ///< the state differs from its file
  bool m_awaitsCapture = true;  ///< the next capture changes something
};

}  // namespace dayvane::recent
