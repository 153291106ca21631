// SPDX-License-Identifier: MIT
#include "linux/recent/Sources.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"

namespace dayvane::recent {

Sources::Sources(std::vector<std::unique_ptr<Source>> sources, ReportEvent reportEvent)
    : m_reportEvent(std::move(reportEvent)) {
  for (auto& source : sources) m_members.push_back({std::move(source), std::nullopt, false});
}

std::vector<Sources::News> Sources::Read(const MemoryOf& memoryOf) {
  std::vector<Member*> due;
  for (Member& member : m_members)
    if (IsDue(member)) due.push_back(&member);
  if (std::exchange(m_isFirst, false)) ReportFound(due);
  std::vector<News> all;
  for (Member* member : due)
    if (auto news = ReadOne(*member, memoryOf)) all.push_back(std::move(*news));
  return all;
}

/// A source that cannot even tell whether it is due is asked, so that its failure is heard.
bool Sources::IsDue(Member& member) {
  try {
    return member.source->IsDue();
  } catch (const Error&) {
    return true;
  }
}

void Sources::ReportFound(const std::vector<Member*>& due) {
  if (m_members.empty()) return;
  std::string found;
  for (const Member* member : due) found += (found.empty() ? "" : ", ") + member->source->Name();
  m_reportEvent("Recent documents: beside the desktop's list there is " + (found.empty() ? "nothing to read" : found));
}

std::optional<Sources::News> Sources::ReadOne(Member& member, const MemoryOf& memoryOf) {
  const std::string& name = member.source->Name();
  try {
    auto reading = member.source->Read(member.memory ? *member.memory : memoryOf(name));
    member.memory = reading.memory;
    member.isFailing = false;
    return News{name, std::move(reading.openings), std::move(reading.memory)};
  } catch (const Error& error) {
    if (!std::exchange(member.isFailing, true))
      m_reportEvent("Recent documents: " + name + " cannot be read: " + error.what());
    return std::nullopt;
  }
}

std::optional<Moment> Sources::BeganAt(const Opening& use) {
  std::optional<Moment> earliest;
  for (const Member& member : m_members) {
    try {
      const auto began = member.source->BeganAt(use);
      if (began && *began < use.moment) earliest = std::min(earliest.value_or(*began), *began);
    } catch (const Error&) {
      // Then it does not know; that it fails is told where it is read.
    }
  }
  return earliest;
}

}  // namespace dayvane::recent
