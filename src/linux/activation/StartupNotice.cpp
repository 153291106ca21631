// SPDX-License-Identifier: MIT
#include "linux/activation/StartupNotice.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace dayvane::activation {

namespace {

struct FreeReply {
  // What the X library gives comes from malloc.
  void operator()(void* memory) const { std::free(memory); }  // NOLINT(cppcoreguidelines-no-malloc)
};

xcb_atom_t AtomOf(xcb_connection_t* connection, std::string_view name) {
  const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> atom(xcb_intern_atom_reply(
      connection, xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data()), nullptr));
  return atom != nullptr ? atom->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// A message of the startup notification protocol: text in pieces of 20 bytes, ended by a zero, from a window that
/// tells the pieces of different senders apart.
void Broadcast(xcb_connection_t* connection, const std::string& text) {
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const xcb_window_t sender = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 8;
  event.window = sender;
  event.type = AtomOf(connection, "_NET_STARTUP_INFO_BEGIN");
  const xcb_atom_t next = AtomOf(connection, "_NET_STARTUP_INFO");
  const std::string_view bytes(text.c_str(), text.size() + 1);
  for (std::size_t at = 0; at < bytes.size(); at += sizeof event.data.data8, event.type = next) {
    std::memset(event.data.data8, 0, sizeof event.data.data8);
    std::memcpy(event.data.data8, bytes.data() + at, std::min(sizeof event.data.data8, bytes.size() - at));
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char*>(&event));
  }
  xcb_destroy_window(connection, sender);
  xcb_flush(connection);
}

std::string InQuotes(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

}  // namespace

void TellStarted(const std::string& startupId) {
  const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = x11 != nullptr ? x11->connection() : nullptr;
  if (startupId.empty() || connection == nullptr) return;
  Broadcast(connection, "remove: ID=" + InQuotes(startupId));
}

}  // namespace dayvane::activation
