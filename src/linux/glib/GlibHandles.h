// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <memory>
#include <string>

/// Owners of what GLib hands out.
namespace dayvane::glib {

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Type>
using Object = std::unique_ptr<Type, Unref>;

struct Free {
  void operator()(gpointer memory) const { g_free(memory); }
};
using Text = std::unique_ptr<char, Free>;

struct FreeTexts {
  void operator()(char** texts) const { g_strfreev(texts); }
};
using Texts = std::unique_ptr<char*, FreeTexts>;  ///< ends with a null pointer

struct UnrefVariant {
  void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using Variant = std::unique_ptr<GVariant, UnrefVariant>;

struct FreeObjectList {
  void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
};
using ObjectList = std::unique_ptr<GList, FreeObjectList>;

struct UnrefKeyFile {
  void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, UnrefKeyFile>;

/// Room for the failure of one call.
class Failure {
 public:
  Failure() = default;
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  ~Failure() { g_clear_error(&m_error); }

  GError** Slot() { return &m_error; }
  bool Is(GQuark domain, int code) const { return g_error_matches(m_error, domain, code) != 0; }
  std::string Message() const { return m_error != nullptr ? m_error->message : ""; }

 private:
  GError* m_error = nullptr;
};

}  // namespace dayvane::glib
