#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "linux/recent/ListedDocuments.h"
#include "linux/recent/RecentDisk.h"
#include "linux/recent/RecentState.h"
#include "platform/Shell.h"

namespace dayvane::recent {

/// The bytes of a shell link.
using LinkWriter = std::function<std::string(const platform::ShellLink&)>;

/// The shortcuts of the Recent folder, one for each document that was ever listed, and what is remembered of them.
///
/// A change goes to the disk in three steps: the state with the new openings as pending, the shortcuts, the state
/// without them. Whatever is cut off there, the next session finds what is still to do, and does not do twice what is
/// done: the folder shows which shortcut has its time already. All functions may fail with an Error and can then be
/// called again.
class RecentShortcuts {
 public:
  struct Limits {
    std::size_t shortcuts = 1000;  ///< the folder keeps this many of the newest

    /// Documents that are remembered; more only where the list itself or the folder holds more. Those opened longest
    /// ago are forgotten down to their trace (see Forgotten), and only when neither the list nor the folder has them.
    std::size_t documents = 10'000;
  };

  RecentShortcuts(RecentDisk& disk, LinkWriter writeLink, Limits limits);

  enum class Memory { Sound, None, Damaged };

  /// Takes up the state that an earlier session left.
  Memory Load();

  /// Looks at what the folder holds. Names are given only while that is known: from here to the end of Deliver.
  void Observe();

  /// Whether the folder holds anything that is no document's shortcut.
  bool KnowsNotAll() const { return !m_strangers.empty(); }

  /// Takes in the documents of the list; returns how many of them are new.
  std::size_t Note(const std::vector<ListedDocument>& documents, Moment now);

  /// The list holds something.
  void NoteFilled();

  /// The user emptied the list: what the folder holds now goes as soon as it is captured. False when that is known.
  bool NoteEmptied();

  /// Writes what is pending, as far as nothing that is not captured yet would be lost. Every shortcut is tried; the
  /// first failure is passed on.
  void Deliver();

  /// Everything in the folder has been filed, as far as Observe saw it or Deliver wrote it.
  void Captured();

  /// Writes the state, if there is anything new in it.
  void Save();

  /// Whether there is something to do although the list is unchanged.
  bool IsWorkDue() const { return m_isDeliveryDue || m_isChanged; }

  /// Native paths of documents that were found to have no form that the program can spell, each reported once.
  std::vector<std::string> TakeLeftOut() { return std::exchange(m_leftOut, {}); }

 private:
  using Document = std::pair<const std::string, RecentDocument>;

  void ObserveShortcut(RecentDocument& document, const FolderItem& item);
  bool NoteDocument(const ListedDocument& listed, Moment now);
  bool IsLongForgotten(const ListedDocument& listed) const;
  void LeaveOut(Document& document);
  std::optional<std::string> LinkBytes(Document& document);
  void GiveName(Document& document);
  bool Adopt(Document& document);
  void ReadAdoptable();
  void Forget();
  void DeliverTo(Document& document);
  bool Write(Document& document, Moment opening);
  void RemoveCleared();
  void Prune();
  void RemoveUnchanged(RecentDocument& document);

  RecentDisk& m_disk;
  LinkWriter m_writeLink;
  Limits m_limits;
  RecentState m_state;
  ShortcutNames m_names{m_state.forgotten};
  std::unordered_map<std::string, FolderItem> m_strangers;  ///< by lower-case name: what is nobody's shortcut
  std::unordered_map<std::string, FolderItem> m_adoptable;  ///< strangers by their bytes
  std::vector<std::string> m_leftOut;
  std::uint64_t m_readings = 0;  ///< of the list
  bool m_isFolderKnown = false;  ///< Observe's findings hold
  bool m_wasObserved = false;    ///< in this session
  bool m_isAdoptableRead = false;
  bool m_isChanged = false;  ///< the state differs from its file
  bool m_isDeliveryDue = true;
  bool m_isHeldBack = false;    ///< something waits for the next capture
  bool m_awaitsCapture = true;  ///< the next capture changes something
};

}  // namespace dayvane::recent
