// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "linux/activation/Activation.h"
#include "linux/search/DocumentIndex.h"
#include "linux/search/ServedObject.h"
#include "repository/CRepository.h"
#include "shell/FMain.h"

namespace dayvane::search {

/// Documents of the record in the searches of desktops, by the interfaces of GNOME Shell and of KDE's KRunner: found by
/// the words of their names, shown with their days, and opened as by a double click.
///
/// Anybody on the bus may call: what is taken of a call is bounded.
class DocumentSearch {
 public:
  /// All must outlive this. Nobody searches where the program is not on the bus.
  DocumentSearch(activation::BusApplication& bus, activation::Activation& activation, FMain& window,
                 Application& application, const CRepository& repository);

 private:
  GVariant* CallOfGnome(const std::string& method, GVariant* arguments);
  GVariant* CallOfKde(const std::string& method, GVariant* arguments);
  GVariant* Identifiers(GVariant* words);
  GVariant* Descriptions(GVariant* identifiers);
  GVariant* Matches(const std::string& query);
  void Open(const std::string& id);
  std::string DayText(const Date& day) const;

  activation::BusApplication& m_bus;
  activation::Activation& m_activation;
  FMain& m_window;
  Application& m_application;
  DocumentIndex m_index;
  std::optional<ServedObject> m_gnome;
  std::optional<ServedObject> m_kde;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::search
