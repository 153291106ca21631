// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace dayvane::controls {

/// Keeps a listener connected for as long as it lives. It may outlive the signal.
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::shared_ptr<void> listener) : m_listener(std::move(listener)) {}

 private:
  std::shared_ptr<void> m_listener;
};

/// An event of a control: its listeners are called in the order of connecting. Listeners may come and go while it
/// is raised.
template <class... Arguments>
class Signal {
 public:
  using Listener = std::function<void(Arguments...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  /// Connected until the returned object goes.
  [[nodiscard]] Connection ConnectScoped(Listener listener) {
    auto held = std::make_shared<Listener>(std::move(listener));
    m_listeners.push_back(held);
    return Connection(held);
  }

  /// Connected for the signal's own lifetime: for a listener that outlives it.
  void Connect(Listener listener) {
    m_kept.push_back(std::make_shared<Listener>(std::move(listener)));
    m_listeners.push_back(m_kept.back());
  }

  void Raise(Arguments... arguments) {
    std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
    const auto listeners = m_listeners;
    for (const auto& weak : listeners)
      if (const auto listener = weak.lock()) (*listener)(arguments...);
  }

 private:
  std::vector<std::weak_ptr<Listener>> m_listeners;
  std::vector<std::shared_ptr<Listener>> m_kept;
};

}  // namespace dayvane::controls
