// SPDX-License-Identifier: MIT
#include "settings/COptions.h"

#include "app/IgnoreErrors.h"
#include "settings/FOptions.h"
#include "settings/SettingsStore.h"

namespace dayvane {

namespace {

constexpr const char* kSubtree = "Options";

/// In the order of reading and of the dialog.
const std::vector<settings::NamedText>& Defaults() {
  static const std::vector<settings::NamedText> defaults{
      {"Favorites Threshold", "3"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  return defaults;
}

}  // namespace

void COptions::CreateOptionRegistryKeys() {
  settings::CreateSubtree(m_application.desktop.registry, kSubtree, Defaults());
}

void COptions::ReadValues() {
  auto& registry = m_application.desktop.registry;
  std::unique_ptr<platform::RegistryKey> key;
  if (!IgnoreErrors([&] { key = settings::OpenSubtree(registry, kSubtree); })) {
    CreateOptionRegistryKeys();
    key = settings::OpenSubtree(registry, kSubtree);
    m_defaultOptionsUsed = true;
  }
  // One bad value resets those after it too, however good they are: a damaged subtree is set back from there on.
  bool failed = false;
  const platform::WritesTogether writes(registry);
  std::int32_t* const fields[] = {&m_favoritesThreshold, &m_purgeAge, &m_timerInterval};
  for (std::size_t i = 0; i < Defaults().size(); ++i) {
    const settings::NamedText& standard = Defaults()[i];
    failed = !IgnoreErrors([&] { *fields[i] = settings::WholeNumber(key->Value(standard.name)); }) || failed;
    if (!failed) continue;
    IgnoreErrors([&] { key->AddValue(standard.name, standard.text, platform::kRegistryString); });
    *fields[i] = settings::WholeNumber(standard.text);
  }
}

bool COptions::ChangeValues() {
  ReadValues();
  FOptions dialog(m_application);
  dialog.SetFavoritesThreshold(m_favoritesThreshold);
  dialog.SetPurgeAge(m_purgeAge);
  dialog.SetTimerInterval(m_timerInterval);
  DialogLoaded.Raise(dialog);
  if (!dialog.GetValues()) return false;
  m_favoritesThreshold = dialog.FavoritesThreshold();
  m_purgeAge = dialog.PurgeAge();
  m_timerInterval = dialog.TimerInterval();
  auto& registry = m_application.desktop.registry;
  const auto key = settings::OpenSubtree(registry, kSubtree);
  platform::WritesTogether writes(registry);
  key->SetValue("Favorites Threshold", std::to_string(m_favoritesThreshold));
  key->SetValue("Purge Age", std::to_string(m_purgeAge));
  key->SetValue("Timer Interval", std::to_string(m_timerInterval));
  writes.Store();
  return true;
}

}  // namespace dayvane
