// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace dayvane::help {

/// The pages that were shown, to go back and forward in.
class HelpHistory {
 public:
  struct Visit {
    std::string topic;
    int scrolled = 0;  ///< pixels, when the page was left
  };

  /// Another page; what was ahead is forgotten. The page that is shown already is no other.
  void Go(const std::string& topic) {
    if (!m_visits.empty() && Current().topic == topic) return;
    if (!m_visits.empty()) m_visits.resize(m_current + 1);
    m_visits.push_back({topic, 0});
    m_current = m_visits.size() - 1;
  }

  bool CanGoBack() const { return m_current > 0; }
  bool CanGoForward() const { return m_current + 1 < m_visits.size(); }
  void Back() { m_current -= CanGoBack() ? 1 : 0; }
  void Forward() { m_current += CanGoForward() ? 1 : 0; }

  bool IsEmpty() const { return m_visits.empty(); }
  Visit& Current() { return m_visits[m_current]; }  ///< there must be one
  const Visit& Current() const { return m_visits[m_current]; }

 private:
  std::vector<Visit> m_visits;
  std::size_t m_current = 0;
};

}  // namespace dayvane::help
