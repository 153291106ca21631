// SPDX-License-Identifier: MIT
#include "linux/launch/Launcher.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Error.h"
#include "linux/files/NativePath.h"
#include "linux/launch/Applications.h"

namespace dayvane::launch {

namespace {

constexpr std::string_view kExplorer = "\\EXPLORER.EXE ";
constexpr std::string_view kExploreArguments = "/n,/e,/root,";
constexpr std::string_view kOpenFolderArguments = "/n,";

bool IsFolder(const std::string& native) {
  struct stat status {};
  return stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool IsFile(const std::string& native) {
  struct stat status {};
  return stat(native.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::string FolderOf(const std::string& native) {
  return native.substr(0, std::max<std::size_t>(1, native.rfind('/')));
}

/// Why a path could not be looked at. The system tells a missing file and a missing folder apart no further.
int ResultForMissing(const std::string& native, int systemError) {
  if (systemError == EACCES) return kSeAccessDenied;
  return systemError == ENOENT && IsFolder(FolderOf(native)) ? kSeFileNotFound : kSePathNotFound;
}

/// The default application of a document. As on other desktops its name decides, where that is enough: by its content
/// an empty document is a text, whatever its name. When there is none, the failure says why, if that is known.
glib::Object<GAppInfo> ApplicationFor(GFile* file, const std::string& native, glib::Failure& failure) {
  gboolean uncertain = FALSE;
  const glib::Text type(g_content_type_guess(native.c_str(), nullptr, 0, &uncertain));
  if (uncertain) return glib::Object<GAppInfo>(g_file_query_default_handler(file, nullptr, failure.Slot()));
  return glib::Object<GAppInfo>(g_app_info_get_default_for_type(type.get(), FALSE));
}

int ResultFor(const glib::Failure& failure) {
  if (failure.Is(G_IO_ERROR, G_IO_ERROR_NOT_FOUND)) return kSeFileNotFound;
  if (failure.Is(G_IO_ERROR, G_IO_ERROR_PERMISSION_DENIED)) return kSeAccessDenied;
  return kSeNoAssociation;
}

/// "https" for a web address; nothing for a path, whose drive is a single letter.
std::string SchemeOf(const std::string& target) {
  const glib::Text scheme(g_uri_parse_scheme(target.c_str()));
  return scheme && scheme.get()[1] != '\0' ? scheme.get() : "";
}

bool IsExecutableFile(const std::string& native, const struct stat& status) {
  return S_ISREG(status.st_mode) && access(native.c_str(), X_OK) == 0;
}

/// The folder or file that an explorer command line is about.
std::string PathOf(const std::string& commandLine) {
  const auto program = commandLine.find(kExplorer);
  if (program == std::string::npos) throw Error(kInvalidProcedureCall, "Not an explorer command line", commandLine);
  std::string_view arguments = std::string_view(commandLine).substr(program + kExplorer.size());
  for (const std::string_view known : {kExploreArguments, kOpenFolderArguments}) {
    if (!arguments.starts_with(known)) continue;
    const std::string named(arguments.substr(known.size()));
    const auto path = named.starts_with('/') ? files::FromNative(named) : named;
    return files::ResolveNative(path.value_or("")).value_or(named);
  }
  throw Error(kInvalidProcedureCall, "Not an explorer command line", commandLine);
}

}  // namespace

Launcher::Launcher(ReportEvent reportEvent)
    : m_reportEvent(std::move(reportEvent)),
      m_pending(g_cancellable_new()),
      m_fileManager(m_pending.get(), m_reportEvent) {}

Launcher::~Launcher() {
  g_cancellable_cancel(m_pending.get());
}

int Launcher::Open(const std::string& target, const std::string& workingFolder) {
  const std::string folder = files::ResolveNative(workingFolder).value_or("");
  if (const std::string scheme = SchemeOf(target); !scheme.empty()) return OpenAddress(target, scheme, folder);
  const auto native = files::ResolveNative(target);
  return native ? OpenFile(*native, folder) : kSePathNotFound;
}

int Launcher::OpenFile(const std::string& native, const std::string& workingFolder) {
  struct stat status {};
  if (stat(native.c_str(), &status) != 0) return ResultForMissing(native, errno);
  if (S_ISDIR(status.st_mode)) return m_fileManager.Show(native) ? kSeOpened : kSeNoAssociation;
  if (IsExecutableFile(native, status)) {
    const auto application = applications::FindByProgram(native);
    if (application) return Start(application.get(), {}, workingFolder);
  }
  const glib::Object<GFile> file(g_file_new_for_path(native.c_str()));
  glib::Failure failure;
  const auto application = ApplicationFor(file.get(), native, failure);
  if (!application) return ResultFor(failure);
  const glib::Text uri(g_file_get_uri(file.get()));
  return Start(application.get(), uri.get(), workingFolder);
}

int Launcher::OpenAddress(const std::string& address, const std::string& scheme, const std::string& workingFolder) {
  const glib::Object<GAppInfo> application(g_app_info_get_default_for_uri_scheme(scheme.c_str()));
  return application ? Start(application.get(), address, workingFolder) : kSeNoAssociation;
}

int Launcher::Start(GAppInfo* application, const std::string& uri, const std::string& workingFolder) {
  const bool started = StartApplication(application, uri, workingFolder, m_pending.get(), m_reportEvent);
  return started ? kSeOpened : kSeAssociationIncomplete;
}

void Launcher::Run(const std::string& commandLine) {
  std::string folder = PathOf(commandLine);
  // The shortcut to a program has the program itself as its working folder.
  if (IsFile(folder)) folder = FolderOf(folder);
  if (!IsFolder(folder)) throw Error(kPathNotFound, "The folder does not exist", folder);
  if (!m_fileManager.Show(folder)) throw Error(kFileNotFound, "No program on this desktop shows folders", folder);
}

std::string Launcher::DisplayPath(const std::string& path) {
  const bool onRoot = path.size() >= 2 && (path[0] == 'Z' || path[0] == 'z') && path[1] == ':';
  return onRoot ? files::ToNative(path).value_or(path) : path;
}

}  // namespace dayvane::launch
