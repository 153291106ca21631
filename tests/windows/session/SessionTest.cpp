// SPDX-License-Identifier: MIT
#include "tests/windows/session/SessionTest.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/Date.h"
#include "platform/DateConventions.h"
#include "tests/windows/RecentDocuments.h"
#include "windows/files/LocalTime.h"
#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"

namespace dayvane::session {

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kSettingsKey = L"Software\\Korvath\\Dayvane";

std::wstring WideOf(const std::string& text) {
  return files::ToWide(text).value();
}

/// Where the program and its help lie when they are built.
fs::path BuiltProgram() {
  wchar_t path[4096] = L"";
  GetModuleFileNameW(nullptr, path, static_cast<DWORD>(std::size(path)));
  return fs::path(path).parent_path().parent_path() / L"src" / L"windows";
}

std::wstring KeyOf(const std::string& subtree) {
  return std::wstring(kSettingsKey) + L"\\" + WideOf(subtree);
}

void EmptyRecentFolder() {
  for (const auto& entry : fs::directory_iterator(fs::path(WideOf(testing::RecentFolder())))) fs::remove(entry.path());
}

/// In seconds since 1970, at this time of a day before today.
std::int64_t MomentOf(int daysAgo) {
  constexpr std::int64_t kDay = 86400;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(now).count() - daysAgo * kDay;
}

Date DayBefore(int daysAgo) {
  return files::LocalTime(MomentOf(daysAgo));
}

}  // namespace

void SessionTest::SetUp() {
  RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
  EmptyRecentFolder();
  for (const wchar_t* name : {L"dayvane.exe", L"Dayvane.hlp"})
    fs::copy_file(BuiltProgram() / name, testing::PathOf(m_folder.Native()) / name);
}

void SessionTest::TearDown() {
  m_program.reset();
  RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
  EmptyRecentFolder();
}

void SessionTest::StoreSetting(const std::string& subtree, const std::string& name, const std::string& text) {
  const std::wstring wide = WideOf(text);
  RegSetKeyValueW(HKEY_CURRENT_USER, KeyOf(subtree).c_str(), WideOf(name).c_str(), REG_SZ, wide.c_str(),
                  static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
}

void SessionTest::StoreUsualOptions() {
  StoreSetting("Options", "Favorites Threshold", "2");
  StoreSetting("Options", "Purge Age", "30");
  StoreSetting("Options", "Timer Interval", "1");
}

std::string SessionTest::Setting(const std::string& subtree, const std::string& name) const {
  wchar_t text[256] = L"";
  DWORD size = sizeof text;
  if (RegGetValueW(HKEY_CURRENT_USER, KeyOf(subtree).c_str(), WideOf(name).c_str(), RRF_RT_REG_SZ, nullptr, text,
                   &size) != ERROR_SUCCESS)
    return "(none)";
  return files::FromWide(text).value_or("(not UTF-16)");
}

void SessionTest::OpenDocument(const std::string& name, int daysAgo) {
  m_documents.Write(name, name);
  testing::AddRecentDocument(DocumentPath(name), MomentOf(daysAgo));
}

void SessionTest::PutIntoRecentFolder(const std::string& name, const std::string& bytes) {
  std::ofstream(fs::path(WideOf(testing::RecentFolder() + "\\" + name)), std::ios::binary) << bytes;
}

void SessionTest::Start() {
  m_program = std::make_unique<RemoteProgram>(WideOf(m_folder.Path()));
  m_main = m_program->WaitForWindow("Dayvane - ");
}

void SessionTest::LaunchFirstRun() {
  m_program = std::make_unique<RemoteProgram>(WideOf(m_folder.Path()));
  m_program->WaitForBox();
}

void SessionTest::End() {
  ChooseMenu("DX");
  EXPECT_EQ(m_program->WaitForEnd(), 0U);
}

std::unique_ptr<RemoteProgram> SessionTest::LaunchSecond() const {
  return std::make_unique<RemoteProgram>(WideOf(m_folder.Path()));
}

HWND SessionTest::Child(const std::string& className, const std::string& text) const {
  const HWND child = FindChild(m_main, className, text);
  if (child == nullptr) throw std::runtime_error("no control " + className + " " + text);
  return child;
}

void SessionTest::ChooseMenu(const std::string& accessKeys) {
  SetForegroundWindow(m_main);
  PressKey(VK_MENU, static_cast<WORD>(accessKeys.front()));
  WaitUntil([&] { return HasOpenMenu(); }, "the menu " + accessKeys);
  for (const char key : accessKeys.substr(1)) PressKey(static_cast<WORD>(key));
}

void SessionTest::PressTool(int button) {
  Click(ToolButtons(Toolbar()).at(static_cast<std::size_t>(button)).place);
}

bool SessionTest::CanPressTool(int button) const {
  return ToolButtons(Toolbar()).at(static_cast<std::size_t>(button)).enabled;
}

bool SessionTest::HasOpenMenu() const {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  return GetGUIThreadInfo(GetWindowThreadProcessId(m_main, nullptr), &thread) != 0 &&
         (thread.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

void SessionTest::ClickNode(const std::string& text) {
  for (const Node& node : Nodes(Tree()))
    if (node.text == text) return Click(PlaceOfNode(Tree(), node.item));
  throw std::runtime_error("no node " + text);
}

int SessionTest::RowOf(HWND list, const std::string& name) const {
  const auto names = Names(list);
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

void SessionTest::ClickRow(HWND list, const std::string& name) {
  WaitUntil([&] { return RowOf(list, name) >= 0; }, "the row " + name);
  Click(PlaceOfRow(list, RowOf(list, name)));
}

std::string SessionTest::AnswerBox(WORD button) {
  const HWND box = m_program->WaitForBox();
  std::string said = BoxText(box);
  PostMessageW(box, WM_COMMAND, button, 0);
  WaitUntil([&] { return IsWindow(box) == 0 || !IsShown(box); }, "the box to go");
  return said;
}

std::string SessionTest::DayName(int daysAgo) {
  return Format(DayBefore(daysAgo), "dd", platform::DateConventions());
}

std::string SessionTest::FiledPath(const std::string& document, int daysAgo) const {
  const Date day = DayBefore(daysAgo);
  std::string path = DataPath("Daily");
  for (const char* part : {"yyyy", "mmmm", "dd"}) path += "\\" + Format(day, part, platform::DateConventions());
  return path + "\\" + document + ".lnk";
}

bool SessionTest::IsFiled(const std::string& document, int daysAgo) const {
  return Exists(FiledPath(document, daysAgo));
}

bool SessionTest::Exists(const std::string& path) const {
  return GetFileAttributesW(files::ToNative(path).value().c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace dayvane::session
