// SPDX-License-Identifier: MIT
#include "bench/MadeUpDocuments.h"

#include "links/ShellLinkFormat.h"

namespace dayvane {

namespace {

std::string DocumentName(std::int64_t document) {
  static const char* const kExtensions[] = {"odt", "pdf", "txt", "png", "ods"};
  return "Document number " + std::to_string(document) + "." + kExtensions[document % 5];
}

}  // namespace

std::string ShortcutName(std::int64_t document) {
  return DocumentName(document) + ".lnk";
}

std::string LinkBytes(std::int64_t document) {
  platform::ShellLink link;
  link.workingDirectory = "Z:\\home\\ana\\Documents\\project " + std::to_string(document % 100);
  link.target = link.workingDirectory + "\\" + DocumentName(document);
  return links::WriteShellLink(link);
}

}  // namespace dayvane
