// SPDX-License-Identifier: MIT
#include "linux/activation/Activation.h"

#include <QApplication>
#include <QWidget>
#include <array>
#include <utility>

#include "controls/Keys.h"
#include "linux/activation/StartupNotice.h"

namespace dayvane::activation {

namespace {

struct Command {
  const char* name;
  int item;
};
constexpr const char* kResume = "resume";
constexpr std::array kCommands{Command{"suspend", kTraySuspend}, Command{kResume, kTrayResume},
                               Command{"exit", kTrayExit}};
constexpr const char* kWindow = "";  ///< the wish for the window, which no command can have for a name

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
  for (const auto& [name, item] : kCommands)
    Offer(name, [this, number = item] { m_main->mnuSysTrayPopup.Choose(number); });
  bus.SetCommandEnabled(kResume, false);
  m_connections.push_back(bus.Activated.ConnectScoped([this](const std::string& token) {
    Ask(kWindow, [this, token] { ShowWindow(token); });
    QMetaObject::invokeMethod(&m_context, BringQuestionToFront, Qt::QueuedConnection);
  }));
}

void Activation::Offer(const std::string& name, Act act) {
  m_bus.AddCommand(name, [this, name, command = std::move(act)] { Ask(name, command); });
}

void Activation::OfferSwitch(const std::string& name, bool isOn, std::function<void(bool)> set) {
  m_bus.AddSwitch(name, isOn,
                  [this, name, turn = std::move(set)](bool wanted) { Ask(name, [turn, wanted] { turn(wanted); }); });
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
  for (const std::string& name : m_order) Defer(name);
}

void Activation::Ask(const std::string& name, Act act) {
  const bool isNew = m_wishes.insert_or_assign(name, std::move(act)).second;
  if (!isNew) return;
  m_order.push_back(name);
  if (m_main != nullptr) Defer(name);
}

void Activation::Defer(const std::string& name) {
  // Later: who called is answered first.
  QMetaObject::invokeMethod(
      &m_context, [this, name] { m_deferred.AfterWorkAndQuestions([this, name] { Fulfil(name); }); },
      Qt::QueuedConnection);
}

void Activation::Fulfil(const std::string& name) {
  std::erase(m_order, name);
  const Act act = std::move(m_wishes.extract(name).mapped());
  if (!m_main->form.IsUnloaded()) act();
}

void Activation::ShowWindow(const std::string& token) {
  constexpr int kId = 0;
  const ActivationToken right(token);
  // As a click on the icon does it: not every way of hiding the window lets the tray's menu offer to show it.
  if (!m_main->form.Visible()) m_main->tryMain.MouseUp.Raise(controls::kLeftButton, kId);
  m_windowing.SetForegroundWindow(m_main->form);
  TellStarted(token);
}

}  // namespace dayvane::activation
