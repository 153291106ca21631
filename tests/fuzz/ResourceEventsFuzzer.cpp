// SPDX-License-Identifier: MIT

// The rows of KDE's activity database: a line for each, "AGENT<tab>RESOURCE<tab>START<tab>END".

#include <set>
#include <string>

#include "base/Text.h"
#include "linux/recent/ResourceEvents.h"
#include "tests/fuzz/Fuzzing.h"

namespace dayvane::fuzzing {

namespace {

using recent::Opening;
using recent::ResourceEvent;

std::vector<ResourceEvent> Rows(std::string_view bytes) {
  std::vector<ResourceEvent> rows;
  for (const std::string_view line : text::Split(bytes, '\n')) {
    auto fields = text::Split(line, '\t');
    fields.resize(4);
    rows.push_back({static_cast<std::int64_t>(rows.size()) + 1, std::string(fields[0]), std::string(fields[1]),
                    text::ToNumber<std::int64_t>(fields[2]), text::ToNumber<std::int64_t>(fields[3])});
  }
  return rows;
}

bool IsDocument(const std::string& path) {
  return path.starts_with('/') && !path.ends_with('/') && path.find('\0') == std::string::npos;
}

void TryBeginning(const std::vector<ResourceEvent>& rows, const Opening& use) {
  const auto beginning = recent::BeginningOf(rows, use);
  Require(!beginning || *beginning <= use.moment, "a use begins before it ends");
}

}  // namespace

void Try(std::string_view bytes) {
  const auto rows = Rows(bytes);
  const auto openings = recent::OpeningsOf(rows, 0);
  Require(openings.size() <= rows.size(), "there are no more openings than rows");
  std::set<std::string> paths;
  for (const Opening& opening : openings) {
    Require(IsDocument(opening.path) && opening.moment > 0, "an opening has a path and a moment");
    paths.insert(opening.path);
    TryBeginning(rows, opening);
  }
  Require(recent::LatestOfEach(openings).size() == paths.size(), "each document has one latest opening");
  const auto last = static_cast<std::int64_t>(rows.size());
  Require(recent::OpeningsOf(rows, last).empty(), "what is known is no news");
  Require(recent::OpeningsOf(rows, last / 2).size() <= openings.size(), "the more is known, the less is news");
}

}  // namespace dayvane::fuzzing
