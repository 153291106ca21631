// SPDX-License-Identifier: MIT
#include "linux/recent/LinkedNames.h"

namespace dayvane::recent {

namespace {

std::string LastPart(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

}  // namespace

void LinkedNames::Unify(Tidings& tidings) {
  if (!m_drives || tidings.IsEmpty()) return;
  m_local.emplace(m_drives());
  if (tidings.list) {
    m_byLastPart.clear();
    m_byMoment.clear();
    TakeIn(tidings.list->documents);
  }
  TakeIn(tidings.arrived);
  for (Sources::News& told : tidings.sources)
    for (Opening& opening : told.openings) opening.path = NameOf(opening);
}

void LinkedNames::TakeIn(std::vector<ListedDocument>& documents) {
  for (ListedDocument& document : documents) {
    if (!m_isKnown(document.path)) TakeKnownName(document);
    m_byLastPart.emplace(LastPart(document.path), document.path);
    m_byMoment.emplace(LastOpening(document).moment, document.path);
  }
}

void LinkedNames::TakeKnownName(ListedDocument& document) const {
  const std::string place = PlaceOf(document.path);
  if (!m_isKnown(place)) return;
  document.path = place;
  for (Opening& opening : document.openings) opening.path = place;
}

std::string LinkedNames::NameOf(const Opening& opening) const {
  const auto [first, last] = m_byLastPart.equal_range(LastPart(opening.path));
  for (auto listed = first; listed != last; ++listed)
    if (listed->second == opening.path) return opening.path;
  for (auto listed = first; listed != last; ++listed)
    if (LeadsTo(listed->second, opening.path)) return listed->second;
  // A link to the document itself may have any name.
  auto listed = m_byMoment.lower_bound(opening.moment - kOneOpening);
  for (; listed != m_byMoment.end() && listed->first <= opening.moment + kOneOpening; ++listed)
    if (LeadsTo(listed->second, opening.path)) return listed->second;
  return opening.path;
}

bool LinkedNames::LeadsTo(const std::string& path, const std::string& place) const {
  return m_local && m_local->Follow(path) == place;
}

std::string LinkedNames::PlaceOf(const std::string& path) const {
  return m_local ? m_local->Follow(path).value_or(path) : path;
}

}  // namespace dayvane::recent
