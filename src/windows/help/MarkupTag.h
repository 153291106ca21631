// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace dayvane::help {

/// What stands between "<" and ">" of a topic's body.
class MarkupTag {
 public:
  explicit MarkupTag(std::string_view inside);

  std::string_view Name() const { return m_name; }
  bool Ends() const { return m_ends; }  ///< "/p"; "br/" is none of these

  /// The value of an attribute, its references resolved; empty where there is none.
  std::string Attribute(std::string_view name) const;

 private:
  std::string_view m_inside;
  std::string_view m_name;
  bool m_ends;
};

}  // namespace dayvane::help
