// SPDX-License-Identifier: MIT
#include "windows/help/MarkupTag.h"

#include "help/PlainText.h"

namespace dayvane::help {

MarkupTag::MarkupTag(std::string_view inside) : m_inside(inside), m_ends(inside.starts_with('/')) {
  const std::string_view rest = inside.substr(m_ends ? 1 : 0);
  m_name = rest.substr(0, rest.find_first_of(" \t\r\n/"));
}

std::string MarkupTag::Attribute(std::string_view name) const {
  const std::string start = " " + std::string(name) + "=\"";
  const auto found = m_inside.find(start);
  if (found == std::string_view::npos) return {};
  const std::string_view rest = m_inside.substr(found + start.size());
  return PlainText(rest.substr(0, rest.find('"')));
}

}  // namespace dayvane::help
