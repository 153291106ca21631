#pragma once

#include <string>
#include <string_view>

namespace dayvane::recent {

struct MendedXml {
  std::string text;
  bool wasBroken = false;  ///< the text was no XML that a strict reader takes
};

/// Makes text of careless writers readable for a strict XML reader, so that one odd character does not cost a whole
/// entry or list. Bytes that are no UTF-8 and characters that XML forbids become "%XX", which in an address means the
/// very same bytes; references to characters that XML forbids, as GLib writes them, likewise; an ampersand that starts
/// no known reference stands for itself. A byte order mark and the XML declaration are taken off: the text is UTF-8
/// whatever it says.
MendedXml MendXml(std::string_view bytes);

}  // namespace dayvane::recent
