// SPDX-License-Identifier: MIT
#include "linux/activation/Activation.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <array>

#include "controls/Keys.h"

namespace dayvane::activation {

namespace {

struct Command {
  const char* name;
  int item;
};
constexpr std::array kCommands{Command{"suspend", kTraySuspend}, Command{"resume", kTrayResume},
                               Command{"exit", kTrayExit}};

/// Qt shows this to a Wayland compositor, which lets no window come to the front without it. The programs that are
/// started later must not inherit it.
class ActivationToken {
 public:
  explicit ActivationToken(const std::string& token) { qputenv(kVariable, QByteArray::fromStdString(token)); }
  ActivationToken(const ActivationToken&) = delete;
  ActivationToken& operator=(const ActivationToken&) = delete;
  ~ActivationToken() { qunsetenv(kVariable); }

 private:
  static constexpr const char* kVariable = "XDG_ACTIVATION_TOKEN";
};

/// The user may have lost sight of a box that must be answered first.
void BringQuestionToFront() {
  if (QWidget* asking = QApplication::activeModalWidget()) {
    asking->raise();
    asking->activateWindow();
  }
}

}  // namespace

Activation::Activation(BusApplication& bus, platform::Windowing& windowing) : m_bus(bus), m_windowing(windowing) {
  for (const auto& [name, item] : kCommands) Add(name, item, item != kTrayResume);
  m_connections.push_back(bus.Activated.ConnectScoped([this](const std::string& token) { Ask(kTrayShow, token); }));
}

void Activation::Add(const char* name, int item, bool isEnabled) {
  m_bus.AddCommand(name, [this, item] { Ask(item, {}); });
  m_bus.SetCommandEnabled(name, isEnabled);
}

void Activation::Serve(FMainControls& main) {
  m_main = &main;
  for (const auto& [name, number] : kCommands) {
    const controls::MenuItem& item = main.mnuSysTrayPopup[number];
    const auto follow = [this, &item, command = name] {
      m_bus.SetCommandEnabled(command, item.Visible() && item.Enabled());
    };
    m_connections.push_back(main.mnuSysTrayPopup[number].Changed.ConnectScoped(follow));
    follow();
  }
  for (const Wish& wish : m_wishes) Defer(wish.item);
}

void Activation::Ask(int item, const std::string& token) {
  const auto same = std::find_if(m_wishes.begin(), m_wishes.end(), [&](const Wish& wish) { return wish.item == item; });
  if (same != m_wishes.end()) {
    same->token = token;
  } else {
    m_wishes.push_back({item, token});
    if (m_main != nullptr) Defer(item);
  }
  if (item == kTrayShow) QMetaObject::invokeMethod(&m_context, BringQuestionToFront, Qt::QueuedConnection);
}

void Activation::Defer(int item) {
  // Later: who called is answered first.
  QMetaObject::invokeMethod(
      &m_context, [this, item] { m_deferred.AfterWorkAndQuestions([this, item] { Fulfil(item); }); },
      Qt::QueuedConnection);
}

void Activation::Fulfil(int item) {
  const auto found =
      std::find_if(m_wishes.begin(), m_wishes.end(), [&](const Wish& wish) { return wish.item == item; });
  const Wish wish = *found;
  m_wishes.erase(found);
  if (m_main->form.IsUnloaded()) return;
  if (item == kTrayShow) return ShowWindow(wish.token);
  m_main->mnuSysTrayPopup.Choose(item);
}

void Activation::ShowWindow(const std::string& token) {
  constexpr int kId = 0;
  const ActivationToken right(token);
  // As a click on the icon does it: not every way of hiding the window lets the tray's menu offer to show it.
  if (!m_main->form.Visible()) m_main->tryMain.MouseUp.Raise(controls::kLeftButton, kId);
  m_windowing.SetForegroundWindow(m_main->form);
}

}  // namespace dayvane::activation
