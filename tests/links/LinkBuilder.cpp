// SPDX-License-Identifier: MIT
#include "tests/links/LinkBuilder.h"

#include <ostream>

namespace dayvane::platform {

void PrintTo(const ShellLink& link, std::ostream* out) {
  *out << "{target '" << link.target << "', working directory '" << link.workingDirectory << "', arguments '"
       << link.arguments << "', icon '" << link.iconFile << "' " << link.iconIndex << ", show " << link.showCommand
       << "}";
}

}  // namespace dayvane::platform

namespace dayvane::testing {

namespace {

std::string Zeros(std::size_t count) {
  return std::string(count, '\0');
}

std::size_t NameOffset(unsigned version) {
  return version >= 9 ? 46 : version == 8 ? 42 : version == 7 ? 38 : 20;
}

std::string Network(const Info& info) {
  const bool wide = info.netNameWide.has_value();
  const std::size_t header = wide ? 0x1C : 0x14;
  std::string names;
  const auto place = [&](bool isThere, const std::string& text) {
    const std::size_t offset = isThere ? header + names.size() : 0;
    if (isThere) names += text;
    return Number32(static_cast<std::uint32_t>(offset));
  };
  const std::string netName = place(info.netName || wide, info.netName.value_or("") + '\0');
  const std::string deviceName = place(info.deviceName.has_value(), info.deviceName.value_or("") + '\0');
  const std::string netNameWide = place(wide, Utf16(info.netNameWide.value_or(u"")) + Zeros(2));
  std::string network = Number32(static_cast<std::uint32_t>(header + names.size())) + Number32(2) + netName;
  network += deviceName + Number32(0x20000);
  if (wide) network += netNameWide + Number32(0);
  return network + names;
}

}  // namespace

std::string Number16(std::uint32_t value) {
  return {static_cast<char>(value & 0xFFU), static_cast<char>(value >> 8U & 0xFFU)};
}

std::string Number32(std::uint32_t value) {
  return Number16(value & 0xFFFFU) + Number16(value >> 16U);
}

std::string Utf16(const std::u16string& text) {
  std::string bytes;
  for (const char16_t unit : text) bytes += Number16(unit);
  return bytes;
}

std::string Item(const std::string& data) {
  return Number16(static_cast<std::uint32_t>(data.size() + 2)) + data;
}

std::string RootItem() {
  return Item("\x1F\x50" + std::string("\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\x00\x2B\x30\x30\x9D", 16));
}

std::string DriveItem(const std::string& name) {
  return Item("\x2F" + name + Zeros(22 - name.size()));
}

std::string ShareItem(const std::string& location, unsigned type) {
  return Item(std::string{static_cast<char>(type)} + "\x01\x81" + location + '\0' + "Microsoft Network" + '\0' +
              Number16(2));
}

std::string LongNameBlock(unsigned version, const std::u16string& name, std::size_t at) {
  const std::size_t offset = NameOffset(version);
  std::string body = Number16(version) + Number32(0xBEEF0004) + Zeros(8);
  body += Number16(static_cast<std::uint32_t>(offset));
  body += Zeros(offset - 2 - body.size()) + Utf16(name) + Zeros(2);
  body += Number16(static_cast<std::uint32_t>(at));
  return Number16(static_cast<std::uint32_t>(body.size() + 2)) + body;
}

std::string FileItem(const std::string& primary, const std::u16string& name, unsigned version) {
  const std::string head = "\x32" + Zeros(11) + primary + Zeros(primary.size() % 2);
  return Item(head + LongNameBlock(version, name, head.size() + 2));
}

std::string OldFileItem(const std::string& name, const std::string& alias) {
  return Item("\x32" + Zeros(11) + name + '\0' + alias + '\0');
}

std::string ItemList(const std::vector<std::string>& items) {
  std::string list;
  for (const std::string& item : items) list += item;
  return list + Zeros(2);
}

std::string Info::Bytes() const {
  std::string body;
  const auto place = [&](bool isThere, const std::string& part) {
    const std::size_t offset = isThere ? headerSize + body.size() : 0;
    if (isThere) body += part;
    return Number32(static_cast<std::uint32_t>(offset));
  };
  const bool local = localPath || localPathWide;
  const bool network = netName || netNameWide || deviceName;
  std::string offsets =
      place(local, Number32(0x11) + Number32(3) + Number32(0x1234) + Number32(0x10) + std::string(1, '\0'));
  offsets += place(local, localPath.value_or("") + '\0');
  offsets += place(network, network ? Network(*this) : "");
  offsets += place(suffix.has_value(), suffix.value_or("") + '\0');
  if (headerSize >= 0x24) {
    offsets += place(localPathWide.has_value(), Utf16(localPathWide.value_or(u"")) + Zeros(2));
    offsets += place(suffixWide.has_value(), Utf16(suffixWide.value_or(u"")) + Zeros(2));
  }
  return Number32(static_cast<std::uint32_t>(headerSize + body.size())) + Number32(headerSize) +
         Number32((local ? 1U : 0U) | (network ? 2U : 0U)) + offsets + body;
}

std::string Link::Bytes() const {
  std::string body;
  std::uint32_t all = flags;
  const auto text = [&](const std::optional<std::string>& characters, std::uint32_t flag) {
    if (!characters) return;
    const std::size_t unit = (flags & 0x80U) != 0 ? 2 : 1;
    body += Number16(static_cast<std::uint32_t>(characters->size() / unit)) + *characters;
    all |= flag;
  };
  if (items) body += Number16(static_cast<std::uint32_t>(items->size())) + *items;
  if (info) body += *info;
  all |= (items ? 1U : 0U) | (info ? 2U : 0U);
  text(name, 0x4);
  text(relativePath, 0x8);
  text(workingDirectory, 0x10);
  text(arguments, 0x20);
  text(iconLocation, 0x40);
  return Number32(0x4C) + std::string("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16) + Number32(all) +
         Number32(0x20) + Zeros(28) + Number32(static_cast<std::uint32_t>(iconIndex)) + Number32(showCommand) +
         Zeros(12) + body + blocks + Number32(0);
}

std::string EnvironmentBlock(std::uint32_t signature, const std::string& ansi, const std::u16string& wide) {
  return Number32(0x314) + Number32(signature) + ansi + Zeros(260 - ansi.size()) + Utf16(wide) +
         Zeros(520 - 2 * wide.size());
}

std::string TypicalLink() {
  Link link;
  link.items = ItemList({RootItem(), DriveItem("C:\\"), FileItem(std::string("docs\0", 5), u"docs"),
                         FileItem(std::string("REPORT~1.ODT\0", 13), u"Report of the year.odt")});
  Info info;
  info.localPath = "C:\\docs\\Report of the year.odt";
  info.localPathWide = u"C:\\docs\\Report of the year.odt";
  info.suffixWide = u"";
  link.info = info.Bytes();
  link.name = Utf16(u"A report");
  link.relativePath = Utf16(u"..\\docs\\Report of the year.odt");
  link.workingDirectory = Utf16(u"C:\\docs");
  link.arguments = Utf16(u"-x \"1 2\"");
  link.iconLocation = Utf16(u"C:\\icons\\report.ico");
  link.iconIndex = -7;
  link.showCommand = 3;
  link.blocks = EnvironmentBlock(0xA0000001, "%HOME%\\Report.odt", u"%HOME%\\Report.odt") +
                EnvironmentBlock(0xA0000007, "%HOME%\\r.ico", u"%HOME%\\r.ico");
  return link.Bytes();
}

platform::ShellLink TypicalFields() {
  return {"C:\\docs\\Report of the year.odt", "C:\\docs", "-x \"1 2\"", "C:\\icons\\report.ico", -7, 3};
}

std::string Utf8(const char8_t* text) {
  return reinterpret_cast<const char*>(text);
}

}  // namespace dayvane::testing
